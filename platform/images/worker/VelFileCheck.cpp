// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFileCheck.cpp Finds the check of a format.
#include "platform/images/worker/VelFileCheck.h"

#include <algorithm>
#include <array>

#include "platform/images/worker/VelWorkerPicture.h"

namespace {

struct Row {
  VelImageKind kind;
  HRESULT (*check)(std::string_view, VelFileCheck::Outcome&, std::string&);
};

constexpr std::array rows{
    Row{VelImageKind::Bmp, &VelFileCheck::CheckBmp}, Row{VelImageKind::Gif, &VelFileCheck::CheckGif},
    Row{VelImageKind::Tga, &VelFileCheck::CheckTga}, Row{VelImageKind::Pnm, &VelFileCheck::CheckPnm},
    Row{VelImageKind::Ico, &VelFileCheck::CheckIco},
};

}  // namespace

HRESULT VelFileCheck::Check(VelImageKind iKind, std::string_view iFile, Outcome& oOutcome, std::string& oCause) {
  const auto row = std::ranges::find(rows, iKind, &Row::kind);
  if (row == rows.end()) {
    oCause = std::string("is a file of kind ") + NameOfImageKind(iKind) + ", which is not read here";
    return E_INVALIDARG;
  }
  oOutcome = {};
  VEL_RETURN_IF_FAILED(row->check(iFile, oOutcome, oCause));
  return VelWorkerPicture::CheckSize(oOutcome.width, oOutcome.height, oCause);
}

HRESULT VelFileCheck::RefuseCut(VelImageKind iKind, std::string& oCause) {
  return RefuseForm(iKind, "it ends before its picture does", oCause);
}

HRESULT VelFileCheck::RefuseForm(VelImageKind iKind, std::string_view iWhat, std::string& oCause) {
  oCause = std::string("is no ") + NameOfImageKind(iKind) + " file that is read: " + std::string(iWhat);
  return E_FAIL;
}
