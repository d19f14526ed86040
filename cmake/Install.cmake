# What "cmake --install" puts where: headers, libraries, the CMake and pkg-config packages, and the tool with its
# man page and completions. Everything finds its neighbours by relative paths, so that a tree can be moved.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# A folder of their own, named once by the packages: include paths inside are those of the source tree.
set(include_root "${CMAKE_INSTALL_INCLUDEDIR}/styleconversion")

set(public_headers
  StyleConversion/Export.h
  StyleConversion/block/BlockConverter.h
  StyleConversion/linetype/FontInfo.h
  StyleConversion/linetype/LineConverter.h
  StyleConversion/linetype/Services.h
  StyleConversion/pattern/PatternConverter.h)
# What fills a drawing in the model and hands it to a converter.
foreach(header Areas Blocks CaseFolding Core CurveEntities Database FailurePlan HostServices NamePool ObjectList
        Records Resident SimpleEntities SplineCurves Texts)
  list(APPEND public_headers drawing/${header}.h)
endforeach()
foreach(header ${public_headers})
  cmake_path(GET header PARENT_PATH folder)
  install(FILES "${PROJECT_SOURCE_DIR}/${header}" DESTINATION "${include_root}/${folder}")
endforeach()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/StyleConversion/interfaces/TylModel"
                  "${PROJECT_SOURCE_DIR}/StyleConversion/interfaces/OxDb"
  DESTINATION "${include_root}/StyleConversion/interfaces" FILES_MATCHING PATTERN "*.h")

foreach(library StyleConversion TylModel OxDb)
  target_include_directories(${library} INTERFACE
    $<INSTALL_INTERFACE:${include_root}>
    $<INSTALL_INTERFACE:${include_root}/StyleConversion/interfaces>)
  target_compile_features(${library} INTERFACE cxx_std_20)
  set_target_properties(${library} PROPERTIES INSTALL_RPATH "$ORIGIN")
endforeach()
install(TARGETS StyleConversion TylModel OxDb EXPORT StyleConversionTargets
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/StyleConversion")
install(EXPORT StyleConversionTargets NAMESPACE StyleConversion:: DESTINATION "${package_folder}")
file(WRITE "${PROJECT_BINARY_DIR}/packages/StyleConversionConfig.cmake"
  "include(\"\${CMAKE_CURRENT_LIST_DIR}/StyleConversionTargets.cmake\")\n")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/packages/StyleConversionConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/packages/StyleConversionConfig.cmake"
              "${PROJECT_BINARY_DIR}/packages/StyleConversionConfigVersion.cmake"
  DESTINATION "${package_folder}")

file(RELATIVE_PATH prefix_from_pkgconfig "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
configure_file("${CMAKE_CURRENT_LIST_DIR}/StyleConversion.pc.in"
  "${PROJECT_BINARY_DIR}/packages/StyleConversion.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/packages/StyleConversion.pc"
  DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

if(STYLECONVERSION_TOOL)
  file(RELATIVE_PATH libraries_from_tool "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
  set_target_properties(styleconv PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries_from_tool}")
  install(TARGETS styleconv RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()
if(STYLECONVERSION_TOOL AND UNIX)
  install(FILES "${PROJECT_SOURCE_DIR}/docs/styleconv.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
  set(completions "${PROJECT_SOURCE_DIR}/styleconv/completions")
  install(FILES "${completions}/styleconv.bash" RENAME styleconv
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
  install(FILES "${completions}/_styleconv" DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/site-functions")
  install(FILES "${completions}/styleconv.fish" DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
endif()

# The compiler's runtime goes along where the system does not have it.
if(MINGW)
  install(FILES ${runtime_libraries} DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()
