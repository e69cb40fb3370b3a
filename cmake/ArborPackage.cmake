# What a project needs for find_package(K7Arbor).
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/K7Arbor)
install(EXPORT K7ArborTargets NAMESPACE K7:: DESTINATION ${package_dir})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/K7ArborConfig.cmake.in
  ${PROJECT_BINARY_DIR}/K7ArborConfig.cmake INSTALL_DESTINATION ${package_dir} PATH_VARS ARBOR_QML_DIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/K7ArborConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/K7ArborConfig.cmake ${PROJECT_BINARY_DIR}/K7ArborConfigVersion.cmake
  DESTINATION ${package_dir})
