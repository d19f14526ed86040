include("${CMAKE_CURRENT_LIST_DIR}/HeaderLibrary.cmake")
header_library(FastFloat::fast_float fast_float FastFloat_FOUND)
