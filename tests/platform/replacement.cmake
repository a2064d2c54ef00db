# A preloaded library takes over from the reference platform.
add_library(replacement_library SHARED ${CMAKE_CURRENT_LIST_DIR}/replacement_library.c)
target_compile_options(replacement_library PRIVATE -Wall -Wextra -Wpedantic -Wconversion)
target_include_directories(replacement_library PRIVATE $<TARGET_PROPERTY:inv_platform,INTERFACE_INCLUDE_DIRECTORIES>)

add_library(replacement_client SHARED ${CMAKE_CURRENT_LIST_DIR}/replacement_client.c)
target_link_libraries(replacement_client PRIVATE inv_build_flags inv_platform)
target_include_directories(replacement_client PRIVATE ${CMAKE_CURRENT_LIST_DIR}/..)

add_executable(platform_replacement ${CMAKE_CURRENT_LIST_DIR}/replacement_test.cpp)
target_link_libraries(platform_replacement PRIVATE inv_build_flags replacement_client inv_platform
                                                   GTest::gtest GTest::gtest_main)
target_include_directories(platform_replacement PRIVATE ${CMAKE_CURRENT_LIST_DIR}/..)
add_dependencies(platform_replacement replacement_library)

# The preloaded library is built without sanitizers and comes before their runtime: allowed here.
add_test(NAME platform_replacement.preloaded COMMAND platform_replacement)
set_tests_properties(platform_replacement.preloaded PROPERTIES TIMEOUT 60 ENVIRONMENT
    "LD_PRELOAD=$<TARGET_FILE:replacement_library>;INV_TEST_PLATFORM=preloaded;ASAN_OPTIONS=verify_asan_link_order=0")
add_test(NAME platform_replacement.reference COMMAND platform_replacement)
set_tests_properties(platform_replacement.reference PROPERTIES TIMEOUT 60 ENVIRONMENT "INV_TEST_PLATFORM=reference")

# The same through the library itself.
add_executable(library_replacement library_replacement_test.cpp)
target_link_libraries(library_replacement PRIVATE inv_build_flags lib_inv_parser inv_platform GTest::gtest
                                                  GTest::gtest_main)
add_dependencies(library_replacement replacement_library)
add_test(NAME library_replacement.preloaded COMMAND library_replacement)
set_tests_properties(library_replacement.preloaded PROPERTIES TIMEOUT 60 ENVIRONMENT
    "LD_PRELOAD=$<TARGET_FILE:replacement_library>;INV_TEST_PLATFORM=preloaded;ASAN_OPTIONS=verify_asan_link_order=0")
add_test(NAME library_replacement.reference COMMAND library_replacement)
set_tests_properties(library_replacement.reference PROPERTIES TIMEOUT 60 ENVIRONMENT "INV_TEST_PLATFORM=reference")
