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
if(INV_COVERAGE)
    target_compile_options(inv_build_flags INTERFACE --coverage)
    target_link_options(inv_build_flags INTERFACE --coverage)
endif()

find_program(INV_CCACHE ccache)
if(INV_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${INV_CCACHE})
    set(CMAKE_C_COMPILER_LAUNCHER ${INV_CCACHE})
endif()
