// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFileCheck_Pnm.cpp The form of PBM, PGM and PPM files.
#include <algorithm>
#include <cstddef>

#include "platform/images/worker/VelFileCheck.h"
#include "platform/images/worker/VelWorkerPicture.h"

namespace {

constexpr VelImageKind kind = VelImageKind::Pnm;
constexpr std::int64_t tooLarge = 1'000'000;

/// The numbers of a head, and those of pictures that are written as text.
class Numbers {
 public:
  explicit Numbers(std::string_view iFile) : file_(iFile) {}

  std::size_t Place() const { return place_; }

  /// @return the next number, at most tooLarge; -1 when there is none
  std::int64_t Next() {
    SkipBlanks();
    if (!IsDigit()) return -1;
    std::int64_t number = 0;
    for (; IsDigit(); ++place_) number = number < tooLarge ? 10 * number + (file_[place_] - '0') : tooLarge;
    return number < tooLarge ? number : tooLarge;
  }

  /// @return true when there is one more digit, which is a number by itself
  bool SkipDigit() {
    SkipBlanks();
    if (!IsDigit()) return false;
    ++place_;
    return true;
  }

 private:
  bool IsDigit() const { return place_ < file_.size() && '0' <= file_[place_] && file_[place_] <= '9'; }

  void SkipBlanks() {
    constexpr std::string_view blanks = " \t\r\n\v\f";
    while (place_ < file_.size()) {
      if (file_[place_] == '#') {
        place_ = std::min(file_.find_first_of("\r\n", place_), file_.size());
      } else if (blanks.find(file_[place_]) != std::string_view::npos) {
        ++place_;
      } else {
        return;
      }
    }
  }

  std::string_view file_;
  std::size_t place_ = 2;
};

bool IsTextWhole(Numbers& ioNumbers, bool iIsOfDigits, std::int64_t iCount) {
  for (std::int64_t i = 0; i < iCount; ++i) {
    if (iIsOfDigits ? !ioNumbers.SkipDigit() : ioNumbers.Next() < 0) return false;
  }
  return true;
}

}  // namespace

HRESULT VelFileCheck::CheckPnm(std::string_view iFile, Outcome& oOutcome, std::string& oCause) {
  const char form = iFile.size() > 2 && iFile[0] == 'P' ? iFile[1] : '0';
  if (form < '1' || form > '6') return RefuseForm(kind, "its head is not known", oCause);
  const bool isBits = form == '1' || form == '4';
  const bool isColor = form == '3' || form == '6';
  Numbers numbers(iFile);
  oOutcome.width = numbers.Next();
  oOutcome.height = numbers.Next();
  const std::int64_t largest = isBits ? 1 : numbers.Next();
  if (oOutcome.width < 0 || oOutcome.height < 0 || largest < 0) return RefuseCut(kind, oCause);
  VEL_RETURN_IF_FAILED(VelWorkerPicture::CheckSize(oOutcome.width, oOutcome.height, oCause));
  constexpr std::int64_t mostLevels = 65535;
  if (largest < 1 || largest > mostLevels) return RefuseForm(kind, "its largest value is not 1 to 65535", oCause);
  const std::int64_t values = oOutcome.width * oOutcome.height * (isColor ? 3 : 1);
  if (form <= '3') return IsTextWhole(numbers, isBits, values) ? S_OK : RefuseCut(kind, oCause);
  const std::int64_t length = isBits ? (oOutcome.width + 7) / 8 * oOutcome.height : values * (largest > 255 ? 2 : 1);
  // One blank stands between the head and the pixels.
  return static_cast<std::int64_t>(iFile.size() - numbers.Place()) > length ? S_OK : RefuseCut(kind, oCause);
}
