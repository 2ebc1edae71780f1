# Read by CPack for each kind of package: which of the project's files go into it.
set(component portable)
if(CPACK_GENERATOR STREQUAL "DEB")
  set(component installed)
endif()
list(TRANSFORM CPACK_INSTALL_CMAKE_PROJECTS REPLACE "^ALL$" "${component}")
