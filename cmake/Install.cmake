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
  StyleConversion/pattern/PatternConverter.h
  StyleConversion/platform/AnsiCodePage.h
  StyleConversion/platform/Characters.h)
# What fills a drawing in the model and hands it to a converter.
if(STYLECONVERSION_HAS_OWN_MODELS)
  foreach(header database/Arena database/BlockReference database/Blocks database/CaseFolding database/Core
          database/Database database/DrawnAs
          database/FailurePlan database/HostServices database/NamePool database/ObjectList database/Records
          database/Resident entities/Areas entities/CurveEntities entities/OtherShape entities/SimpleEntities
          entities/SplineCurves entities/Texts entities/WideSegments geometry/BulgeVertex geometry/Hatch
          geometry/Point geometry/Status)
    list(APPEND public_headers drawing/${header}.h)
  endforeach()
endif()
foreach(header ${public_headers})
  cmake_path(GET header PARENT_PATH folder)
  install(FILES "${PROJECT_SOURCE_DIR}/${header}" DESTINATION "${include_root}/${folder}")
endforeach()
# Our models, unless a host has brought its own.
set(libraries StyleConversion)
if(STYLECONVERSION_HAS_OWN_MODELS)
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/StyleConversion/interfaces/TylModel"
                    "${PROJECT_SOURCE_DIR}/StyleConversion/interfaces/OxDb"
    DESTINATION "${include_root}/StyleConversion/interfaces" FILES_MATCHING PATTERN "*.h")
  list(APPEND libraries OxDb TylModel)
endif()

foreach(library ${libraries})
  target_include_directories(${library} INTERFACE
    $<INSTALL_INTERFACE:${include_root}>
    $<INSTALL_INTERFACE:${include_root}/StyleConversion/interfaces>)
  set_target_properties(${library} PROPERTIES INSTALL_RPATH "$ORIGIN")
endforeach()
if(NOT BUILD_SHARED_LIBS)
  list(APPEND libraries StyleConversionPlatform)
endif()
install(TARGETS ${libraries} EXPORT StyleConversionTargets
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/StyleConversion")
install(EXPORT StyleConversionTargets NAMESPACE StyleConversion:: DESTINATION "${package_folder}")
set(dependencies)
foreach(package ${host_packages})
  string(APPEND dependencies "find_dependency(${package})\n")
endforeach()
file(WRITE "${PROJECT_BINARY_DIR}/packages/StyleConversionConfig.cmake"
  "include(CMakeFindDependencyMacro)\n${dependencies}"
  "include(\"\${CMAKE_CURRENT_LIST_DIR}/StyleConversionTargets.cmake\")\n")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/packages/StyleConversionConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/packages/StyleConversionConfig.cmake"
              "${PROJECT_BINARY_DIR}/packages/StyleConversionConfigVersion.cmake"
  DESTINATION "${package_folder}")

file(RELATIVE_PATH prefix_from_pkgconfig "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
# Where libraries are static, what they themselves link is named too, and headers must not ask for what a DLL exports.
list(TRANSFORM libraries PREPEND -l OUTPUT_VARIABLE pkgconfig_libraries)
set(pkgconfig_definitions)
if(NOT BUILD_SHARED_LIBS)
  list(APPEND pkgconfig_definitions -DSTYLECONVERSION_STATIC)
  if(STYLECONVERSION_HAS_OWN_MODELS)
    list(APPEND pkgconfig_definitions -DOXDB_STATIC -DTYLMODEL_STATIC)
  endif()
endif()
# What links static libraries computes with the system's maths functions, too.
if(MINGW AND NOT BUILD_SHARED_LIBS)
  list(APPEND pkgconfig_libraries -lStyleConversionMaths)
  install(FILES "${maths_library}" DESTINATION "${CMAKE_INSTALL_LIBDIR}")
  foreach(library ${libraries})
    target_link_libraries(${library} INTERFACE
      "$<INSTALL_INTERFACE:$<INSTALL_PREFIX>/${CMAKE_INSTALL_LIBDIR}/libStyleConversionMaths.a>")
  endforeach()
endif()
list(JOIN pkgconfig_libraries " " pkgconfig_libraries)
list(JOIN pkgconfig_definitions " " pkgconfig_definitions)
configure_file("${CMAKE_CURRENT_LIST_DIR}/StyleConversion.pc.in"
  "${PROJECT_BINARY_DIR}/packages/StyleConversion.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/packages/StyleConversion.pc"
  DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

# The C interface: its header goes where those of C++ are, and pkg-config knows it by its name.
if(TARGET StyleConversionC)
  install(FILES "${PROJECT_SOURCE_DIR}/c/StyleConversionC.h" DESTINATION "${include_root}")
  set_target_properties(StyleConversionC PROPERTIES INSTALL_RPATH "$ORIGIN")
  install(TARGETS StyleConversionC
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
  configure_file("${CMAKE_CURRENT_LIST_DIR}/StyleConversionC.pc.in"
    "${PROJECT_BINARY_DIR}/packages/StyleConversionC.pc" @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/packages/StyleConversionC.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
endif()

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

# For host developers: what the C library's own reports are under valgrind, and the reference, where it was made.
set(documents_folder "${CMAKE_INSTALL_DATADIR}/doc/styleconversion")
install(FILES "${PROJECT_SOURCE_DIR}/docs/hosts.md" "${PROJECT_SOURCE_DIR}/scripts/memcheck.supp"
  DESTINATION "${documents_folder}" COMPONENT documents)
if(STYLECONVERSION_REFERENCE)
  install(DIRECTORY "${PROJECT_BINARY_DIR}/docs/html/" DESTINATION "${documents_folder}/reference" COMPONENT documents)
endif()

# The compiler's runtime goes along where the system does not have it.
if(MINGW)
  install(FILES ${runtime_libraries} DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()
