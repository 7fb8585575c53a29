// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPlatformDocumentsBindings.cpp What the module exports, made from its grid.
#include "platform/documents/TIEVelIDocumentStore.h"
#include "platform/documents/TIEVelIPLMDmtDocument.h"
#include "platform/documents/TIEVelIRepLifeCycle.h"
#include "platform/documents/store/VelMemoryDocument.h"
#include "platform/documents/store/VelMemoryDocumentStore.h"

#define VEL_GRID_FILE "platform/documents/store/bindings/VelPlatformDocuments.def"
#include "platform/objectmodeler/VelBindingGrid.inl"
