# Read by cpack once for each package: the time of its files, which of the two components it holds, and
# where.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  set(ENV{SOURCE_DATE_EPOCH} ${CPACK_RELEASE_TIME})
endif()
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_BUILD_DIR};Tracewell;system;/")
else()
  set(CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_BUILD_DIR};Tracewell;portable;/")
  set(CPACK_PACKAGING_INSTALL_PREFIX "")
endif()
