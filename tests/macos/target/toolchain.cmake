# 64-bit Arm, macOS 13, on a machine that has neither that system's headers nor its libraries: C++ from libc++,
# C from musl's headers with corrections, frameworks from ours. What comes out is for checking, never for use:
# the layouts of C structures are musl's.

set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR arm64)
set(CMAKE_OSX_ARCHITECTURES arm64)
set(CMAKE_OSX_SYSROOT "")
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

set(llvm 16)
foreach(language C CXX OBJCXX)
    set(CMAKE_${language}_COMPILER /usr/bin/clang++-${llvm})
    set(CMAKE_${language}_COMPILER_TARGET arm64-apple-macos13.0)
endforeach()
set(CMAKE_AR /usr/bin/llvm-ar-${llvm})
set(CMAKE_RANLIB /usr/bin/llvm-ranlib-${llvm})
set(CMAKE_INSTALL_NAME_TOOL /usr/bin/llvm-install-name-tool-${llvm})

set(system_headers
    ${CMAKE_BINARY_DIR}/libcxx-config
    ${CMAKE_BINARY_DIR}/missing-headers
    ${CMAKE_CURRENT_LIST_DIR}/libc
    /usr/lib/llvm-${llvm}/include/c++/v1
    /usr/include/x86_64-linux-musl
    ${CMAKE_CURRENT_LIST_DIR}/../facade)
list(TRANSFORM system_headers PREPEND "-isystem ")
list(JOIN system_headers " " system_headers)

set(flags "-D_GNU_SOURCE -nostdinc++ -nostdlibinc -include ${CMAKE_CURRENT_LIST_DIR}/libc/types.h ${system_headers}")
set(CMAKE_CXX_FLAGS_INIT "${flags}")
set(CMAKE_OBJCXX_FLAGS_INIT "${flags}")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-fuse-ld=lld -nostdlib -Wl,-fixup_chains -Wl,-all_load -Wno-unused-command-line-argument")
