# Checks that each screenshot of the metainfo is a picture of this tree with the stated size. Run by CTest:
#
#   cmake -D SOURCES=FOLDER -P CheckScreenshots.cmake
#
# The addresses are those of the published tree.

cmake_minimum_required(VERSION 3.25)

set(metainfo "${SOURCES}/packaging/io.verdane.Verdane.metainfo.xml")
file(STRINGS "${metainfo}" home REGEX "<url type=\"homepage\">")
string(REGEX REPLACE ".*>([^<]*)<.*" "\\1" home "${home}")
file(STRINGS "${metainfo}" images REGEX "<image ")
foreach(image IN LISTS images)
  if(NOT image MATCHES "width=\"([0-9]+)\" height=\"([0-9]+)\">${home}/([^<]*)</image>")
    message(FATAL_ERROR "not a picture with a size below ${home}: ${image}")
  endif()
  set(stated ${CMAKE_MATCH_1}x${CMAKE_MATCH_2})
  set(picture "${SOURCES}/${CMAKE_MATCH_3}")
  if(NOT EXISTS "${picture}")
    message(FATAL_ERROR "no file: ${picture}")
  endif()
  # The head of a PNG has the width and the height in four bytes each.
  file(READ "${picture}" head OFFSET 16 LIMIT 8 HEX)
  string(SUBSTRING ${head} 0 8 width)
  string(SUBSTRING ${head} 8 8 height)
  math(EXPR width "0x${width}")
  math(EXPR height "0x${height}")
  if(NOT stated STREQUAL ${width}x${height})
    message(FATAL_ERROR "${picture} has ${width}x${height} pixels, not ${stated}")
  endif()
endforeach()
list(LENGTH images count)
if(count LESS 5)
  message(FATAL_ERROR "${count} screenshots")
endif()
