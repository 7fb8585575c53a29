// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelEventName.h The identity of an event.
#ifndef PLATFORM_EVENTS_VELEVENTNAME_H
#define PLATFORM_EVENTS_VELEVENTNAME_H

/// The name of an event is one shared text, compared by its address. A set of events is a class with one static
/// function per event, all of them defined in one source of the library that exports the class, so that every library
/// of the process is given the same address:
///
///     class VEL_THING_API VelThingEvents {
///      public:
///       static VelEventName VALUE_UPDATED() noexcept;
///     };
///
/// Never null. The text is for traces and for people; a literal that reads the same is another event.
using VelEventName = const char*;

#endif  // PLATFORM_EVENTS_VELEVENTNAME_H
