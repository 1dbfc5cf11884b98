# What scripts/package.sh makes of an installed tree: natively Debian packages, one a component; of the Windows build one
# archive with everything.

set(CPACK_PACKAGE_NAME tavlon)
set(CPACK_PACKAGE_VENDOR "Tavlon developers")
set(CPACK_PACKAGE_CONTACT "Tavlon developers <tavlon@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development gallery)

if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_FILE_NAME tavlon-${PROJECT_VERSION}-windows-x86_64)
  include(CPack)
  return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

set(runtime_package libtavlon${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
# The faces that labels and titles are drawn with, and one for characters they lack; the libraries that the files themselves
# name are added.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "fonts-arphic-ukai, fonts-wqy-microhei, fonts-urw-base35, fonts-dejavu-core")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "The shared libraries: radars, sector wheel, minute chart, money-flow pies,
gauges and tab strip for programs that show the Chinese stock market, in a
window or without a display.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libtavlon-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
# Tavlon::Picture is a static library, so its host links libpng.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION}), libpng-dev")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "cmake, pkg-config")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "What programs with these controls are built with: headers, the CMake package
Tavlon and the pkg-config package tavlon.")

set(CPACK_DEBIAN_GALLERY_PACKAGE_NAME tavlon-gallery)
set(CPACK_DEBIAN_GALLERY_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_GALLERY_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_GALLERY_DESCRIPTION "The gallery: every control on real days of the market, in a window or as PNG
files.")
include(CPack)
