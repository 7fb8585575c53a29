# SPDX-FileCopyrightText: 2026 The VelRshModel authors
# SPDX-License-Identifier: Apache-2.0
#
# The system as other projects use it, by find_package(VelRshModel): from an installation, which may be moved, or from this build
# for a project that takes part in it. Included when all libraries and programs are there.
include(CMakePackageConfigHelpers)

option(VEL_INSTALL "Install the libraries, programs and headers" ${PROJECT_IS_TOP_LEVEL})

set(vel_linked_libraries VelPlatform VelRshInterfaces VelRshModel VelRshHost)
set(vel_opened_libraries VelPlatformDocuments VelPlatformFiles VelPlatformImages)  # through their dictionaries alone

foreach(library IN LISTS vel_linked_libraries)
  add_library(VelRshModel::${library} ALIAS ${library})
endforeach()
file(WRITE "${CMAKE_FIND_PACKAGE_REDIRECTS_DIR}/VelRshModelConfig.cmake"
     "set(VelRshModel_DICTIONARIES \"${CMAKE_BINARY_DIR}/lib/dictionaries\")\n")
write_basic_package_version_file("${CMAKE_FIND_PACKAGE_REDIRECTS_DIR}/VelRshModelConfigVersion.cmake"
                                 COMPATIBILITY SameMinorVersion)

if(VEL_INSTALL)
  include(VelInstall)
endif()
