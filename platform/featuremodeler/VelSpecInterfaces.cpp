// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSpecInterfaces.cpp The identifiers of the feature modeler's interfaces.
#include "platform/featuremodeler/LifeCycleObject.h"
#include "platform/featuremodeler/VelICatalogManager.h"
#include "platform/featuremodeler/VelIContainer.h"
#include "platform/featuremodeler/VelISpecAttrAccess.h"
#include "platform/featuremodeler/VelISpecObject.h"

const VelInterfaceId IID_LifeCycleObject{"LifeCycleObject", IID_VelBaseUnknown};
const VelInterfaceId IID_VelICatalogManager{"VelICatalogManager", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIContainer{"VelIContainer", IID_VelBaseUnknown};
const VelInterfaceId IID_VelISpecAttrAccess{"VelISpecAttrAccess", IID_VelBaseUnknown};
const VelInterfaceId IID_VelISpecObject{"VelISpecObject", IID_VelBaseUnknown};
