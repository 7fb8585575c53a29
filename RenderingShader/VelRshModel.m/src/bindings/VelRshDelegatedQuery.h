// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshDelegatedQuery.h The query by which a shader's extension finds what answers in its place.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_VELRSHDELEGATEDQUERY_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_VELRSHDELEGATEDQUERY_H

#include "platform/base/HResult.h"
#include "platform/objectmodeler/VelBaseUnknown.h"

/// Asks the delegate of a component for an interface. Misuse is a fatal error of the process; where the host lets it
/// return, the code is E_FAIL.
/// @param[in] iExtension the component, or an object that stands for it alone; null is misuse
/// @param[in] iInterface null is misuse
/// @param[out] oInterface must be empty before; null or not empty is misuse
/// @return S_OK; E_FAIL when iExtension is another object of the component, when the component has no delegate, or when
///         the delegate does not answer
HRESULT VelRshDelegatedQuery(VelBaseUnknown* iExtension, const VelInterfaceId* iInterface, VelBaseUnknown** oInterface);

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_VELRSHDELEGATEDQUERY_H
