# What every target of the project is compiled with.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Programs and libraries side by side: the tool runs from the build folder as it is.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

# StyleConversion.dll, whichever compiler makes it.
if(WIN32)
  set(CMAKE_SHARED_LIBRARY_PREFIX "")
endif()

find_program(STYLECONVERSION_CCACHE ccache)
if(STYLECONVERSION_CCACHE)
  # Without these it takes nothing that was compiled with precompiled headers.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros "${STYLECONVERSION_CCACHE}")
endif()

add_library(project_settings INTERFACE)
target_include_directories(project_settings INTERFACE
  "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/StyleConversion/interfaces")

# The digits of the output are the product: no contraction into fused operations.
target_compile_options(project_settings INTERFACE
  -ffp-contract=off -Wall -Wextra -Wpedantic -Wconversion -Wno-sign-conversion -Wshadow)
if(STYLECONVERSION_WARNINGS_AS_ERRORS)
  target_compile_options(project_settings INTERFACE -Werror)
endif()

if(STYLECONVERSION_SANITIZE)
  target_compile_options(project_settings INTERFACE
    -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(project_settings INTERFACE
    -fsanitize=address,undefined,float-cast-overflow)
endif()

# Coverage of the project's own code leads the fuzzers.
if(STYLECONVERSION_FUZZERS)
  target_compile_options(project_settings INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(project_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()

# A library of the project: add_project_library(name [OBJECT|STATIC|SHARED] sources...)
function(add_project_library name type)
  add_library(${name} ${type} ${ARGN})
  target_link_libraries(${name} PUBLIC $<BUILD_INTERFACE:project_settings>)
endfunction()

function(add_project_executable name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE project_settings)
endfunction()
