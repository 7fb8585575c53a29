# SPDX-FileCopyrightText: 2026 The VelRshModel authors
# SPDX-License-Identifier: Apache-2.0
#
# vel_dictionary(<target> GRID <file>): builds the dictionary file of a module from its binding grid, in the folder
# lib/dictionaries of the build, and makes the target depend on it. The file names the library by its place beside that folder,
# so the target is put into lib. The grid's path is the one by which the target's own sources include it. The target's property
# VEL_DICTIONARY_FILE tells where the file is, for an installation. Part of the package: docs/plugins.md shows a module that
# uses it.
function(vel_dictionary target)
  cmake_parse_arguments(ARG "" "GRID" "" ${ARGN})
  set(folder "${CMAKE_BINARY_DIR}/lib/dictionaries")
  file(MAKE_DIRECTORY "${folder}")
  set(printer "${target}_dictionary")
  set(source "${CMAKE_CURRENT_BINARY_DIR}/${printer}.cpp")
  set(dictionary "${folder}/${target}.dictionary")
  set_target_properties(${target} PROPERTIES LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib"
                                             VEL_DICTIONARY_FILE "${dictionary}")
  set(library "lib${target}.so")
  get_target_property(soversion ${target} SOVERSION)
  if(NOT soversion STREQUAL "soversion-NOTFOUND")
    string(APPEND library ".${soversion}")
  endif()
  file(CONFIGURE OUTPUT "${source}" @ONLY CONTENT
       "#define VEL_GRID_FILE \"@ARG_GRID@\"\n#define VEL_GRID_LIBRARY \"../@library@\"
#include \"platform/objectmodeler/VelBindingGridText.inl\"\n")
  add_executable(${printer} "${source}")
  # Those of the libraries that the target links are among them, the platform's headers too.
  target_include_directories(${printer} PRIVATE $<TARGET_PROPERTY:${target},INCLUDE_DIRECTORIES>)
  target_compile_features(${printer} PRIVATE cxx_std_20)
  add_custom_command(OUTPUT "${dictionary}" COMMAND ${printer} > "${dictionary}" DEPENDS ${printer} VERBATIM)
  add_custom_target(${target}_dictionary_file ALL DEPENDS "${dictionary}")
  add_dependencies(${target} ${target}_dictionary_file)
endfunction()
