# What is installed where: the libraries for running programs, the rest for building them.
include(CMakePackageConfigHelpers)

# $ORIGIN: a program that finds the one library by its own run path must find the other beside it.
set_target_properties(zorsr5 PROPERTIES EXPORT_NAME zors INSTALL_RPATH $ORIGIN)
set_target_properties(zorcore PROPERTIES EXPORT_NAME core)
install(TARGETS zorsr5 zorcore EXPORT zorsTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
  FILES_MATCHING PATTERN *.h)

set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/zors)
configure_package_config_file(cmake/zorsConfig.cmake.in ${PROJECT_BINARY_DIR}/zorsConfig.cmake
  INSTALL_DESTINATION ${package_directory})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/zorsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/zorsConfig.cmake ${PROJECT_BINARY_DIR}/zorsConfigVersion.cmake
  DESTINATION ${package_directory} COMPONENT development)
install(EXPORT zorsTargets NAMESPACE zors:: DESTINATION ${package_directory} COMPONENT development)

# Paths from the file's own place, so that an installed tree can be moved.
set(pc_directory ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig)
foreach(place PREFIX FULL_LIBDIR FULL_INCLUDEDIR)
  cmake_path(RELATIVE_PATH CMAKE_INSTALL_${place} BASE_DIRECTORY ${pc_directory} OUTPUT_VARIABLE pc_${place})
endforeach()
configure_file(cmake/zors.pc.in ${PROJECT_BINARY_DIR}/zors.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zors.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

if(NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()

# Debian packages, by cpack in the build folder.
set(runtime_package libzors8.1)
set(development_package libzors-dev)
foreach(component runtime development)
  install(FILES LICENSE RENAME copyright
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${${component}_package} COMPONENT ${component})
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${${component}_package})
endforeach()
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "${PROJECT_DESCRIPTION}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "${PROJECT_DESCRIPTION}: headers")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "The zors authors <zors@example.org>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
include(CPack)
