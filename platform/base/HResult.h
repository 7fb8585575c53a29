// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file HResult.h The result codes that every operation across an interface returns.
#ifndef PLATFORM_BASE_HRESULT_H
#define PLATFORM_BASE_HRESULT_H

#include <cstdint>

/// A result code: success is any non-negative value. The type itself is [[nodiscard]], so no operation that returns a
/// code can be called with the code forgotten. Other modules may hand out codes that are not named here.
enum [[nodiscard]] HRESULT : std::int32_t{
    S_OK = 0,                                                ///< Done.
    S_FALSE = 1,                                             ///< Done, and nothing changed.
    E_NOINTERFACE = static_cast<std::int32_t>(0x80004002U),  ///< The object does not answer that interface.
    E_FAIL = static_cast<std::int32_t>(0x80004005U),         ///< The generic failure.
    E_UNEXPECTED = static_cast<std::int32_t>(0x8000FFFFU),   ///< The object is not in the state that the call needs.
    E_INVALIDARG = static_cast<std::int32_t>(0x80070057U),   ///< An argument is not one that the operation takes.
};

/// @return true for S_OK, S_FALSE and every other non-negative code.
constexpr bool SUCCEEDED(HRESULT iCode) noexcept { return static_cast<std::int32_t>(iCode) >= 0; }

/// @return true for every negative code.
constexpr bool FAILED(HRESULT iCode) noexcept { return static_cast<std::int32_t>(iCode) < 0; }

/// Hands a failure on to the caller: the one propagation helper of the system.
#define VEL_RETURN_IF_FAILED(expression)                                       \
  do {                                                                         \
    if (const HRESULT velCode = (expression); FAILED(velCode)) return velCode; \
  } while (false)

#endif  // PLATFORM_BASE_HRESULT_H
