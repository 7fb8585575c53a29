// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file QrnSysTrace.cpp Opens and closes channels and formats what they emit.
#include "platform/trace/QrnSysTrace.h"

#include "platform/trace/VelTraceRegistry.h"

void QrnSysTrace::Emit(VelTraceKind iKind, VelSourcePosition iPosition, const char* iFormat,
                       std::initializer_list<VelFormatArgument> iArguments) const noexcept {
  VelTraceRecord record;
  record.kind = iKind;
  record.position = {iPosition.source != nullptr ? iPosition.source : "", iPosition.line};
  VelTraceRegistry::Get().Emit(*this, record, iFormat, {iArguments.begin(), iArguments.size()});
}

QrnSysTrace* QrnSysTraceCreate(const char* iName) noexcept {
  if (iName == nullptr || *iName == '\0') return nullptr;
  return VelTraceRegistry::Get().Open(iName);
}

void QrnSysTraceDestroy(QrnSysTrace*& ioTrace) noexcept {
  if (ioTrace == nullptr) return;
  VelTraceRegistry::Get().Close(*ioTrace);
  ioTrace = nullptr;
}
