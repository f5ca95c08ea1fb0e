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

# A library that others link, as OrvCameraGuiApi::<target> in CMake (in this build tree, too) and
# <name> in pkg-config. Its headers are in a folder named like the target.
function(orv_install_library target name)
    add_library(OrvCameraGuiApi::${target} ALIAS ${target})
    orv_set_runpath(${target} "$ORIGIN")
    if(NOT ORV_INSTALL)
        return()
    endif()
    target_include_directories(${target} INTERFACE
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/${target}>)
    install(TARGETS ${target} EXPORT OrvCameraGuiApiTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
    set(folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
    # Found by way of the file itself, so that the installation can be moved.
    file(RELATIVE_PATH ORV_PREFIX_FROM_PKGCONFIG "/${folder}" "/")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in"
        "${PROJECT_BINARY_DIR}/${name}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${name}.pc"
        DESTINATION ${folder})
endfunction()

# The package for find_package(OrvCameraGuiApi).
function(orv_install_package)
    set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/OrvCameraGuiApi)
    configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/OrvCameraGuiApiConfig.cmake.in"
        "${PROJECT_BINARY_DIR}/OrvCameraGuiApiConfig.cmake" INSTALL_DESTINATION ${folder})
    write_basic_package_version_file("${PROJECT_BINARY_DIR}/OrvCameraGuiApiConfigVersion.cmake"
        COMPATIBILITY SameMajorVersion)
    install(EXPORT OrvCameraGuiApiTargets NAMESPACE OrvCameraGuiApi:: DESTINATION ${folder})
    install(FILES "${PROJECT_BINARY_DIR}/OrvCameraGuiApiConfig.cmake"
                  "${PROJECT_BINARY_DIR}/OrvCameraGuiApiConfigVersion.cmake"
        DESTINATION ${folder})
endfunction()
