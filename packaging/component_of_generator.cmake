# Read by cpack once for each kind of package that it makes.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_COMPONENTS_ALL debian)
else()
  set(CPACK_COMPONENTS_ALL portable)
  set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
endif()
