# `make package`: a Debian package of what the install rules put in place. Its dependencies
# are computed: dpkg-shlibdeps reads the binaries' shared libraries, and the packages of the
# QML modules and plug-ins Qt loads at run time (which no binary links) are looked up with
# dpkg from the files this build uses (qmlruntime.cmake).
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME platterbox)
set(CPACK_PACKAGE_VENDOR "The Platterbox developers")
set(CPACK_PACKAGE_CONTACT "Platterbox <support@platterbox.example.com>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://platterbox.example.com")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "catalogue of a vinyl record collection")
set(CPACK_PACKAGE_DESCRIPTION
    "Platterbox records each album of a vinyl collection with its tracks, condition, value and \
cover pictures; browses the collection as a searchable grid and grouped by artist, label, \
producer and year; makes PDF documents and printed reports; and moves the collection to and \
from an exchange file. The platterbox command works on the same collection.")
set(CPACK_PACKAGE_INSTALL_DIRECTORY ${CPACK_PACKAGE_NAME})
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/package)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

include(${CMAKE_CURRENT_LIST_DIR}/qmlruntime.cmake)
platterbox_runtime_packages(PB_RUNTIME_PACKAGES)
list(JOIN PB_RUNTIME_PACKAGES ", " CPACK_DEBIAN_PACKAGE_DEPENDS)

include(CPack)
