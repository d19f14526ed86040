# Builds the project against the foreign pair: cmake -DSOURCE= -DBUILD= -DGENERATOR= -DOPTIONS= -P build_foreign.cmake
execute_process(COMMAND "${CMAKE_COMMAND}" -S "${SOURCE}" -B "${BUILD}" -G "${GENERATOR}" ${OPTIONS}
  COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${BUILD}" --parallel 2 COMMAND_ERROR_IS_FATAL ANY)
