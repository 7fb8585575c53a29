// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelViewerInterfaces.cpp The identifiers of the interfaces that the viewer asks for.
#include "platform/viewer/VelIHardwareMaterial.h"
#include "platform/viewer/VelIOpenGLShaderMaterial.h"
#include "platform/viewer/VelIRmaMappingManipulator.h"
#include "platform/viewer/VelIRmaMappingManipulatorMaterial.h"
#include "platform/viewer/VelIRmaVisuResourceImage.h"
#include "platform/viewer/VelIRmaVisuTextureCoordinateTransformation.h"

const VelInterfaceId IID_VelIHardwareMaterial{"VelIHardwareMaterial", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIOpenGLShaderMaterial{"VelIOpenGLShaderMaterial", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRmaMappingManipulator{"VelIRmaMappingManipulator", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRmaMappingManipulatorMaterial{"VelIRmaMappingManipulatorMaterial", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRmaVisuResourceImage{"VelIRmaVisuResourceImage", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRmaVisuTextureCoordinateTransformation{"VelIRmaVisuTextureCoordinateTransformation",
                                                                    IID_VelBaseUnknown};
