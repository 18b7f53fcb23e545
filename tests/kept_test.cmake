# Tests that take long and always end alike as long as nothing changes: what came of them is kept until then.

# kept_test(NAME COMMAND WORD... [TARGETS TARGET...] [FILES FILE...]) adds a test that runs again when one of the programs
# or files has changed that it looks at. One after the other: each asks the build whether there is anything to do.
function(kept_test name)
    cmake_parse_arguments(KEPT "" "" "COMMAND;TARGETS;FILES" ${ARGN})
    set(passed ${CMAKE_CURRENT_BINARY_DIR}/${name}.passed)
    add_custom_command(OUTPUT ${passed} COMMAND ${KEPT_COMMAND} COMMAND ${CMAKE_COMMAND} -E touch ${passed}
        DEPENDS ${KEPT_TARGETS} ${KEPT_FILES})
    add_custom_target(${name} DEPENDS ${passed})
    add_test(NAME ${name} COMMAND ${CMAKE_COMMAND} --build ${PROJECT_BINARY_DIR} --target ${name})
    set_tests_properties(${name} PROPERTIES RESOURCE_LOCK build COST 50 TIMEOUT 900)
endfunction()
