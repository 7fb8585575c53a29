// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRmaRefresh.h Keeps the appearance of materials up to date by itself.
#ifndef HOST_REFRESH_VELIRMAREFRESH_H
#define HOST_REFRESH_VELIRMAREFRESH_H

#include "host/VelRshHostApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_RSH_HOST_API extern const VelInterfaceId IID_VelIRmaRefresh;

/// A service for the materials that a host attaches: it hears what changes below them and brings their appearance up to
/// date once the changes are complete, each parameter once for its value and once for its connection, in the order in
/// which the changes were first heard.
///
/// It runs when the outermost scope of edits ends (VelEditScope), which a call of VelRshTranslatorParameter is; a
/// change that is made outside of any scope waits for the next one, or for Flush. Nothing is ever updated while a
/// change is still being told. Parameters that were added since the last run count as changed in both ways. What the
/// updates change joins the run that they are part of.
///
/// An object of late type "VelRmaRefresh" answers it; the host keeps that object as long as it wants the service.
/// Implemented by: VelRmaRefresh. Thread: the application thread. Re-entrancy: none.
class VEL_RSH_HOST_API VelIRmaRefresh : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRmaRefresh);

  /// Begins to follow a material, which is not kept alive. What is there already counts as up to date.
  /// @param[in] iMaterial any interface of a rendering material
  /// @return S_OK; S_FALSE when it is followed already; E_INVALIDARG when iMaterial is null; E_NOINTERFACE when it is
  ///         no rendering material or has no model events
  virtual HRESULT Attach(VelBaseUnknown* iMaterial) = 0;

  /// Stops following a material. What was heard of it and not updated yet is forgotten.
  /// @return S_OK; S_FALSE when it is not followed; E_INVALIDARG when iMaterial is null
  virtual HRESULT Detach(VelBaseUnknown* iMaterial) = 0;

  /// Updates now what has been heard.
  /// @return S_OK; S_FALSE when there was nothing to update; E_UNEXPECTED, with nothing done, while a change is being
  ///         told or updated
  virtual HRESULT Flush() = 0;

 protected:
  ~VelIRmaRefresh() = default;
};

using VelIRmaRefresh_var = VelVar<VelIRmaRefresh>;

#endif  // HOST_REFRESH_VELIRMAREFRESH_H
