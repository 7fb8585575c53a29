// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshInterfaceIds.cpp The identifiers of the interfaces.
#include "RenderingShader/interfaces/VelIAlias.h"
#include "RenderingShader/interfaces/VelIRmaShaderFactory.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshParameterDialog.h"
#include "RenderingShader/interfaces/VelIRshParameterImmLayout.h"
#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "RenderingShader/interfaces/VelIRshParameterPublisher.h"
#include "RenderingShader/interfaces/VelIRshParameterSubscriber.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "RenderingShader/interfaces/VelIRshShaderFactory.h"
#include "RenderingShader/interfaces/VelIRshShaderLink.h"
#include "RenderingShader/interfaces/VelIRshShaderPrivate.h"
#include "RenderingShader/interfaces/VelIRshShaderPublisher.h"
#include "RenderingShader/interfaces/VelIRshShaderResources.h"
#include "RenderingShader/interfaces/VelIRshShaderSubscriber.h"
#include "RenderingShader/interfaces/VelIRshShaderSupport.h"

const VelInterfaceId IID_VelIAlias{"VelIAlias", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRshParameter{"VelIRshParameter", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRshParameterDialog{"VelIRshParameterDialog", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRshParameterImmLayout{"VelIRshParameterImmLayout", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRshParameterPrivate{"VelIRshParameterPrivate", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRshParameterPublisher{"VelIRshParameterPublisher", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRshParameterSubscriber{"VelIRshParameterSubscriber", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRshShader{"VelIRshShader", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRshShaderLink{"VelIRshShaderLink", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRshShaderPrivate{"VelIRshShaderPrivate", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRshShaderPublisher{"VelIRshShaderPublisher", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRshShaderResources{"VelIRshShaderResources", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRshShaderSubscriber{"VelIRshShaderSubscriber", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRshShaderSupport{"VelIRshShaderSupport", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRshShaderFactory{"VelIRshShaderFactory", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRmaShaderFactory{"VelIRmaShaderFactory", IID_VelIRshShaderFactory};
