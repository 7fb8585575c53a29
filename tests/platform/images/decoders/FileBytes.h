// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file FileBytes.h Puts files together byte by byte.
#ifndef TESTS_PLATFORM_IMAGES_DECODERS_FILEBYTES_H
#define TESTS_PLATFORM_IMAGES_DECODERS_FILEBYTES_H

#include <cstdint>
#include <initializer_list>
#include <string>

/// Bytes of the given numbers, 0 to 255 each.
std::string BytesOf(std::initializer_list<int> iBytes);

/// The lowest bytes of a number, the highest of them first.
std::string BigEndian(std::uint64_t iNumber, int iBytes);

/// The lowest bytes of a number, the lowest of them first.
std::string LittleEndian(std::uint64_t iNumber, int iBytes);

/// A number of 32 bits, lowest byte first.
std::string FloatBytes(float iNumber);

/// The whole of a file that the tests came with.
/// @param[in] iName such as "grey.jpg"
std::string ReadTestFile(const std::string& iName);

#endif  // TESTS_PLATFORM_IMAGES_DECODERS_FILEBYTES_H
