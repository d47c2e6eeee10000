# Installs the library, its headers, the CLI, a CMake package
# (find_package(ZeltNavMsg)), a pkg-config file and the documents.

include(CMakePackageConfigHelpers)

set(ZELTNAVMSG_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ZeltNavMsg)

install(TARGETS zeltnavmsg
    EXPORT ZeltNavMsgTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/zeltnavmsg
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES ${ZELTNAVMSG_GENERATED_INCLUDE_DIR}/zeltnavmsg/Version.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zeltnavmsg)
if(TARGET navmsg)
    install(TARGETS navmsg RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

install(EXPORT ZeltNavMsgTargets
    NAMESPACE ZeltNavMsg::
    DESTINATION ${ZELTNAVMSG_CMAKE_DIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ZeltNavMsgConfig.cmake.in
    ${PROJECT_BINARY_DIR}/ZeltNavMsgConfig.cmake
    INSTALL_DESTINATION ${ZELTNAVMSG_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZeltNavMsgConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/ZeltNavMsgConfig.cmake
    ${PROJECT_BINARY_DIR}/ZeltNavMsgConfigVersion.cmake
    DESTINATION ${ZELTNAVMSG_CMAKE_DIR})

configure_file(${PROJECT_SOURCE_DIR}/cmake/zeltnavmsg.pc.in
    ${PROJECT_BINARY_DIR}/zeltnavmsg.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zeltnavmsg.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(FILES
    ${PROJECT_SOURCE_DIR}/LICENSE
    ${PROJECT_SOURCE_DIR}/README.md
    ${PROJECT_SOURCE_DIR}/CHANGELOG.md
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/zeltnavmsg)
