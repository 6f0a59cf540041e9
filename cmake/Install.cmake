# What `cmake --install` places. The folder of the programs holds the library and all that they load,
# as in the build; it can be copied anywhere.
include(CMakePackageConfigHelpers)

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/InstallerLib")
install(TARGETS InstallerLib EXPORT InstallerLibTargets
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
    LIBRARY DESTINATION "${CMAKE_INSTALL_BINDIR}"
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    FILE_SET HEADERS DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/InstallerLib")
install(EXPORT InstallerLibTargets NAMESPACE InstallerLib:: DESTINATION "${package_folder}")

configure_package_config_file(cmake/InstallerLibConfig.cmake.in
    "${PROJECT_BINARY_DIR}/InstallerLibConfig.cmake"
    INSTALL_DESTINATION "${package_folder}"
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/InstallerLibConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/InstallerLibConfig.cmake"
    "${PROJECT_BINARY_DIR}/InstallerLibConfigVersion.cmake"
    DESTINATION "${package_folder}")

if(NOT WIN32)
    # The programs that the library looks for beside itself.
    install(TARGETS taskkill schtasks cmd RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()
if(VORLAN_BUILD_FRONTEND)
    install(TARGETS installergui corechecker RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
    install(DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/resources"
        DESTINATION "${CMAKE_INSTALL_BINDIR}"
        FILES_MATCHING PATTERN "*.qm")
endif()
