# Checks that the files which people write for a release name the version of the project. Run by CTest:
#
#   cmake -D SOURCES=FOLDER -D VERSION=NUMBER -P CheckVersion.cmake
#
# The program takes its version from CMake (`base/program.h`). The newest release in the metainfo and a
# heading in the change log have to name the same one.

cmake_minimum_required(VERSION 3.25)

file(READ "${SOURCES}/packaging/io.verdane.Verdane.metainfo.xml" metainfo)
string(REGEX MATCH "<release version=\"([^\"]*)\"" newest "${metainfo}")
if(NOT CMAKE_MATCH_1 STREQUAL VERSION)
  message(FATAL_ERROR "the newest release in the metainfo is \"${CMAKE_MATCH_1}\", not ${VERSION}")
endif()

file(STRINGS "${SOURCES}/CHANGELOG.md" headings REGEX "^## ")
if(NOT "## ${VERSION}" IN_LIST headings)
  message(FATAL_ERROR "CHANGELOG.md has no heading \"## ${VERSION}\"")
endif()
