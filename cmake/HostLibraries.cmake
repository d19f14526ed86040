# The symbol model and the drawing database that the library is built against: ours, or a host's own (docs/hosts.md).
# Sets STYLECONVERSION_HAS_OWN_MODELS, symbol_model and drawing_database, the two targets.
set(STYLECONVERSION_HOST_FILE "" CACHE FILEPATH "CMake file, read first, that may define a host's two libraries")
set(STYLECONVERSION_SYMBOL_MODEL "" CACHE STRING "Target or package of a host's symbol model, in the place of ours")
set(STYLECONVERSION_DRAWING_DATABASE "" CACHE STRING "Target or package of a host's drawing database, in the place of ours")
set(STYLECONVERSION_HOST_NAMES "" CACHE FILEPATH "A host's copy of StyleConversion/interfaces/HostNames.h")

if(STYLECONVERSION_HOST_FILE)
  include("${STYLECONVERSION_HOST_FILE}")
endif()

# host_library(variable result packages): the target that a variable names, or that the package of this name has, which is
# then added to the packages.
function(host_library variable result packages)
  set(name "${${variable}}")
  set(found "${${packages}}")
  if(NOT TARGET "${name}")
    string(REGEX REPLACE "::.*" "" package "${name}")
    find_package("${package}" QUIET)
    list(APPEND found "${package}")
    if(NOT TARGET "${name}" AND TARGET "${name}::${name}")
      set(name "${name}::${name}")
    endif()
  endif()
  if(NOT TARGET "${name}")
    message(FATAL_ERROR "${variable}: there is no target and no package with a target ${${variable}}.")
  endif()
  set(${result} "${name}" PARENT_SCOPE)
  set(${packages} "${found}" PARENT_SCOPE)
endfunction()

# Where a host's own HostNames.h is found before ours.
set(host_names_folder)
if(STYLECONVERSION_HOST_NAMES)
  set(host_names_folder "${PROJECT_BINARY_DIR}/host")
  configure_file("${STYLECONVERSION_HOST_NAMES}"
    "${host_names_folder}/StyleConversion/interfaces/HostNames.h" COPYONLY)
endif()

set(host_packages)
if(STYLECONVERSION_SYMBOL_MODEL AND STYLECONVERSION_DRAWING_DATABASE)
  set(STYLECONVERSION_HAS_OWN_MODELS OFF)
  host_library(STYLECONVERSION_SYMBOL_MODEL symbol_model host_packages)
  host_library(STYLECONVERSION_DRAWING_DATABASE drawing_database host_packages)
elseif(STYLECONVERSION_SYMBOL_MODEL OR STYLECONVERSION_DRAWING_DATABASE)
  message(FATAL_ERROR "Set both STYLECONVERSION_SYMBOL_MODEL and STYLECONVERSION_DRAWING_DATABASE, or neither.")
else()
  set(STYLECONVERSION_HAS_OWN_MODELS ON)
  set(symbol_model TylModel)
  set(drawing_database OxDb)
endif()

# use_host_libraries(targets...): their sources see the two libraries.
function(use_host_libraries)
  foreach(target ${ARGN})
    get_target_property(type ${target} TYPE)
    set(scope PUBLIC)
    if(type STREQUAL OBJECT_LIBRARY)
      set(scope PRIVATE)
    endif()
    foreach(library ${symbol_model} ${drawing_database})
      # A package finds ours with itself, and those of other packages by their names; a target of this build alone is
      # linked by whoever links the installed library.
      set(imported OFF)
      if(NOT STYLECONVERSION_HAS_OWN_MODELS)
        get_target_property(imported ${library} IMPORTED)
      endif()
      if(NOT STYLECONVERSION_HAS_OWN_MODELS AND NOT imported)
        set(library "$<BUILD_INTERFACE:${library}>")
      endif()
      target_link_libraries(${target} ${scope} ${library})
    endforeach()
  endforeach()
endfunction()
