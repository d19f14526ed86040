# The foreign pair, as a host gives its libraries to the build.
get_filename_component(foreign_root "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)
add_library(ForeignSymbols STATIC "${CMAKE_CURRENT_LIST_DIR}/SymbolModel.cpp")
add_library(ForeignDrawings STATIC
  "${CMAKE_CURRENT_LIST_DIR}/Database.cpp" "${CMAKE_CURRENT_LIST_DIR}/../RecordedDrawing.cpp")
foreach(library ForeignSymbols ForeignDrawings)
  target_include_directories(${library} PUBLIC "${CMAKE_CURRENT_LIST_DIR}" PRIVATE "${foreign_root}")
  target_compile_features(${library} PUBLIC cxx_std_20)
  set_target_properties(${library} PROPERTIES POSITION_INDEPENDENT_CODE ON)
endforeach()
# The drawings compute what ours do, to the last bit.
target_compile_options(ForeignDrawings PRIVATE -ffp-contract=off)
# What tests read symbols with.
add_library(symbol_reading ALIAS ForeignSymbols)
