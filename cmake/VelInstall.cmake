# SPDX-FileCopyrightText: 2026 The VelRshModel authors
# SPDX-License-Identifier: Apache-2.0
#
# What an installation holds, and where. All ways inside of it are relative, so that it can be moved as a whole.
set(vel_headers "${CMAKE_INSTALL_INCLUDEDIR}/velrsh")
set(vel_dictionaries "${CMAKE_INSTALL_LIBDIR}/dictionaries")
set(vel_share "${CMAKE_INSTALL_DATADIR}/velrsh")
set(vel_documentation "${CMAKE_INSTALL_DATAROOTDIR}/doc/velrsh")
set(vel_package "${CMAKE_INSTALL_LIBDIR}/cmake/VelRshModel")

# The folders whose own headers and grids others may include; what stands below them in further folders is private.
set(vel_public_folders
    platform/base
    platform/trace
    platform/objectmodeler
    platform/events
    platform/featuremodeler
    platform/configuration
    platform/session
    platform/documents
    platform/images
    platform/materials
    platform/viewer
    platform/substance
    RenderingShader/interfaces
    RenderingShader/VelRshModel.m/include
    host
    host/refresh)
# Private folders' headers that public ones include.
set(vel_public_headers platform/base/system/VelSystemAppendFile.h)

# A library and the dictionary that it is opened by, where it has one.
function(vel_install_library library)
  set_target_properties(${library} PROPERTIES INSTALL_RPATH "$ORIGIN")
  install(TARGETS ${library} ${ARGN} LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
  get_target_property(dictionary ${library} VEL_DICTIONARY_FILE)
  if(dictionary)
    install(FILES "${dictionary}" DESTINATION "${vel_dictionaries}")
  endif()
endfunction()

# A program of an installation's folder, which finds the libraries from there.
function(vel_install_program program folder)
  file(RELATIVE_PATH libraries "${CMAKE_INSTALL_PREFIX}/${folder}" "${CMAKE_INSTALL_FULL_LIBDIR}")
  set_target_properties(${program} PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
  install(TARGETS ${program} RUNTIME DESTINATION "${folder}")
endfunction()

foreach(library IN LISTS vel_linked_libraries)
  target_include_directories(${library} INTERFACE $<INSTALL_INTERFACE:${vel_headers}>)
  vel_install_library(${library} EXPORT VelRshModelTargets)
endforeach()
if(VEL_SANITIZE)
  set(sanitizers -fsanitize=address,undefined)
  target_compile_options(VelPlatform INTERFACE $<INSTALL_INTERFACE:${sanitizers}>)
  target_link_options(VelPlatform INTERFACE $<INSTALL_INTERFACE:${sanitizers}>)
endif()
foreach(library IN LISTS vel_opened_libraries)
  if(TARGET ${library})
    vel_install_library(${library})
  endif()
endforeach()
if(TARGET velrsh-image-worker)
  vel_install_program(velrsh-image-worker "${CMAKE_INSTALL_LIBEXECDIR}/velrsh")
endif()

# A name without a dot is that of a folder.
foreach(folder IN LISTS vel_public_folders)
  install(DIRECTORY "${folder}/" DESTINATION "${vel_headers}/${folder}"
          FILES_MATCHING REGEX "\\.(h|def|inl)$" REGEX "/${folder}/[^./]+$" EXCLUDE)
endforeach()
foreach(header IN LISTS vel_public_headers)
  cmake_path(GET header PARENT_PATH folder)
  install(FILES "${header}" DESTINATION "${vel_headers}/${folder}")
endforeach()

install(DIRECTORY catalogs/ DESTINATION "${vel_share}/catalogs" FILES_MATCHING PATTERN "*.feat")
install(DIRECTORY share/velrsh/ DESTINATION "${vel_share}")
install(FILES LICENSE NOTICE DESTINATION "${vel_documentation}")

set(vel_sanitized ${VEL_SANITIZE})
configure_package_config_file(
  cmake/VelRshModelConfig.cmake.in "${PROJECT_BINARY_DIR}/package/VelRshModelConfig.cmake"
  INSTALL_DESTINATION "${vel_package}" PATH_VARS vel_dictionaries)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/package/VelRshModelConfigVersion.cmake"
                                 COMPATIBILITY SameMinorVersion)
install(EXPORT VelRshModelTargets NAMESPACE VelRshModel:: DESTINATION "${vel_package}")
install(
  FILES "${PROJECT_BINARY_DIR}/package/VelRshModelConfig.cmake"
        "${PROJECT_BINARY_DIR}/package/VelRshModelConfigVersion.cmake" cmake/VelBindings.cmake cmake/VelLibrary.cmake
  DESTINATION "${vel_package}")
