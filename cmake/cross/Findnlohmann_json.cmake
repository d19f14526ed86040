include("${CMAKE_CURRENT_LIST_DIR}/HeaderLibrary.cmake")
header_library(nlohmann_json::nlohmann_json nlohmann nlohmann_json_FOUND)
