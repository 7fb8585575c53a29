# SPDX-FileCopyrightText: 2026 The VelRshModel authors
# SPDX-License-Identifier: Apache-2.0
#
# vel_library(<name> [DEFINE <macro>]): a shared library with hidden visibility, versioned where its project is, that sees its
# project's root as include folder and shows it to whoever links it. <macro> is what its export header tests to tell building
# from using; a library without an export header needs none. Part of the package: modules of other projects are made by it too.
function(vel_library name)
  cmake_parse_arguments(ARG "" "DEFINE" "" ${ARGN})
  add_library(${name} SHARED)
  if(TARGET VelCompileOptions)
    target_link_libraries(${name} PRIVATE VelCompileOptions)
  endif()
  target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
  if(ARG_DEFINE)
    target_compile_definitions(${name} PRIVATE ${ARG_DEFINE})
  endif()
  target_compile_features(${name} PUBLIC cxx_std_20)
  set_target_properties(${name} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  if(PROJECT_VERSION)
    set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  endif()
  if(NOT VEL_SANITIZE)
    # The sanitizer's runtime is in the program, so a library of a sanitizer build has undefined symbols.
    set_target_properties(${name} PROPERTIES LINK_OPTIONS "-Wl,--no-undefined")
  endif()
endfunction()
