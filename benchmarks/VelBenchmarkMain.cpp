// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelBenchmarkMain.cpp The main function of every benchmark program; it refuses to report from a debug build.
#include <cstdio>

#include <benchmark/benchmark.h>

int main(int argc, char** argv) {
#if !defined(NDEBUG)
  std::fputs("This is a debug build; its figures mean nothing. Build the preset 'release'.\n", stderr);
  return 1;
#endif
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
