# One set of rules for every target. Sanitizers come from the presets, through QUELBY_SANITIZERS.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

if(APPLE)
    set(CMAKE_OSX_DEPLOYMENT_TARGET 13.0)
    enable_language(OBJCXX)
    set(CMAKE_OBJCXX_STANDARD 20)
    set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
    set(CMAKE_OBJCXX_EXTENSIONS OFF)
endif()

set(QUELBY_SANITIZERS "" CACHE STRING "What -fsanitize= gets, for example address,undefined")
option(QUELBY_COVERAGE "Count the lines that run, for ./check coverage" OFF)

add_library(quelby_rules INTERFACE)
# -Wno-missing-field-initializers: what an initializer leaves out gets the default that its record names.
target_compile_options(quelby_rules INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wcast-qual
    -Wnon-virtual-dtor -Woverloaded-virtual -Wformat=2 -Wundef -Werror -Wno-missing-field-initializers)
# The same for libraries and programs, so that they can share precompiled headers.
target_compile_options(quelby_rules INTERFACE -fPIC)
target_compile_options(quelby_rules INTERFACE
    $<$<COMPILE_LANGUAGE:OBJCXX>:-fno-objc-arc -Wnullable-to-nonnull-conversion -Wobjc-messaging-id
    -Wundeclared-selector -Wunguarded-availability>)
# g++ 12 loses stores where it works out what a function may change: a battery whose full charge is unknown had no
# percentage then.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(quelby_rules INTERFACE $<$<NOT:$<CONFIG:Debug>>:-fno-ipa-modref>)
endif()
# Each program gets what it uses of a library, and not all that stands in the same file.
target_compile_options(quelby_rules INTERFACE -ffunction-sections -fdata-sections)
target_link_options(quelby_rules INTERFACE $<IF:$<PLATFORM_ID:Darwin>,-Wl$<COMMA>-dead_strip,-Wl$<COMMA>--gc-sections>)
# What nobody installs is linked by whichever linker is five times as quick.
find_program(QUELBY_QUICK_LINKER ld.lld HINTS /usr/lib/llvm-16/bin)
if(QUELBY_QUICK_LINKER AND NOT APPLE)
    cmake_path(GET QUELBY_QUICK_LINKER PARENT_PATH quick_linker_folder)
    target_link_options(quelby_rules INTERFACE $<$<CONFIG:Debug>:-B${quick_linker_folder}> $<$<CONFIG:Debug>:-fuse-ld=lld>)
endif()
# Qt would otherwise take words such as "signals" for itself.
target_compile_definitions(quelby_rules INTERFACE QT_NO_KEYWORDS)
target_include_directories(quelby_rules INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(QUELBY_SANITIZERS)
    # The sanitizers' own code makes GCC see uninitialized values where there are none.
    target_compile_options(quelby_rules INTERFACE
        -fsanitize=${QUELBY_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>
        # Twice as much to compile, to find what the address sanitizer finds as well, and what no processor of ours minds.
        $<$<CXX_COMPILER_ID:GNU>:-fno-sanitize=null,alignment>
        # Undefined behaviour is looked for in what people run; in each assertion it would double the time to compile.
        $<$<BOOL:$<TARGET_PROPERTY:QUELBY_TESTS>>:-fno-sanitize=undefined>)
    target_link_options(quelby_rules INTERFACE -fsanitize=${QUELBY_SANITIZERS})
endif()
if(QUELBY_COVERAGE)
    # Atomic, because threads count as well.
    target_compile_options(quelby_rules INTERFACE --coverage -fprofile-update=atomic)
    add_library(quelby_counted_exit STATIC ${CMAKE_CURRENT_LIST_DIR}/counted_exit.cpp)
    target_link_libraries(quelby_rules INTERFACE quelby_counted_exit)
    target_link_options(quelby_rules INTERFACE --coverage -Wl,--wrap=_exit,-u,__wrap__exit,--wrap=execv,-u,__wrap_execv)
endif()
if(QUELBY_FUZZERS)
    target_compile_options(quelby_rules INTERFACE -fsanitize=fuzzer-no-link)
endif()

# The files of a library or a test program are compiled a few at a time as one, because most of the work is the same in
# all of them: the headers, and what is made from templates. So a name is defined once in a folder, not once a file.
# Tools that look at single files turn it off.
option(QUELBY_UNITED "Compile a few files at a time" ON)
set(CMAKE_UNITY_BUILD_BATCH_SIZE 16)

# quelby_floor(NAME SOURCES ... [USES ...]) makes one floor of the program: a static library whose folder is its name,
# which may use only what stands below it.
function(quelby_floor name)
    cmake_parse_arguments(FLOOR "" "" "SOURCES;USES" ${ARGN})
    add_library(quelby_${name} STATIC ${FLOOR_SOURCES})
    target_link_libraries(quelby_${name} PUBLIC quelby_rules ${FLOOR_USES})
    set_target_properties(quelby_${name} PROPERTIES UNITY_BUILD ${QUELBY_UNITED})
endfunction()
