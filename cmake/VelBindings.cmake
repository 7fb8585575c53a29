# SPDX-FileCopyrightText: 2026 The VelRshModel authors
# SPDX-License-Identifier: Apache-2.0
#
# vel_dictionary(<target> GRID <file>): builds the dictionary file of a module from its binding grid, in the folder
# lib/dictionaries of the build, and makes the target depend on it. The file names the library by its place beside that folder,
# so the target is put into lib. The grid's path is the one by which the target's own sources include it. Works for targets outside
# this repository too, which include this file; docs/embedding.md shows one.
set(VEL_BINDINGS_ROOT "${CMAKE_CURRENT_LIST_DIR}/.." CACHE INTERNAL "Where the platform's headers are found")

function(vel_dictionary target)
  cmake_parse_arguments(ARG "" "GRID" "" ${ARGN})
  set(folder "${CMAKE_BINARY_DIR}/lib/dictionaries")
  file(MAKE_DIRECTORY "${folder}")
  set_target_properties(${target} PROPERTIES LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
  set(printer "${target}_dictionary")
  set(source "${CMAKE_CURRENT_BINARY_DIR}/${printer}.cpp")
  set(dictionary "${folder}/${target}.dictionary")
  set(library "lib${target}.so")
  get_target_property(soversion ${target} SOVERSION)
  if(NOT soversion STREQUAL "soversion-NOTFOUND")
    string(APPEND library ".${soversion}")
  endif()
  file(CONFIGURE OUTPUT "${source}" @ONLY CONTENT
       "#define VEL_GRID_FILE \"@ARG_GRID@\"\n#define VEL_GRID_LIBRARY \"../@library@\"
#include \"platform/objectmodeler/VelBindingGridText.inl\"\n")
  add_executable(${printer} "${source}")
  target_include_directories(${printer} PRIVATE "${VEL_BINDINGS_ROOT}" $<TARGET_PROPERTY:${target},INCLUDE_DIRECTORIES>)
  target_compile_features(${printer} PRIVATE cxx_std_20)
  add_custom_command(OUTPUT "${dictionary}" COMMAND ${printer} > "${dictionary}" DEPENDS ${printer} VERBATIM)
  add_custom_target(${target}_dictionary_file ALL DEPENDS "${dictionary}")
  add_dependencies(${target} ${target}_dictionary_file)
endfunction()
