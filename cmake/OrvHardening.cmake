# SPDX-License-Identifier: MIT
# Compiler and linker options that make memory faults harder to exploit, for all targets.
# Unsupported options are left out; tests/packaging checks the resulting files.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)
include(CheckPIESupported)
check_pie_supported(LANGUAGES C CXX)

# Sets `result` to true if these compiler flags optimise; the last level counts.
function(orv_optimises flags result)
    string(REGEX MATCHALL "(^| )-O[0-9a-z]*" levels "${flags}")
    list(POP_BACK levels level)
    set(${result} OFF PARENT_SCOPE)
    if(level MATCHES "-O($|[1-9a-z])")
        set(${result} ON PARENT_SCOPE)
    endif()
endfunction()

# Fortified functions require optimisation, and hide faults from sanitizers.
function(orv_find_fortification result)
    set(found "")
    if(NOT "${CMAKE_CXX_FLAGS}" MATCHES "-fsanitize|_FORTIFY_SOURCE")
        set(types ${CMAKE_CONFIGURATION_TYPES})
        if(NOT types)
            set(types ${CMAKE_BUILD_TYPE})
        endif()
        foreach(type IN LISTS types)
            string(TOUPPER "${type}" upper)
            orv_optimises("${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${upper}}" optimises)
            if(optimises)
                # Some compilers define another level by default.
                list(APPEND found "$<$<CONFIG:${type}>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
            endif()
        endforeach()
    endif()
    set(${result} "${found}" PARENT_SCOPE)
endfunction()

orv_find_fortification(ORV_HARDENING_COMPILE_OPTIONS)
# -fcf-protection is for x86, -mbranch-protection for ARM.
foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection=full
        -mbranch-protection=standard)
    string(MAKE_C_IDENTIFIER "ORV_COMPILER_HAS${flag}" known)
    check_cxx_compiler_flag("-Werror ${flag}" ${known})
    if(${known})
        list(APPEND ORV_HARDENING_COMPILE_OPTIONS ${flag})
    endif()
endforeach()

set(ORV_HARDENING_LINK_OPTIONS "")
foreach(flag relro now noexecstack)
    check_linker_flag(CXX "LINKER:-z,${flag}" ORV_LINKER_HAS_${flag})
    if(ORV_LINKER_HAS_${flag})
        list(APPEND ORV_HARDENING_LINK_OPTIONS "LINKER:-z,${flag}")
    endif()
endforeach()

# Hardens one target.
function(orv_harden target)
    target_compile_options(${target} PRIVATE ${ORV_HARDENING_COMPILE_OPTIONS})
    target_link_options(${target} PRIVATE ${ORV_HARDENING_LINK_OPTIONS})
endfunction()
