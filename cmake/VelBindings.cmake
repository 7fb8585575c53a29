# SPDX-FileCopyrightText: 2026 The VelRshModel authors
# SPDX-License-Identifier: Apache-2.0
#
# vel_dictionary(<target> GRID <file> [OUTPUT_NAME <file name>]): builds the dictionary file of a module from its binding
# grid, in the folder lib/dictionaries of the build, beside the libraries' folder, and makes the target depend on it.
set(VEL_DICTIONARY_FOLDER "${CMAKE_BINARY_DIR}/lib/dictionaries")
file(MAKE_DIRECTORY "${VEL_DICTIONARY_FOLDER}")

function(vel_dictionary target)
  cmake_parse_arguments(ARG "" "GRID" "" ${ARGN})
  set(printer "${target}_dictionary")
  set(source "${CMAKE_CURRENT_BINARY_DIR}/${printer}.cpp")
  set(dictionary "${VEL_DICTIONARY_FOLDER}/${target}.dictionary")
  file(CONFIGURE OUTPUT "${source}" @ONLY CONTENT
       "#define VEL_GRID_FILE \"@ARG_GRID@\"\n#define VEL_GRID_LIBRARY \"../lib@target@.so\"
#include \"platform/objectmodeler/VelBindingGridText.inl\"\n")
  add_executable(${printer} "${source}")
  target_include_directories(${printer} PRIVATE "${PROJECT_SOURCE_DIR}")
  target_compile_features(${printer} PRIVATE cxx_std_20)
  add_custom_command(OUTPUT "${dictionary}" COMMAND ${printer} > "${dictionary}" DEPENDS ${printer} VERBATIM)
  add_custom_target(${target}_dictionary_file ALL DEPENDS "${dictionary}")
  add_dependencies(${target} ${target}_dictionary_file)
endfunction()
