# What a client finds: libraries, headers, the package for find_package() and pkg-config, samples and schema.
include(CMakePackageConfigHelpers)

install(TARGETS lib_inv_parser inv_platform EXPORT inv_parser LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY shared_pkg/common/schema/parser/include/inv_parser platform/include/inv_platform
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} PATTERN system_memory.h EXCLUDE PATTERN memory_guard.h EXCLUDE)
install(DIRECTORY inventories DESTINATION ${CMAKE_INSTALL_DATADIR}/inv_parser)
install(DIRECTORY schema DESTINATION ${CMAKE_INSTALL_DATADIR}/inv_parser)
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} PATTERN man EXCLUDE)
install(FILES README.md LICENSE NOTICE SECURITY.md THIRD_PARTY.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
# What is compiled into the command asks that its notice goes with copies.
foreach(component libcli11-dev nlohmann-json3-dev)
    install(FILES /usr/share/doc/${component}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR}/notices
            RENAME ${component}.txt OPTIONAL)
endforeach()
install(FILES docs/man/invctl.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES docs/man/inventory.5 DESTINATION ${CMAKE_INSTALL_MANDIR}/man5)

# find_package(inv_parser): inv_parser::inv_parser and inv_parser::inv_platform.
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/inv_parser)
install(EXPORT inv_parser NAMESPACE inv_parser:: FILE inv_parser-targets.cmake DESTINATION ${package_dir})
configure_package_config_file(cmake/inv_parser-config.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/inv_parser-config.cmake
                              INSTALL_DESTINATION ${package_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/inv_parser-config-version.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/inv_parser-config.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/inv_parser-config-version.cmake DESTINATION ${package_dir})

# pkg-config inv_parser, inv_platform.
foreach(module inv_parser inv_platform)
    configure_file(cmake/${module}.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${module}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${module}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
