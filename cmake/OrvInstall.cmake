# SPDX-License-Identifier: MIT
# What other projects need to find and use the installed libraries.
include(CMakePackageConfigHelpers)

# install(), unless a project of which this is a part installs nothing of it.
macro(orv_install)
    if(ORV_INSTALL)
        install(${ARGN})
    endif()
endmacro()

# Where a target finds our libraries, in the build folder and installed. It must be the same in
# both: to be able to replace one by the other CMake would put an empty element into the list, and
# that is the current directory.
function(orv_set_runpath target path)
    set_target_properties(${target} PROPERTIES
        INSTALL_RPATH "${path}" BUILD_WITH_INSTALL_RPATH ON)
endfunction()

# A library that others link, as OrvCameraGuiApi::<name> in CMake (in this build tree, too) and <pc>
# in pkg-config. Its headers are in a folder of that name, and so is its package for CMake.
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
    # Found by way of the file itself, so that the installation can be moved.
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
