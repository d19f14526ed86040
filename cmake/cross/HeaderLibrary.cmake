# header_library(target folder): an imported target for a library of headers alone that this system has for itself.
# Its folder is linked into the build folder: all of the system's include folder must not be seen when another system
# is compiled for.
function(header_library target folder)
  if(TARGET ${target})
    return()
  endif()
  find_path(${folder}_PARENT ${folder} PATHS /usr/include NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  set(headers "${PROJECT_BINARY_DIR}/headers")
  file(MAKE_DIRECTORY "${headers}")
  if(NOT EXISTS "${headers}/${folder}")
    file(CREATE_LINK "${${folder}_PARENT}/${folder}" "${headers}/${folder}" SYMBOLIC)
  endif()
  add_library(${target} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${target} SYSTEM INTERFACE "${headers}")
endfunction()
