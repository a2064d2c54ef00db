# Flags that every target of this project is built with.
add_library(inv_build_flags INTERFACE)
target_compile_options(inv_build_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
if(INV_WERROR)
    target_compile_options(inv_build_flags INTERFACE -Werror)
endif()

# Backtraces stay readable: no forwarding function becomes a jump where people debug.
if(CMAKE_BUILD_TYPE STREQUAL "Debug" OR INV_SANITIZE OR INV_COVERAGE)
    target_compile_options(inv_build_flags INTERFACE -fno-optimize-sibling-calls -fno-omit-frame-pointer)
endif()
# A shared library leaves the sanitizers' own symbols to the program.
if(NOT INV_SANITIZE)
    set(INV_NO_UNDEFINED -Wl,--no-undefined)
endif()
if(INV_SANITIZE)
    target_compile_options(inv_build_flags INTERFACE -fsanitize=${INV_SANITIZE} -fno-sanitize-recover=all)
    target_link_options(inv_build_flags INTERFACE -fsanitize=${INV_SANITIZE})
endif()
# INV_MEASURED_FLAGS are for the two libraries. Counts stay right where several threads count. Neither library throws
# or catches, so the ways of exceptions through them, which the compiler counts as branches, are left out.
if(INV_COVERAGE)
    target_compile_options(inv_build_flags INTERFACE --coverage)
    target_link_options(inv_build_flags INTERFACE --coverage)
    set(INV_MEASURED_FLAGS -fprofile-update=atomic -fno-exceptions)
endif()

# What makes a fault in hostile input a clean end instead of a way in. Sanitizers and builds without optimisation,
# which have checks of their own or none to spare, go without; tools/check_hardening.sh reads the result.
if(INV_HARDENING AND NOT CMAKE_BUILD_TYPE STREQUAL "Debug" AND NOT INV_SANITIZE AND NOT INV_COVERAGE)
    include(CheckCompilerFlag)
    # The last three exist on some architectures only.
    foreach(flag -fstack-protector-strong -fno-plt -fstack-clash-protection -fcf-protection)
        string(MAKE_C_IDENTIFIER "INV_HAS${flag}" known)
        check_compiler_flag(CXX ${flag} ${known})
        if(${known})
            target_compile_options(inv_build_flags INTERFACE ${flag})
        endif()
    endforeach()
    # A distribution's own level would be in the way of ours.
    target_compile_options(inv_build_flags INTERFACE -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
    target_link_options(inv_build_flags INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack)
endif()
include(CheckPIESupported)
check_pie_supported()

find_program(INV_CCACHE ccache)
if(INV_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${INV_CCACHE})
    set(CMAKE_C_COMPILER_LAUNCHER ${INV_CCACHE})
endif()
