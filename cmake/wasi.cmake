# Builds WebAssembly on Debian: clang-16 compiles, with the libraries that Debian has for WASI.
set(CMAKE_SYSTEM_NAME WASI)
list(APPEND CMAKE_MODULE_PATH "${CMAKE_CURRENT_LIST_DIR}")
set(CMAKE_SYSTEM_PROCESSOR wasm32)

set(CMAKE_CXX_COMPILER clang++-16)
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)


find_program(WASI_COMPILER ${CMAKE_CXX_COMPILER})
if(NOT WASI_COMPILER)
  message(FATAL_ERROR "${CMAKE_CXX_COMPILER}, which compiles to WebAssembly, was not found: scripts/web.sh installs it.")
endif()
find_program(WASI_AR NAMES llvm-ar-16 llvm-ar REQUIRED)
find_program(WASI_RANLIB NAMES llvm-ranlib-16 llvm-ranlib REQUIRED)
set(CMAKE_AR "${WASI_AR}")
set(CMAKE_RANLIB "${WASI_RANLIB}")

set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
# Debian's headers for WASI stand beside those of the machine itself.
set(CMAKE_FIND_ROOT_PATH /usr/lib/wasm32-wasi)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# There are no exceptions here: what is thrown ends the module (web/Throwing.cpp), and the standard library throws
# nothing. "try" and "catch" are read and left out.
set(CMAKE_CXX_FLAGS_INIT
  "-nostdinc++ -isystem /usr/lib/llvm-16/include/wasm32-wasi/c++/v1 --sysroot=/usr -fexceptions -D_LIBCPP_NO_EXCEPTIONS -DJSON_HAS_FILESYSTEM=0 -DJSON_HAS_EXPERIMENTAL_FILESYSTEM=0")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-Wno-unused-command-line-argument --sysroot=/usr -fuse-ld=/usr/bin/wasm-ld-16 -mexec-model=reactor")
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
