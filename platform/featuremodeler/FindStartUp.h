// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file FindStartUp.h Finds the start-up of a type name.
#ifndef PLATFORM_FEATUREMODELER_FINDSTARTUP_H
#define PLATFORM_FEATUREMODELER_FINDSTARTUP_H

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelString.h"
#include "platform/featuremodeler/VelIContainer.h"

/// Finds a start-up in the catalogs that a container knows. It loads none.
/// @param[in] iInterface the name of the interface as which the start-up is handed out, for instance "VelISpecObject"
/// @param[in] iClient the identifier of the client; every client sees the same start-ups, so it is the empty text
/// @param[in] iType the start-up's name
/// @param[out] oStartUp the start-up with one reference for the caller; null on failure
/// @return S_OK; E_INVALIDARG when oStartUp is null or the container is none of this modeler; E_FAIL when no catalog of
///         the container declares the start-up; E_NOINTERFACE when it does not answer the interface, or iInterface is
///         null
VEL_PLATFORM_API HRESULT FindStartUp(const char* iInterface, const VelString& iClient, const VelString& iType,
                                     VelIContainer& iContainer, VelBaseUnknown** oStartUp);

#endif  // PLATFORM_FEATUREMODELER_FINDSTARTUP_H
