# What every target of the project is compiled with. All of it stays with the project: variables end with this folder,
# and flags are private to each target, so that a project that has this one as a part compiles by its own.

# C++20, or what a later standard the host asks for.
if(NOT CMAKE_CXX_STANDARD OR NOT CMAKE_CXX_STANDARD MATCHES "^2")
  set(CMAKE_CXX_STANDARD 20)
endif()
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
if(NOT WASI)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
endif()
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Programs and libraries side by side: the tool runs from the build folder as it is. A host says where its own go.
if(PROJECT_IS_TOP_LEVEL)
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
  set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
  set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
endif()

# StyleConversion.dll, whichever compiler makes it.
if(WIN32)
  set(CMAKE_SHARED_LIBRARY_PREFIX "")
endif()

# Flags that change what an operation rounds to. PreciseMath.h refuses what a compiler tells by a macro; these are the
# ones that it does not tell, or not every compiler does, and -Ofast, which a later -O3 would hide.
string(TOUPPER "${CMAKE_BUILD_TYPE}" build_type)
foreach(flags CMAKE_CXX_FLAGS "CMAKE_CXX_FLAGS_${build_type}")
  if(" ${${flags}} " MATCHES
      " (-f(unsafe-math-optimizations|associative-math|reciprocal-math|approx-func|fp-model=fast|no-signed-zeros|single-precision-constant)|-Ofast|-mrecip[^ ]*|-mfpmath=[^ ]*387[^ ]*) ")
    message(FATAL_ERROR
      "StyleConversion cannot be built with ${CMAKE_MATCH_1}, which ${flags} has: digits would change.")
  endif()
endforeach()

add_library(styleconversion_flags INTERFACE)
# The digits of the output are the product: nothing that changes what an operation rounds to, such as contraction into
# fused operations.
if(MSVC)
  # cl, and clang under its name.
  target_compile_options(styleconversion_flags INTERFACE
    /W4 /permissive- /utf-8 /fp:precise "/FI${PROJECT_SOURCE_DIR}/StyleConversion/PreciseMath.h")
  if(STYLECONVERSION_WARNINGS_AS_ERRORS)
    target_compile_options(styleconversion_flags INTERFACE /WX)
  endif()
else()
  target_compile_options(styleconversion_flags INTERFACE
    -ffp-contract=off "SHELL:-include \"${PROJECT_SOURCE_DIR}/StyleConversion/PreciseMath.h\""
    -Wall -Wextra -Wpedantic -Wconversion -Wno-sign-conversion -Wshadow)
  # This version takes its own string's copying for one that overlaps, wherever a literal is added to a text that it
  # has inlined.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(styleconversion_flags INTERFACE -Wno-restrict)
  endif()
  if(STYLECONVERSION_WARNINGS_AS_ERRORS)
    target_compile_options(styleconversion_flags INTERFACE -Werror)
  endif()
endif()

# What instruments all code and so has to be linked by whoever links it.
set(instrumentation)
if((STYLECONVERSION_SANITIZE OR STYLECONVERSION_FUZZERS) AND MSVC)
  message(FATAL_ERROR "STYLECONVERSION_SANITIZE and STYLECONVERSION_FUZZERS are for g++ and clang++.")
endif()
if(STYLECONVERSION_SANITIZE)
  list(APPEND instrumentation -fsanitize=address,undefined,float-cast-overflow)
  target_compile_options(styleconversion_flags INTERFACE -fno-sanitize-recover=all -fno-omit-frame-pointer)
endif()
# Coverage of the project's own code leads the fuzzers.
if(STYLECONVERSION_FUZZERS)
  list(APPEND instrumentation -fsanitize=fuzzer-no-link)
endif()
target_compile_options(styleconversion_flags INTERFACE ${instrumentation})

# Where includes begin; a host's own models bring their folders with them.
set(include_folders ${host_names_folder} "${PROJECT_SOURCE_DIR}")
if(STYLECONVERSION_HAS_OWN_MODELS)
  list(APPEND include_folders "${PROJECT_SOURCE_DIR}/StyleConversion/interfaces")
endif()

# A library of the project: add_project_library(name [OBJECT|STATIC|SHARED] sources...). Without a type it is shared or
# static as BUILD_SHARED_LIBS says.
function(add_project_library name)
  add_library(${name} ${ARGN})
  foreach(folder ${include_folders})
    target_include_directories(${name} PUBLIC "$<BUILD_INTERFACE:${folder}>")
  endforeach()
  target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:styleconversion_flags>)
  target_link_options(${name} PUBLIC "$<BUILD_INTERFACE:${instrumentation}>")
endfunction()

function(add_project_executable name)
  add_executable(${name} ${ARGN})
  target_include_directories(${name} PRIVATE ${include_folders})
  target_link_libraries(${name} PRIVATE styleconversion_flags)
  target_link_options(${name} PRIVATE ${instrumentation})
endfunction()

# export_by(library prefix): what the macro prefix_API in the library's headers stands for, in the library and in what
# links to it.
function(export_by library prefix)
  if(BUILD_SHARED_LIBS)
    target_compile_definitions(${library} PRIVATE ${prefix}_BUILD)
  else()
    target_compile_definitions(${library} PUBLIC ${prefix}_STATIC)
  endif()
endfunction()
