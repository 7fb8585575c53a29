# SPDX-FileCopyrightText: 2026 The VelRshModel authors
# SPDX-License-Identifier: Apache-2.0
#
# One target, VelCompileOptions, that every library and program of the system links: language, warnings, floating point.
option(VEL_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(VEL_CCACHE "Compile through ccache where it is installed" ON)

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Release, Debug or None" FORCE)
endif()

# -O2, not -O3: it is faster to build, no slower here, and free of false alarms about strings.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

find_program(VEL_CCACHE_PROGRAM ccache)
if(VEL_CCACHE AND VEL_CCACHE_PROGRAM)
  # The sloppiness is what lets ccache reuse objects that were compiled with a precompiled header.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
      CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${VEL_CCACHE_PROGRAM})
endif()

add_library(VelCompileOptions INTERFACE)
target_compile_options(
  VelCompileOptions
  INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror -ffp-contract=off
            # Calls between libraries go straight through their address; a library's calls to itself are direct.
            -fno-plt $<$<CXX_COMPILER_ID:GNU>:-fno-semantic-interposition>
            # What a precompiled header needs so that ccache can see through it.
            $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess> $<$<CXX_COMPILER_ID:Clang>:-fpch-instantiate-templates>)
if(VEL_SANITIZE)
  target_compile_options(VelCompileOptions INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined)
  target_link_options(VelCompileOptions INTERFACE -fsanitize=address,undefined)
endif()
