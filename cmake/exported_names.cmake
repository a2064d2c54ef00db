# inv_export_names(<library> <node>): the shared library exports what exported_names.txt beside its CMakeLists.txt
# lists, under this symbol version, and nothing else. A later major version gets a node of its own.
function(inv_export_names library node)
    set(list ${CMAKE_CURRENT_SOURCE_DIR}/exported_names.txt)
    set(script ${CMAKE_CURRENT_BINARY_DIR}/${library}.map)
    set(writer ${PROJECT_SOURCE_DIR}/cmake/version_script.sh)
    add_custom_command(OUTPUT ${script} COMMAND ${writer} ${list} ${node} ${script} DEPENDS ${list} ${writer})
    add_custom_target(${library}_version_script DEPENDS ${script})
    add_dependencies(${library} ${library}_version_script)
    target_link_options(${library} PRIVATE -Wl,--version-script=${script} ${INV_NO_UNDEFINED})
    set_property(TARGET ${library} APPEND PROPERTY LINK_DEPENDS ${script})
endfunction()
