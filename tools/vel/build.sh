# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The VelRshModel authors
# SPDX-License-Identifier: Apache-2.0
#
# The commands that build and run: demo, test, bench.

demo_program=road_of_one_edit
test_presets="release debug core clang asan"

use_compiler_cache() {
  export CCACHE_DIR=${CCACHE_DIR:-$vel_root/.cache/ccache}
  export CCACHE_MAXSIZE=${CCACHE_MAXSIZE:-2G}
}

# Configures and builds one preset into build/<preset>.
build_preset() {
  use_compiler_cache
  cmake --preset "$1" --log-level=WARNING >/dev/null
  cmake --build --preset "$1" --parallel "$jobs"
}

demo_command() {
  expect_no_arguments "$@"
  set_up demo
  build_preset demo
  "build/demo/bin/$demo_program" "build/demo/$demo_program"
}

test_command() {
  local preset=release long=no
  while (($# > 0)); do
    case "$1" in
      --preset) preset=${2:-} && shift ;;
      --preset=*) preset=${1#*=} ;;
      --long) long=yes ;;
      *) wrong_usage "'$1' is not an option of test" ;;
    esac
    shift || wrong_usage "--preset wants a name"
  done
  [[ -n $preset && " $test_presets " == *" $preset "* ]] || wrong_usage "there is no test preset '$preset'"
  run_tests "$preset"
  [[ $long == no ]] || fuzz_long
}

run_tests() {
  set_up "$1"
  build_preset "$1"
  ctest --preset "$1" --no-tests=error -j "$jobs"
}

# One entry of the release build's CMake cache.
release_cache_entry() { sed -n "s/^$1:[A-Z]*=//p" build/release/CMakeCache.txt; }

# A figure from any other build would be read as one of this.
expect_release_build() {
  local type sanitized
  type=$(release_cache_entry CMAKE_BUILD_TYPE)
  sanitized=$(release_cache_entry VEL_SANITIZE)
  [[ $type == Release && $sanitized != ON ]] ||
    fail "no figures from this build: build type '$type', sanitizers '${sanitized:-OFF}'"
}

bench_command() {
  local filter=${1:-.} program ran=no compiler
  expect_no_arguments "${@:2}"
  set_up bench
  build_preset release
  expect_release_build
  compiler=$("$(release_cache_entry CMAKE_CXX_COMPILER)" --version | head -n 1)
  echo "machine: $(machine_name); compiler: $compiler; build: Release; commit: $(commit_name)"
  for program in build/release/bin/*_bench; do
    [[ -x $program ]] || continue
    ran=yes
    "$program" --benchmark_filter="$filter"
  done
  [[ $ran == yes ]] || fail "there is no program build/release/bin/*_bench"
}
