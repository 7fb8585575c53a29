// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelBuilder.h Builds the implementations of components, however deep and cyclic the graph.
#ifndef PLATFORM_OBJECTMODELER_VELBUILDER_H
#define PLATFORM_OBJECTMODELER_VELBUILDER_H

#include "platform/objectmodeler/VelComponent.h"
#include "platform/objectmodeler/VelImplementation.h"
#include "platform/objectmodeler/VelLateType.h"

/// Builds what a query finds missing. Constructors run at once; the second phase (OnAttached) of everything that one
/// outermost query builds runs from a queue at its end, in the order of building. Not exported.
class VelBuilder {
 public:
  /// Builds the implementation behind a row that lives as long as its component, the main implementations of the
  /// fathers first.
  /// @return null when it declines, throws, or is being built already further up the stack, or when the component is
  ///         closed meanwhile
  static VelImplementation* Build(VelComponent& ioComponent, const VelBinding& iRow);

  /// Builds the main implementations of a component's fathers when its own is built: a component that was built before
  /// it had a father is heard by its new fathers from then on.
  static void CatchUpWithFathers(VelComponent& ioComponent);

  /// Builds an implementation that lives as long as one forwarder; both phases run at once.
  /// @return as Build; the caller owns it
  static VelImplementation* BuildForOneForwarder(VelComponent& ioComponent, const VelBinding& iRow);

  /// Makes an extension that is its own interface object.
  /// @return null when it declines, throws, or is being made already further up the stack; else with one reference
  static VelBaseUnknown* BuildDelegatingExtension(VelComponent& ioComponent, const VelBinding& iRow);
};

#endif  // PLATFORM_OBJECTMODELER_VELBUILDER_H
