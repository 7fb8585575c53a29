// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshModelNotificationValueChanged.h The value of a parameter changed: one class per type of value.
#ifndef RENDERINGSHADER_INTERFACES_VELRSHMODELNOTIFICATIONVALUECHANGED_H
#define RENDERINGSHADER_INTERFACES_VELRSHMODELNOTIFICATIONVALUECHANGED_H

#include <array>
#include <cstdint>
#include <utility>

#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/events/VelNotification.h"
#include "platform/objectmodeler/VelVar.h"

/// The value before and after the change.
template <class Value>
class VelRshModelNotificationValueChanged : public VelNotification {
 public:
  using ValueType = Value;

  VelRshModelNotificationValueChanged(Value iOld, Value iNew) : old_(std::move(iOld)), new_(std::move(iNew)) {}

  const Value& GetOld() const noexcept { return old_; }
  const Value& GetNew() const noexcept { return new_; }

 private:
  Value old_;
  Value new_;
};

// The table of the classes is VelRshValueNotifications.def.
#define VEL_RSH_VALUE_NOTIFICATION(Name, ...)                                                         \
  class VEL_RSH_INTERFACES_API Name final : public VelRshModelNotificationValueChanged<__VA_ARGS__> { \
   public:                                                                                            \
    VEL_NOTIFICATION(Name);                                                                           \
    using VelRshModelNotificationValueChanged<__VA_ARGS__>::VelRshModelNotificationValueChanged;      \
  };
#include "RenderingShader/interfaces/VelRshValueNotifications.def"
#undef VEL_RSH_VALUE_NOTIFICATION

#endif  // RENDERINGSHADER_INTERFACES_VELRSHMODELNOTIFICATIONVALUECHANGED_H
