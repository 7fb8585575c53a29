# SPDX-FileCopyrightText: 2026 The VelRshModel authors
# SPDX-License-Identifier: Apache-2.0
#
# vel_library(<name> [DEFINE <macro>]): a shared library of the system, versioned where the project is, with hidden visibility,
# seen from outside by the project's root as include folder. <macro> is what its export header tests to tell building from
# using; a library without an export header needs none.
include(GNUInstallDirs)

function(vel_library name)
  cmake_parse_arguments(ARG "" "DEFINE" "" ${ARGN})
  add_library(${name} SHARED)
  target_link_libraries(${name} PRIVATE VelCompileOptions)
  target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
                                            $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/velrsh>)
  if(ARG_DEFINE)
    target_compile_definitions(${name} PRIVATE ${ARG_DEFINE})
  endif()
  target_compile_features(${name} PUBLIC cxx_std_20)
  if(PROJECT_VERSION)
    set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  endif()
  set_target_properties(${name} PROPERTIES LINK_OPTIONS "-Wl,--no-undefined")
  if(VEL_SANITIZE)
    # The sanitizer's runtime is in the program, so a library of a sanitizer build has undefined symbols.
    set_target_properties(${name} PROPERTIES LINK_OPTIONS "")
  endif()
endfunction()
