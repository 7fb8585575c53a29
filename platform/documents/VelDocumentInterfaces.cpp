// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDocumentInterfaces.cpp The identifiers of the interfaces of documents.
#include "platform/documents/VelIDocumentStore.h"
#include "platform/documents/VelIPLMDmtDocument.h"
#include "platform/documents/VelIRepLifeCycle.h"

const VelInterfaceId IID_VelIPLMDmtDocument{"VelIPLMDmtDocument", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIRepLifeCycle{"VelIRepLifeCycle", IID_VelBaseUnknown};
const VelInterfaceId IID_VelIDocumentStore{"VelIDocumentStore", IID_VelBaseUnknown};
