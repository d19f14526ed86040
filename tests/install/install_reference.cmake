# Configures with STYLECONVERSION_REFERENCE, makes the reference, and installs what host developers read:
#   cmake -DSOURCE= -DBUILD= -DGENERATOR= -DCOMPILER= -P install_reference.cmake
set(documents "${BUILD}/prefix/share/doc/styleconversion")
function(install_documents reference)
  file(REMOVE_RECURSE "${BUILD}")
  execute_process(COMMAND "${CMAKE_COMMAND}" -S "${SOURCE}" -B "${BUILD}" -G "${GENERATOR}" -DSTYLECONVERSION_TOOL=OFF
    "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DSTYLECONVERSION_REFERENCE=${reference}" COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
  if(reference)
    execute_process(COMMAND "${CMAKE_COMMAND}" --build "${BUILD}" --target reference COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
  endif()
  execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${BUILD}/prefix" --component documents
    COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
  foreach(file hosts.md memcheck.supp)
    if(NOT EXISTS "${documents}/${file}")
      message(FATAL_ERROR "${file} is not installed.")
    endif()
  endforeach()
endfunction()

install_documents(OFF)
if(EXISTS "${documents}/reference")
  message(FATAL_ERROR "The reference is installed without having been asked for.")
endif()
install_documents(ON)
foreach(page index.html classBlockConverter.html classPatternConverter.html namespaceLineConverter.html)
  if(NOT EXISTS "${documents}/reference/${page}")
    message(FATAL_ERROR "reference/${page} is not installed.")
  endif()
endforeach()
