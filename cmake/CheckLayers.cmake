# Checks that each library depends only on libraries that are declared before it. Run by CTest:
#
#   cmake -D SOURCES=FOLDER -D LIBRARIES=FILE -P CheckLayers.cmake
#
# FILE has one line for each library, from the lowest to the highest: its name, then what it links.
#
# - A library links only libraries that are declared before it.
# - An include in src/ names its folder, and the folder is that of the file or of a library linked,
#   directly or through another one.
# - The sources of a library can be ordered so that each includes only those before it. A source is a *.cpp
#   with its header. The two sources of each of the `pairs` may include each other: a window and its routines, a
#   grid and its delegate, a report and its output.
# - The engines of the store are included by the store only.
# - The diagram of docs/architecture.md has exactly these links.

cmake_minimum_required(VERSION 3.25)

set(problems)
macro(problem)
  list(APPEND problems "${ARGN}")
endmacro()

set(folders)
set(diagram)
file(STRINGS ${LIBRARIES} lines)
foreach(line ${lines})
  string(REPLACE " " ";" links "${line}")
  list(POP_FRONT links name)
  string(REPLACE "verdane_" "" folder ${name})
  set(reachable_${folder} ${folder})
  foreach(link ${links})
    if(NOT link MATCHES "^verdane_")
      continue()
    endif()
    string(REPLACE "verdane_" "" target ${link})
    if(NOT target IN_LIST folders)
      problem("${folder} links ${target}, which is not declared before it")
    endif()
    list(APPEND reachable_${folder} ${reachable_${target}})
    string(APPEND diagram "    ${folder} --> ${target}\n")
  endforeach()
  list(APPEND folders ${folder})
endforeach()

foreach(folder ${folders})
  file(GLOB_RECURSE files ${SOURCES}/src/${folder}/*.h ${SOURCES}/src/${folder}/*.cpp)
  foreach(file ${files})
    file(STRINGS ${file} includes REGEX "^#include \"")
    foreach(include ${includes})
      string(REGEX REPLACE "^#include \"([^/\"]*).*" "\\1" target "${include}")
      if(NOT target IN_LIST reachable_${folder})
        problem("${file}: ${include}")
      endif()
      if(include MATCHES "^#include \"store/engines/" AND NOT folder STREQUAL store)
        problem("${file}: ${include}, which only the store may include")
      endif()
    endforeach()
  endforeach()
endforeach()

set(pairs
  controls/data_grid      controls/cell_delegate
  management/f_games      management/f_games_func
  reference/f_c_list      reference/f_c_list_func
  reference/f_cost        reference/f_cost_func
  reference/f_courses     reference/f_courses_func
  reference/f_partners    reference/f_partners_func
  reference/f_sticks      reference/f_sticks_func
  reports/report_document reports/output/report_output
  statistics/f_carte      statistics/f_carte_func
  statistics/f_date_range statistics/f_date_range_func)

# The source of a file or of an included header. The second one of a pair counts as the first.
function(source_of file result)
  string(REGEX REPLACE "\\.(h|cpp)$" "" source ${file})
  list(FIND pairs ${source} place)
  math(EXPR is_second "${place} % 2")
  if(is_second EQUAL 1)
    math(EXPR place "${place} - 1")
    list(GET pairs ${place} source)
  endif()
  set(${result} ${source} PARENT_SCOPE)
endfunction()

foreach(folder ${folders})
  file(GLOB_RECURSE files RELATIVE ${SOURCES}/src ${SOURCES}/src/${folder}/*.h ${SOURCES}/src/${folder}/*.cpp)
  set(sources)
  foreach(file ${files})
    source_of(${file} source)
    list(APPEND sources ${source})
    file(STRINGS ${SOURCES}/src/${file} includes REGEX "^#include \"${folder}/")
    foreach(include ${includes})
      string(REGEX REPLACE "^#include \"(.*)\".*" "\\1" header "${include}")
      source_of(${header} included)
      if(NOT included STREQUAL source)
        list(APPEND includes_of_${source} ${included})
      endif()
    endforeach()
  endforeach()
  list(REMOVE_DUPLICATES sources)
  # Removes the sources that include no other one, again and again. Those of a cycle are left.
  set(removed yes)
  while(removed)
    set(removed)
    foreach(source ${sources})
      set(others ${includes_of_${source}})
      list(REMOVE_ITEM others ${already_removed_${folder}} "")
      if(NOT others)
        list(APPEND removed ${source})
      endif()
    endforeach()
    list(APPEND already_removed_${folder} ${removed})
    list(REMOVE_ITEM sources ${removed} "")
  endwhile()
  if(sources)
    list(JOIN sources " " names)
    problem("these sources include each other, or one of such sources: ${names}")
  endif()
endforeach()

file(READ ${SOURCES}/docs/architecture.md architecture)
string(FIND "${architecture}" "```mermaid\ngraph BT\n${diagram}```\n" place)
if(place EQUAL -1)
  problem("docs/architecture.md lacks this diagram:\n```mermaid\ngraph BT\n${diagram}```")
endif()

if(problems)
  list(JOIN problems "\n" text)
  message(FATAL_ERROR "${text}")
endif()
list(LENGTH folders count)
message(STATUS "${count} libraries, each below those that use it")
