# SPDX-FileCopyrightText: 2026 The VelRshModel authors
# SPDX-License-Identifier: Apache-2.0
#
# vel_test(<name> SOURCES <files> [LIBRARIES <targets>]): one test program. It is run twice, the second time under a
# locale whose decimal point is a comma, because neither formatting nor parsing may depend on the process locale.
find_package(GTest REQUIRED)
find_program(VEL_LOCALEDEF localedef REQUIRED)

set(VEL_LOCALE_FOLDER "${CMAKE_BINARY_DIR}/locales")
if(NOT EXISTS "${VEL_LOCALE_FOLDER}/de_DE.UTF-8/LC_NUMERIC")
  file(MAKE_DIRECTORY "${VEL_LOCALE_FOLDER}")
  execute_process(COMMAND ${VEL_LOCALEDEF} -i de_DE -f UTF-8 "${VEL_LOCALE_FOLDER}/de_DE.UTF-8"
                  RESULT_VARIABLE locale_result ERROR_VARIABLE locale_error OUTPUT_QUIET)
  if(NOT EXISTS "${VEL_LOCALE_FOLDER}/de_DE.UTF-8/LC_NUMERIC")
    message(FATAL_ERROR "The comma locale of the tests could not be made (package 'locales' missing?): ${locale_error}")
  endif()
endif()

function(vel_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES;DEPENDS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE VelCompileOptions VelTestSupport ${ARG_LIBRARIES})
  if(ARG_DEPENDS)
    add_dependencies(${name} ${ARG_DEPENDS})
  endif()
  add_test(NAME ${name} COMMAND ${name})
  add_test(NAME ${name}_comma_locale COMMAND ${name})
  set_tests_properties(
    ${name}_comma_locale
    PROPERTIES ENVIRONMENT "LOCPATH=${VEL_LOCALE_FOLDER};LC_ALL=de_DE.UTF-8;VEL_TEST_COMMA_LOCALE=1")
endfunction()
