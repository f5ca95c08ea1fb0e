# SPDX-License-Identifier: MIT
# Precompiled headers for the library and the tests of windows, which include most of Qt's widgets;
# they halve the compile time. Off by default, since they prevent ccache from sharing results
# between build folders, and hide missing includes.

# For a test that links Qt's widgets. All these tests share one set of headers.
function(orv_precompile_test target)
    if(NOT ORV_PRECOMPILE_HEADERS)
        return()
    endif()
    if(NOT TARGET orv_precompiled_test)
        set(sources "${CMAKE_BINARY_DIR}/orv_precompiled_test.cpp"
            "${CMAKE_BINARY_DIR}/orv_precompiled_test.c") # some tests have a source in C, too
        file(WRITE "${CMAKE_BINARY_DIR}/orv_precompiled_test.cpp" "int main() { return 0; }\n")
        file(WRITE "${CMAKE_BINARY_DIR}/orv_precompiled_test.c" "typedef int orv_precompiled_test;\n")
        add_executable(orv_precompiled_test EXCLUDE_FROM_ALL ${sources})
        orv_target_defaults(orv_precompiled_test)
        target_compile_options(orv_precompiled_test PRIVATE -pthread)
        target_link_libraries(orv_precompiled_test PRIVATE ${ORV_QT}::Test ${ORV_QT}::Widgets)
        target_precompile_headers(orv_precompiled_test PRIVATE
            "$<$<COMPILE_LANGUAGE:CXX>:<QtWidgets$<ANGLE-R>>"
            "$<$<COMPILE_LANGUAGE:CXX>:<QtTest$<ANGLE-R>>"
            "$<$<COMPILE_LANGUAGE:C>:<stddef.h$<ANGLE-R>>")
    endif()
    # With Qt 6, the compiler flags contain the folder of a test, so only one folder can use the
    # headers.
    get_target_property(folder orv_precompiled_test BINARY_DIR)
    if(ORV_QT_MAJOR_VERSION EQUAL 6 AND NOT folder STREQUAL CMAKE_CURRENT_BINARY_DIR)
        return()
    endif()
    # Some tests inherit the flag from a library; the flags must be the same in all tests.
    target_compile_options(${target} PRIVATE -pthread)
    target_precompile_headers(${target} REUSE_FROM orv_precompiled_test)
endfunction()

function(orv_precompile_objects target)
    if(ORV_PRECOMPILE_HEADERS)
        target_precompile_headers(${target} PRIVATE "$<$<COMPILE_LANGUAGE:CXX>:<QtWidgets$<ANGLE-R>>")
    endif()
endfunction()
