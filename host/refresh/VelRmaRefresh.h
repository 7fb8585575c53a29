// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaRefresh.h Hears what changes below materials, and updates their appearance when the edits have ended.
#ifndef HOST_REFRESH_VELRMAREFRESH_H
#define HOST_REFRESH_VELRMAREFRESH_H

#include <cstdint>
#include <map>
#include <unordered_map>

#include "host/refresh/VelRmaPendingUpdates.h"
#include "platform/base/VelEditScope.h"
#include "platform/events/VelEventName.h"
#include "platform/events/VelModelEventsListener.h"
#include "platform/objectmodeler/VelBaseUnknown_WR.h"
#include "platform/objectmodeler/VelImplementation.h"

class VelNotification;
class VelReceiverTable;
struct VelRmaGraphWalk;

/// Implements VelIRmaRefresh for late type "VelRmaRefresh". It hears shaders by their events and materials by their
/// model events, since what a sub-shader's parameter refers to is told by those alone.
class VelRmaRefresh final : public VelImplementation, private VelEditScopeListener, private VelModelEventsListener {
 public:
  explicit VelRmaRefresh(VelComponent& iComponent);
  ~VelRmaRefresh() override;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  // VelIRmaRefresh
  HRESULT Attach(VelBaseUnknown* iMaterial);
  HRESULT Detach(VelBaseUnknown* iMaterial);
  HRESULT Flush();

 private:
  /// A material that is followed, and the parameters that were there when it was last looked at.
  struct Followed {
    std::uint64_t number;  ///< Materials are looked at in the order in which they were attached.
    VelBaseUnknown_WR material;
    std::map<const VelComponent*, VelBaseUnknown_WR> parameters;
  };

  static const VelReceiverTable& Receivers() noexcept;
  void OnParameterValue(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification);
  void OnParameterConnection(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification);
  void Note(VelNotification* iNotification, VelRmaChange iChange);

  void OnEditsEnded() override;
  void Receive(VelNotification& ioNotification) override;

  /// @param[in] iMaterial null is followed by nobody
  Followed* Find(VelBaseUnknown* iMaterial);

  /// @return the followed material that stands above a parameter, null when there is none
  Followed* FindAbove(const VelBaseUnknown_WR& iParameter);

  void Listen(const VelRmaGraphWalk& iWalk);
  void StopListening(const VelRmaGraphWalk& iWalk);

  /// Looks at the graphs again that may have changed: listens to new shaders, and notes new parameters. A change that
  /// is heard concerns the material above it; where features found or lost their place, all materials are looked at.
  void LookAgain();
  void LookAgainAt(Followed& ioFollowed);

  /// @return false when there was nothing to update
  bool Run();

  std::unordered_map<const VelComponent*, Followed> followed_;
  VelRmaPendingUpdates pending_;
  std::uint64_t attached_ = 0;
  std::uint64_t placesAtLastLook_ = 0;  ///< VelSpecChanges::CountOfPlaces when all materials were last looked at.
  bool isRunning_ = false;
};

#endif  // HOST_REFRESH_VELRMAREFRESH_H
