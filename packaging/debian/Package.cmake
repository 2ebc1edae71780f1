# The package for Debian and its like.
set(MARLO_MAINTAINER "The Marlo authors <maintainers@marlo.example>" CACHE STRING
  "Name and address of whoever maintains the Debian package")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${MARLO_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
if(MARLO_HOMEPAGE)
  set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${MARLO_HOMEPAGE}")
endif()
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "show the plug-ins that Cubase SX projects use")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Marlo reads the project files of Cubase SX, lists every VST and DirectX plug-in
that they use and whether it is switched on, and takes the inventory of the
plug-ins that are installed. From both it reports which plug-ins are used,
unused, installed and missing, and finds the projects that use a plug-in.
.
There is a window, marlo, and the same in a terminal, marlo-cli.")
