# The Debian package, made from the installation by `cpack` in the folder of a release build.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME verdane)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_SOURCE_DIR}/packaging/debian_files.cmake)
set(CPACK_VERDANE_SOURCES ${CMAKE_SOURCE_DIR})
set(CPACK_VERDANE_RELEASE_DATE ${VERDANE_RELEASE_DATE})

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Verdane developers <developers@verdane.io>")
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION [[
Verdane keeps a golfer's courses, clubs, partners and rounds. A round is
entered hole by hole as counts, or shot by shot in a grid.
.
From the rounds it computes greens in regulation and the other classes of
holes, the differential of each round and the handicap, and prints club,
putt, round and cost statistics and a scorecard. The interface, the reports
and the guide are in French and in English.]])

# Sets a variable to the packages of a group of `tools/packages`, as a list of a control file.
function(verdane_packages_of group result)
  file(STRINGS ${CMAKE_SOURCE_DIR}/tools/packages line REGEX "^${group}: ")
  if(line STREQUAL "")
    message(FATAL_ERROR "tools/packages has no group ${group}")
  endif()
  string(REPLACE "${group}: " "" packages "${line}")
  string(REGEX REPLACE " +" ", " packages "${packages}")
  set(${result} "${packages}" PARENT_SCOPE)
endfunction()

# The libraries that the programs link are added to what they load while they run.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
verdane_packages_of(run CPACK_DEBIAN_PACKAGE_DEPENDS)
verdane_packages_of(desktop CPACK_DEBIAN_PACKAGE_RECOMMENDS)
verdane_packages_of(source CPACK_DEBIAN_PACKAGE_SUGGESTS)
include(CPack)
