# Text stubs of dynamic libraries, for the linker: whatever is not named in one is not there.

# write_stub(FILE INSTALL_NAME C SYMBOLS ... [CLASSES ...])
function(write_stub file install_name)
    cmake_parse_arguments(STUB "" "" "SYMBOLS;CLASSES" ${ARGN})
    list(TRANSFORM STUB_SYMBOLS REPLACE "^(.+)$" "'_\\1'")
    list(JOIN STUB_SYMBOLS ", " symbols)
    list(JOIN STUB_CLASSES ", " classes)
    file(CONFIGURE OUTPUT ${file} @ONLY CONTENT "--- !tapi-tbd
tbd-version: 4
targets: [ arm64-macos ]
install-name: '@install_name@'
exports:
  - targets: [ arm64-macos ]
    symbols: [ @symbols@ ]
    objc-classes: [ @classes@ ]
...
")
endfunction()

# From a list of names: words, and lines that say "class" and a name.
function(write_listed_stub file install_name list)
    file(STRINGS ${list} lines REGEX "^[^#]")
    set(classes ${lines})
    list(FILTER classes INCLUDE REGEX "^class ")
    list(TRANSFORM classes REPLACE "^class " "")
    list(FILTER lines EXCLUDE REGEX "^class ")
    string(REGEX REPLACE "[ \n]" ";" symbols "${lines}")
    write_stub(${file} ${install_name} SYMBOLS ${symbols} CLASSES ${classes})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${list})
endfunction()

# From a library of this machine, whose names are the same on macOS.
function(write_namesake_stub file install_name)
    execute_process(COMMAND llvm-nm-16 --dynamic --defined-only --just-symbol-name --quiet ${ARGN}
        OUTPUT_VARIABLE names COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX REPLACE "@[^\n]*" "" names "${names}")
    string(REPLACE "B5cxx11" "" names "${names}") # libstdc++'s mark on what gives a std::string
    string(REPLACE "\n" ";" names "${names}")
    list(FILTER names INCLUDE REGEX "^[A-Za-z_]")
    write_stub(${file} ${install_name} SYMBOLS ${names})
endfunction()
