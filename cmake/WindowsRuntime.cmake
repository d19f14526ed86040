# The compiler's runtime libraries go beside the programs that need them, in the build folder and where installed.
set(runtime_libraries)
foreach(library libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
  execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${library}
    OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  if(NOT IS_ABSOLUTE "${path}")
    message(FATAL_ERROR "${library} is not among the compiler's files")
  endif()
  list(APPEND runtime_libraries "${path}")
endforeach()
file(COPY ${runtime_libraries} DESTINATION "${PROJECT_BINARY_DIR}/bin")

# The maths functions are the system's. Those of the compiler's runtime compute with the processor's own instructions,
# whose pi is too short: the cosine of a right angle is wrong from the fifth digit on.
# Those of the system under wine are within one unit in the last place of those of Linux; for about three sines and
# cosines and seven arctangents in a hundred they are not the same, which shows in the last digit of some coordinates.
set(maths_definition "${PROJECT_BINARY_DIR}/maths.def")
file(WRITE "${maths_definition}" "LIBRARY msvcrt.dll\nEXPORTS\n")
foreach(function acos asin atan atan2 cos exp fmod log log10 pow sin tan)
  file(APPEND "${maths_definition}" "${function}\n")
endforeach()
set(maths_library "${PROJECT_BINARY_DIR}/libStyleConversionMaths.a")
execute_process(COMMAND "${CMAKE_DLLTOOL}" -d "${maths_definition}" -l "${maths_library}"
  COMMAND_ERROR_IS_FATAL ANY)
# Where both the sine and the cosine of an angle are wanted, the compiler calls for both at once.
file(WRITE "${PROJECT_BINARY_DIR}/sincos.cpp" [=[
#include <math.h>
extern "C" void sincos(double angle, double* sine, double* cosine) {
    *sine = sin(angle);
    *cosine = cos(angle);
}
]=])
execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -O1 -fno-builtin -c sincos.cpp -o sincos.o
  WORKING_DIRECTORY "${PROJECT_BINARY_DIR}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_AR}" q "${maths_library}" "${PROJECT_BINARY_DIR}/sincos.o"
  COMMAND_ERROR_IS_FATAL ANY)
# Behind all libraries of the project and before those of the compiler.
set(CMAKE_CXX_STANDARD_LIBRARIES "${maths_library} ${CMAKE_CXX_STANDARD_LIBRARIES}")

# link_maths(library): what links the static library computes with them, too.
function(link_maths library)
  target_link_libraries(${library} INTERFACE "$<BUILD_INTERFACE:${maths_library}>")
endfunction()
