# SPDX-License-Identifier: MIT
# Installation of the libraries for use in other projects.
include(CMakePackageConfigHelpers)

# install(), unless a parent project installs nothing of this one.
macro(orv_install)
    if(ORV_INSTALL)
        install(${ARGN})
    endif()
endmacro()

# The run path to the libraries, which must be the same in the build folder and installed. To
# replace one by the other, CMake would add an empty element, which means the current directory.
function(orv_set_runpath target path)
    set_target_properties(${target} PROPERTIES
        INSTALL_RPATH "${path}" BUILD_WITH_INSTALL_RPATH ON)
endfunction()

# Installs a library, as OrvCameraGuiApi::<name> for CMake (in this build tree as well) and <pc> for
# pkg-config. The folder of its headers and its CMake package have the same name.
function(orv_install_library target name pc pcFile)
    add_library(OrvCameraGuiApi::${name} ALIAS ${target})
    if(NOT name STREQUAL target) # a program in this build tree need not know which Qt it is
        add_library(OrvCameraGuiApi::${target} ALIAS ${target})
    endif()
    orv_set_runpath(${target} "$ORIGIN")
    if(NOT ORV_INSTALL)
        return()
    endif()
    target_include_directories(${target} INTERFACE
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/${name}>)
    install(TARGETS ${target} EXPORT ${name}Targets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
    set(folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
    # Relative to the .pc file, so that the installation can be moved.
    file(RELATIVE_PATH ORV_PREFIX_FROM_PKGCONFIG "/${folder}" "/")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/${pcFile}" "${PROJECT_BINARY_DIR}/${pc}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${pc}.pc" DESTINATION ${folder})
    orv_install_package(${name} ${target})
endfunction()

# The package for find_package(<name>).
function(orv_install_package name target)
    set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/${name})
    configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/${target}Config.cmake.in"
        "${PROJECT_BINARY_DIR}/${name}Config.cmake" INSTALL_DESTINATION ${folder})
    write_basic_package_version_file("${PROJECT_BINARY_DIR}/${name}ConfigVersion.cmake"
        COMPATIBILITY SameMajorVersion)
    install(EXPORT ${name}Targets NAMESPACE OrvCameraGuiApi:: DESTINATION ${folder})
    install(FILES "${PROJECT_BINARY_DIR}/${name}Config.cmake"
                  "${PROJECT_BINARY_DIR}/${name}ConfigVersion.cmake"
        DESTINATION ${folder})
endfunction()
