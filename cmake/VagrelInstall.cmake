# SPDX-License-Identifier: MIT
# What `cmake --install` puts where. Components of find_package(vagrel): core is vagrel::vagrel, host is vagrel::host.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(VAGREL_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/vagrel)

# vagrel_install(TARGET COMPONENT FOLDER): a library, the headers of its folder, its pkg-config file.
function(vagrel_install target component folder)
    install(TARGETS ${target} EXPORT vagrel-${component})
    install(EXPORT vagrel-${component} NAMESPACE vagrel:: DESTINATION ${VAGREL_CMAKE_DIR})
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/${folder}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder}
            FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE)
    # From the file itself, so that a prefix given while installing holds.
    file(RELATIVE_PATH up /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${target}.pc.in ${target}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${target}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

vagrel_install(vagrel core vagrel)
if(VAGREL_HOST)
    set_target_properties(vagrel_host PROPERTIES EXPORT_NAME host INSTALL_RPATH $ORIGIN)
    vagrel_install(vagrel_host host host)
    set_target_properties(vagrel_cli PROPERTIES INSTALL_RPATH $ORIGIN/../${CMAKE_INSTALL_LIBDIR})
    install(TARGETS vagrel_cli)
endif()
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/vagrelConfig.cmake.in vagrelConfig.cmake
                              INSTALL_DESTINATION ${VAGREL_CMAKE_DIR})
write_basic_package_version_file(vagrelConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/vagrelConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/vagrelConfigVersion.cmake
        DESTINATION ${VAGREL_CMAKE_DIR})
