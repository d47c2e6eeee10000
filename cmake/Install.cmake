# Installs the library, its headers, the CLI, a CMake package
# (find_package(ZeltNavMsg)), a pkg-config file and the documents.
#
# Every rule names the component, that is the Debian package, its files go to
# (cmake/Packaging.cmake): runtime (libzeltnavmsg0), dev (libzeltnavmsg-dev),
# tools (zeltnavmsg-tools). A plain install installs them all.

include(CMakePackageConfigHelpers)

set(ZELTNAVMSG_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ZeltNavMsg)
set(ZELTNAVMSG_DOC_DIR ${CMAKE_INSTALL_DATADIR}/doc/zeltnavmsg)

install(TARGETS zeltnavmsg
    EXPORT ZeltNavMsgTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
if(TARGET zeltnavmsg_static)
    install(TARGETS zeltnavmsg_static
        EXPORT ZeltNavMsgTargets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev)
endif()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/zeltnavmsg
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    COMPONENT dev)
install(FILES ${ZELTNAVMSG_GENERATED_INCLUDE_DIR}/zeltnavmsg/Version.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zeltnavmsg
    COMPONENT dev)
if(TARGET navmsg)
    install(TARGETS navmsg RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
endif()

install(EXPORT ZeltNavMsgTargets
    NAMESPACE ZeltNavMsg::
    DESTINATION ${ZELTNAVMSG_CMAKE_DIR}
    COMPONENT dev)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ZeltNavMsgConfig.cmake.in
    ${PROJECT_BINARY_DIR}/ZeltNavMsgConfig.cmake
    INSTALL_DESTINATION ${ZELTNAVMSG_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZeltNavMsgConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/ZeltNavMsgConfig.cmake
    ${PROJECT_BINARY_DIR}/ZeltNavMsgConfigVersion.cmake
    DESTINATION ${ZELTNAVMSG_CMAKE_DIR}
    COMPONENT dev)

# The pkg-config file finds the installation from its own place (${pcfiledir}, in
# <libdir>/pkgconfig), so that a tree installed with any --prefix, or moved, still
# works. Absolute install directories are taken as they are.
set(ZELTNAVMSG_PC_PREFIX "\${pcfiledir}")
string(REPLACE "/" ";" _zeltnavmsg_pc_parts "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
foreach(_zeltnavmsg_part IN LISTS _zeltnavmsg_pc_parts)
    if(NOT _zeltnavmsg_part STREQUAL "" AND NOT _zeltnavmsg_part STREQUAL ".")
        string(APPEND ZELTNAVMSG_PC_PREFIX "/..")
    endif()
endforeach()
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
    set(ZELTNAVMSG_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
    set(ZELTNAVMSG_PC_LIBDIR "${CMAKE_INSTALL_LIBDIR}")
else()
    set(ZELTNAVMSG_PC_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
endif()
if(IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
    set(ZELTNAVMSG_PC_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}")
else()
    set(ZELTNAVMSG_PC_INCLUDEDIR "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
endif()
set(ZELTNAVMSG_PC_DEFINES "")
if(BUILD_SHARED_LIBS)
    set(ZELTNAVMSG_PC_DEFINES " -DZELTNAVMSG_SHARED")
endif()
configure_file(${PROJECT_SOURCE_DIR}/cmake/zeltnavmsg.pc.in
    ${PROJECT_BINARY_DIR}/zeltnavmsg.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zeltnavmsg.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT dev)

# The licence, the README and the changelog go with the library, which every other
# package depends on.
install(FILES
    ${PROJECT_SOURCE_DIR}/LICENSE
    ${PROJECT_SOURCE_DIR}/README.md
    ${PROJECT_SOURCE_DIR}/CHANGELOG.md
    DESTINATION ${ZELTNAVMSG_DOC_DIR}
    COMPONENT runtime)
