# Makes the package of the build folder BUILD and unpacks it into FOLDER, which is emptied first.
file(REMOVE_RECURSE "${BUILD}/packages/made" "${FOLDER}")
execute_process(COMMAND "${CPACK}" --config "${BUILD}/CPackConfig.cmake" -B "${BUILD}/packages/made"
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(GLOB package "${BUILD}/packages/made/*.deb" "${BUILD}/packages/made/*.zip")
file(MAKE_DIRECTORY "${FOLDER}")
if(package MATCHES "deb$")
  execute_process(COMMAND dpkg -x "${package}" "${FOLDER}" COMMAND_ERROR_IS_FATAL ANY)
else()
  file(ARCHIVE_EXTRACT INPUT "${package}" DESTINATION "${FOLDER}")
  # The archive holds one folder, which has the package's name.
  file(GLOB top "${FOLDER}/*")
  file(GLOB parts "${top}/*")
  file(COPY ${parts} DESTINATION "${FOLDER}")
endif()
