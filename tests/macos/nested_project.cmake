# Projects that need another compiler than this one: entries of ctest configure and build them, so that nobody
# else waits for them.

# missing_packages(RESULT PACKAGE FILE [PACKAGE FILE]...) names the packages whose file is not there.
function(missing_packages result)
    set(missing "")
    while(ARGN)
        list(POP_FRONT ARGN package file)
        if(NOT EXISTS ${file})
            list(APPEND missing ${package})
        endif()
    endwhile()
    list(JOIN missing ", " missing)
    set(${result} "${missing}" PARENT_SCOPE)
endfunction()

# An entry that says what it would take to run.
function(skipped_test name missing)
    add_test(NAME ${name} COMMAND ${CMAKE_COMMAND} -E echo "Skipped, for want of: ${missing}")
    set_tests_properties(${name} PROPERTIES SKIP_REGULAR_EXPRESSION "Skipped, for want of")
endfunction()

# nested_project(NAME FOLDER [OPTION]...) adds NAME.Configures and NAME.Compiles. Whoever uses the result requires
# the fixture NAME.configured or NAME.compiled, and the resource NAME.
function(nested_project name folder)
    set(binary_dir ${CMAKE_CURRENT_BINARY_DIR}/${folder})
    add_test(NAME ${name}.Configures
        COMMAND ${CMAKE_COMMAND} -G ${CMAKE_GENERATOR} -S ${CMAKE_CURRENT_SOURCE_DIR}/${folder} -B ${binary_dir} ${ARGN})
    set_tests_properties(${name}.Configures PROPERTIES FIXTURES_SETUP ${name}.configured RESOURCE_LOCK ${name}
        COST 200)
    add_test(NAME ${name}.Compiles COMMAND ${CMAKE_COMMAND} --build ${binary_dir} --parallel 2)
    set_tests_properties(${name}.Compiles PROPERTIES
        FIXTURES_REQUIRED ${name}.configured FIXTURES_SETUP ${name}.compiled RESOURCE_LOCK ${name}
        COST 200 TIMEOUT 1800) # among the first: it is the longest
endfunction()
