# Builds for 64-bit Windows on Debian: g++-mingw-w64-x86-64-posix compiles, wine runs the tests.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(prefix x86_64-w64-mingw32)
# The flavour with the threads of the C++ standard library.
set(CMAKE_CXX_COMPILER ${prefix}-g++-posix)
set(CMAKE_C_COMPILER ${prefix}-gcc-posix)
set(CMAKE_RC_COMPILER ${prefix}-windres)
find_program(WINDOWS_COMPILER ${CMAKE_CXX_COMPILER})
if(NOT WINDOWS_COMPILER)
  message(FATAL_ERROR "${CMAKE_CXX_COMPILER}, which compiles for Windows, was not found: install the Debian package "
    "g++-mingw-w64-x86-64-posix.")
endif()

set(CMAKE_FIND_ROOT_PATH /usr/${prefix} ${CMAKE_FIND_ROOT_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Programs run in a wine of the build folder's own.
if(NOT CMAKE_CROSSCOMPILING_EMULATOR)
  set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/run-under-wine.sh;${CMAKE_BINARY_DIR}/wine")
endif()
