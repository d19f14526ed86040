# WebAssembly with WASI, which CMake does not know by itself.
set(WASI TRUE)
set(UNIX FALSE)
set_property(GLOBAL PROPERTY TARGET_SUPPORTS_SHARED_LIBS FALSE)
set(CMAKE_EXECUTABLE_SUFFIX .wasm)
