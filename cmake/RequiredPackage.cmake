# require_package(name debian purpose): find_package, which says in one sentence what is missing, what wants it and which
# package of Debian has it.
macro(require_package name debian purpose)
  find_package(${name} QUIET)
  if(NOT ${name}_FOUND)
    message(FATAL_ERROR "${name}, which ${purpose}, was not found: install the Debian package ${debian}.")
  endif()
endmacro()
