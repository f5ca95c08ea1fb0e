# SPDX-License-Identifier: MIT
# Common settings of all targets.

# The major version of Qt, and the names that contain it. The library for Qt 6 is a separate one,
# which can be installed beside that for Qt 5.
if(ORV_QT_MAJOR_VERSION EQUAL 5)
    set(ORV_QT_MINIMUM 5.5)
    set(ORV_GUI_NAME OrvCameraGuiApi)
    set(ORV_GUI_PKGCONFIG orvcameraguiapi)
elseif(ORV_QT_MAJOR_VERSION EQUAL 6)
    set(ORV_QT_MINIMUM 6.4)
    set(ORV_GUI_NAME OrvCameraGuiApiQt6)
    set(ORV_GUI_PKGCONFIG orvcameraguiapi-qt6)
else()
    message(FATAL_ERROR "ORV_QT_MAJOR_VERSION is '${ORV_QT_MAJOR_VERSION}'; it can be 5 or 6")
endif()
set(ORV_QT Qt${ORV_QT_MAJOR_VERSION})

# Finds parts of Qt. The targets are made global for a parent project, which links them with the
# libraries. A macro, because Qt's commands need the variables it sets.
macro(orv_find_qt)
    set(orv_new_parts "")
    foreach(part ${ARGN})
        if(NOT TARGET ${ORV_QT}::${part} AND NOT PROJECT_IS_TOP_LEVEL)
            list(APPEND orv_new_parts ${ORV_QT}::${part})
        endif()
    endforeach()
    find_package(${ORV_QT} ${ORV_QT_MINIMUM} REQUIRED COMPONENTS ${ARGN})
    if(orv_new_parts)
        set_target_properties(${orv_new_parts} PROPERTIES IMPORTED_GLOBAL ON)
    endif()
endmacro()

# Strict warnings and hardening for one target.
function(orv_target_defaults target)
    orv_harden(${target})
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wcast-align -Wformat=2 -Wundef -Wconversion
        -Wno-sign-conversion
        $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor>
        # GenApi's interfaces have virtual assignments, which implicit ones hide; gcc 13 and later
        # warn. Clang, which the preset fuzz uses, reports functions that are hidden by mistake.
        $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wno-overloaded-virtual>
        $<$<BOOL:${ORV_WERROR}>:-Werror>)
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_TO_ASCII QT_USE_QSTRINGBUILDER QT_DISABLE_DEPRECATED_BEFORE=0x050500)
endfunction()

# Exports the versioned names in a library's version script.
function(orv_export_only target script)
    target_link_options(${target} PRIVATE "LINKER:--version-script=${script}")
    set_target_properties(${target} PROPERTIES LINK_DEPENDS "${script}")
endfunction()

# The target orv_genapi provides the GenApi interface headers: by default this platform's, or those
# of the SDK in ORV_GENICAM_ROOT.
function(orv_add_genapi_headers)
    add_library(orv_genapi INTERFACE)
    if(ORV_GENICAM_ROOT)
        set(headers "${ORV_GENICAM_ROOT}/library/CPP/include")
        if(NOT EXISTS "${headers}/GenApi/GenApi.h")
            message(FATAL_ERROR
                "ORV_GENICAM_ROOT is '${ORV_GENICAM_ROOT}', but there is no "
                "library/CPP/include/GenApi/GenApi.h below it")
        endif()
        target_include_directories(orv_genapi SYSTEM INTERFACE "${headers}")
    else()
        target_include_directories(orv_genapi INTERFACE "${PROJECT_SOURCE_DIR}/platform/genapi")
    endif()
endfunction()

include(CheckLinkerFlag)
check_linker_flag(CXX -fuse-ld=lld ORV_LINKS_WITH_LLD)

# orv_add_test(NAME [XVFB] [NETNS] [STARTS_PROGRAMS] [THREADS] [TIMEOUT seconds] SOURCES file...
#              [LIBRARIES target...])
# Adds a QtTest program that runs offscreen. XVFB: it runs under a virtual X server. NETNS: it runs
# in a network namespace of its own and has the label wire. STARTS_PROGRAMS (implied by NETNS): it
# starts other programs, which the emulator for another processor cannot do. THREADS: it is of
# interest for the thread sanitizer (target tests-with-threads, label threads). TIMEOUT: 120 by
# default, ten times as long in the emulator.
function(orv_add_test name)
    cmake_parse_arguments(arg "XVFB;NETNS;STARTS_PROGRAMS;THREADS" "TIMEOUT" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON
        RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    orv_target_defaults(${name})
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} ${ORV_QT}::Test)
    # Most tests link all objects of the library, which takes lld a fifth of the time.
    if(ORV_LINKS_WITH_LLD)
        target_link_options(${name} PRIVATE -fuse-ld=lld)
    endif()
    # GLib's headers must come before Qt's.
    if(arg_LIBRARIES MATCHES "orv_gui_objects|OrvCameraGuiApi" AND NOT arg_LIBRARIES MATCHES ORV_ARAVIS)
        orv_precompile_test(${name})
    endif()
    if(CMAKE_CXX_FLAGS MATCHES "-fsanitize=.*address")
        target_sources(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests/support/keeplibraries.c")
        target_compile_definitions(${name} PRIVATE ORV_ADDRESS_SANITIZER)
    endif()
    set(command ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:${name}>)
    if(arg_XVFB)
        set(command "${PROJECT_SOURCE_DIR}/tests/support/with-xvfb.sh" ${command})
        # Qt's X plugin leaks memory of libX11 when it is unloaded. A sanitizer can name the
        # functions only if libX11 stays loaded.
        target_link_options(${name} PRIVATE LINKER:--no-as-needed)
        target_link_libraries(${name} PRIVATE X11)
    endif()
    if(arg_NETNS)
        set(command "${PROJECT_SOURCE_DIR}/tests/support/with-netns.sh" ${command})
    endif()
    add_test(NAME ${name} COMMAND ${command})
    if(arg_NETNS)
        set_property(TEST ${name} APPEND PROPERTY LABELS wire)
    endif()
    # X servers that start at the same time may choose the same number.
    if(arg_XVFB)
        set_tests_properties(${name} PROPERTIES RESOURCE_LOCK x-server)
    endif()
    if(arg_NETNS OR arg_STARTS_PROGRAMS)
        set_property(TEST ${name} APPEND PROPERTY LABELS starts-programs)
    endif()
    if(arg_THREADS)
        set_property(TEST ${name} APPEND PROPERTY LABELS threads)
        add_dependencies(tests-with-threads ${name})
    endif()
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 120)
    endif()
    if(CMAKE_CROSSCOMPILING)
        math(EXPR arg_TIMEOUT "${arg_TIMEOUT} * 10") # the emulator is slow
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT ${arg_TIMEOUT})
    set(platform offscreen)
    if(arg_XVFB)
        set(platform xcb)
    endif()
    set_tests_properties(${name} PROPERTIES ENVIRONMENT
        "QT_QPA_PLATFORM=${platform};QT_LOGGING_RULES=qt.qpa.*=false;LC_ALL=C.UTF-8;\
DBUS_SESSION_BUS_ADDRESS=disabled:;\
LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0;\
TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/tsan.supp")
endfunction()
