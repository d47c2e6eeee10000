# Debian packages with CPack, one per install component (cmake/Install.cmake):
#
#   runtime  libzeltnavmsg0     the shared library (the package name carries the SONAME
#                               version) and the documents
#   dev      libzeltnavmsg-dev  headers, the static library, the CMake package and the
#                               pkg-config file
#   tools    zeltnavmsg-tools   navmsg and its man page
#   python   python3-zeltnavmsg the Python module (the library linked in statically),
#                               for the one Python version it was built for
#
# Configure with ZELTNAVMSG_PACKAGING=ON, BUILD_SHARED_LIBS=ON and the prefix /usr
# (the package preset; scripts/package.sh), then run cpack.

set(ZELTNAVMSG_PACKAGE_MAINTAINER "ZeltNavMsg developers" CACHE STRING
    "Maintainer field of the Debian packages, \"Name <e-mail>\"")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zeltnavmsg)
set(CPACK_PACKAGE_VENDOR "the ZeltNavMsg developers")
set(CPACK_PACKAGE_CONTACT "${ZELTNAVMSG_PACKAGE_MAINTAINER}")
# Empty: each package's synopsis is the first line of its own description below,
# not one line shared by all.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)  # name_version-release_arch.deb
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# Depends: from dpkg-shlibdeps for what the binaries link...
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# ...where navmsg's libzeltnavmsg.so.0 is the one just built, in no installed package;
# the exact version of it comes from the component dependencies below.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
# DEBIAN/shlibs of the library package, for the packages of programs built against it:
# they depend on this exact version, as the ABI of a 0.x version may change with the
# next one while the SONAME stays.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY "=")

string(CONCAT zeltnavmsg_about
    "ZeltNavMsg turns the raw bits of one GNSS navigation message (GPS and QZSS LNAV,\n"
    "GPS CNAV-2, BeiDou D1, D2, B-CNAV1 and B-CNAV2, IRNSS L5), given as hex text,\n"
    "into a readable listing of every field with its value in engineering units.")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libzeltnavmsg${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION
    "GNSS navigation message decoding library\n${zeltnavmsg_about}\n\nThis package holds the shared library.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libzeltnavmsg-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEV_DEPENDS runtime)
string(CONCAT CPACK_DEBIAN_DEV_DESCRIPTION
    "GNSS navigation message decoding library (development files)\n${zeltnavmsg_about}\n\n"
    "This package holds the C++ headers, the static library, the CMake package\n"
    "(find_package(ZeltNavMsg)) and the pkg-config file (zeltnavmsg).")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME zeltnavmsg-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION science)
set(CPACK_COMPONENT_TOOLS_DEPENDS runtime)
string(CONCAT CPACK_DEBIAN_TOOLS_DESCRIPTION
    "GNSS navigation message decoder for the command line\n${zeltnavmsg_about}\n\n"
    "This package holds navmsg, which decodes messages given on the command line or\n"
    "in files, one per line.")

set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-zeltnavmsg)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
string(CONCAT CPACK_DEBIAN_PYTHON_DESCRIPTION
    "GNSS navigation message decoding library (Python 3 module)\n${zeltnavmsg_about}\n\n"
    "This package holds the zeltnavmsg module: listings, field records, integrity\n"
    "checks, receiver logs and encoding from Python, with pandas and Dask helpers.")
# to_dataframe and the archive example; the module imports without them.
set(CPACK_DEBIAN_PYTHON_PACKAGE_SUGGESTS "python3-pandas, python3-dask, python3-distributed")
# The compiled module is named for one interpreter ABI (cpython-3XY), so it loads
# into that Python version only.
if(ZELTNAVMSG_BUILD_PYTHON)
    math(EXPR zeltnavmsg_python_next "${Python3_VERSION_MINOR} + 1")
    set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
        "python3 (>= ${Python3_VERSION_MAJOR}.${Python3_VERSION_MINOR}), python3 (<< ${Python3_VERSION_MAJOR}.${zeltnavmsg_python_next})")
endif()

set(CPACK_COMPONENTS_ALL runtime dev tools)
get_cmake_property(zeltnavmsg_components COMPONENTS)
if(python IN_LIST zeltnavmsg_components)
    list(APPEND CPACK_COMPONENTS_ALL python)
endif()
# A rule without a component would install into no package.
if(ZELTNAVMSG_PACKAGING AND Unspecified IN_LIST zeltnavmsg_components)
    message(FATAL_ERROR "An install rule names no COMPONENT; give it runtime, dev, tools or python")
endif()

# Debian wants each package's licence as /usr/share/doc/<package>/copyright.
if(ZELTNAVMSG_PACKAGING)
    foreach(component IN LISTS CPACK_COMPONENTS_ALL)
        string(TOUPPER ${component} upper)
        install(FILES ${PROJECT_SOURCE_DIR}/LICENSE
            DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME}
            RENAME copyright
            COMPONENT ${component})
    endforeach()
endif()

include(CPack)
