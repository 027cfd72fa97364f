# Checks that the manual pages of verdane-store name the commands, options and exit statuses that the program
# itself names, in both languages, and no others. Run by CTest:
#
#   cmake -D PROGRAM=FILE -D MANUAL=FOLDER -P CheckManual.cmake

cmake_minimum_required(VERSION 3.25)

# Fails unless a list has the elements of another one, which is not empty, in any order.
function(compare what program manual)
  foreach(list program manual)
    list(REMOVE_DUPLICATES ${list})
    list(SORT ${list})
  endforeach()
  if(NOT program OR NOT program STREQUAL manual)
    message(FATAL_ERROR "${what} of --help: ${program}; of the manual page: ${manual}")
  endif()
endfunction()

# The lines after a heading, up to the next one.
function(part_of text start end result)
  string(REGEX REPLACE "^.*\n${start}[^\n]*" "" part "\n${text}")
  string(REGEX REPLACE "\n${end}.*$" "" part "${part}")
  set(${result} "${part}" PARENT_SCOPE)
endfunction()

# Every match of the group in a regular expression.
function(words_in text expression result)
  string(REGEX MATCHALL "${expression}" found "${text}")
  list(TRANSFORM found REPLACE "${expression}" "\\1")
  set(${result} ${found} PARENT_SCOPE)
endfunction()

# Lines without blanks and with round brackets: CMake does not split a list within square ones.
function(plain_lines lines result)
  set(plain)
  foreach(line IN LISTS lines)
    string(REPLACE " " "" line "${line}")
    list(APPEND plain "${line}")
  endforeach()
  set(${result} "${plain}" PARENT_SCOPE)
endfunction()

# The commands of the help with their options and arguments. Two blanks end a synopsis.
function(synopses_of_help part result)
  string(REPLACE "[" "(" part "${part}")
  string(REPLACE "]" ")" part "${part}")
  words_in("${part}" "\n  ([a-z]+( [^ \n]+)*)" found)
  plain_lines("${found}" found)
  set(${result} "${found}" PARENT_SCOPE)
endfunction()

# The same from a manual page, where .br ends a synopsis. The last one has the options of the program itself.
function(synopses_of_page part result)
  string(REPLACE "[" "(" part "${part}")
  string(REPLACE "]" ")" part "${part}")
  string(REGEX REPLACE "\"" "" part "${part}")
  string(REPLACE "\n.br\n" ";" found "${part}")
  list(POP_BACK found)
  list(TRANSFORM found REPLACE "\n?\\.(BI|BR|RB|B|I) " "")
  list(TRANSFORM found REPLACE "^verdane-store " "")
  plain_lines("${found}" found)
  set(${result} "${found}" PARENT_SCOPE)
endfunction()

function(check_language language locale commands statuses)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=${locale} ${PROGRAM} --help
    OUTPUT_VARIABLE help COMMAND_ERROR_IS_FATAL ANY)
  file(READ ${MANUAL}/${language}/verdane-store.1 page)
  string(REPLACE "\\-" "-" page "${page}")

  words_in("${help}" "(--[a-z-]+)" in_help)
  words_in("${page}" "(--[a-z-]+)" in_page)
  compare("${language}: options" "${in_help}" "${in_page}")

  part_of("${help}" "${commands}" "\n" part)
  words_in("${part}" "\n  ([a-z]+)" in_help)
  part_of("${page}" "\\.SH COMMAND" "\\.SH" part)
  words_in("${part}" "\n\\.TP\n\\.BI? ([a-z]+)" in_page)
  compare("${language}: commands" "${in_help}" "${in_page}")

  part_of("${help}" "${commands}" "\n" part)
  synopses_of_help("${part}" in_help)
  part_of("${page}" "\\.SH SYNOPSIS" "\\.SH" part)
  synopses_of_page("${part}" in_page)
  compare("${language}: synopses" "${in_help}" "${in_page}")

  # The list of exit statuses ends with a blank line.
  string(FIND "${help}" "${statuses}" start)
  string(SUBSTRING "${help}" ${start} -1 part)
  string(REGEX REPLACE "\n\n.*$" "" part "${part}")
  words_in("${part}" "[ \n]([0-9]+) " in_help)
  part_of("${page}" "\\.SH \"?(EXIT STATUS|ÉTAT DE SORTIE)" "\\.SH" part)
  words_in("${part}" "\n\\.TP\n\\.B ([0-9]+)" in_page)
  compare("${language}: exit statuses" "${in_help}" "${in_page}")
endfunction()

check_language(en C.UTF-8 "Commands:" "Exit status:")
check_language(fr fr_FR.UTF-8 "Commandes :" "État de sortie :")
