// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaRefresh.h Hears what changes below materials, and updates their appearance when the edits have ended.
#ifndef HOST_REFRESH_VELRMAREFRESH_H
#define HOST_REFRESH_VELRMAREFRESH_H

#include <map>
#include <vector>

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
    VelBaseUnknown_WR material;
    std::map<const VelComponent*, VelBaseUnknown_WR> parameters;
  };

  static const VelReceiverTable& Receivers() noexcept;
  void OnParameterValue(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification);
  void OnParameterConnection(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification);
  void Note(VelNotification* iNotification, VelRmaChange iChange);

  void OnEditsEnded() override;
  void Receive(VelNotification& ioNotification) override;

  std::vector<Followed>::iterator Find(VelBaseUnknown& iMaterial);
  void Listen(const VelRmaGraphWalk& iWalk);
  void StopListening(const VelRmaGraphWalk& iWalk);

  /// Looks at the graphs again: listens to new shaders, and notes new parameters.
  void LookAgain();
  void LookAgainAt(Followed& ioFollowed, const VelRmaGraphWalk& iWalk);

  /// Whether a parameter stood below one of the materials when they were last looked at.
  bool IsFollowed(const VelBaseUnknown_WR& iParameter) const;

  /// @return false when there was nothing to update
  bool Run();

  std::vector<Followed> followed_;
  VelRmaPendingUpdates pending_;
  bool isRunning_ = false;
};

#endif  // HOST_REFRESH_VELRMAREFRESH_H
