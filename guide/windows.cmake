# The pages that F1 opens. Each redirects to the section of a window, because an address with the name of a
# section cannot be opened on every desktop. A line has the page with the sections and the windows, or the
# states of windows (`src/controls/guide.cpp`), that it describes. A section has the name of its window.
set(guide_sections
  "costs.html       f_cost"
  "courses.html     f_c_list f_courses f_courses_holes"
  "golf_bag.html    f_sticks f_sticks_averages"
  "main_window.html MainForm f_about f_lang"
  "partners.html    f_partners"
  "preview.html     report_preview"
  "round.html       f_get_date f_new_round"
  "round_list.html  f_games"
  "scorecard.html   f_carte"
  "selection.html   f_date_range_clubs f_date_range_costs f_date_range_putts f_date_range_rounds"
  "shots.html       f_new_round_shots")

# Sets a variable to the text of the first element of a page with that tag.
function(verdane_text_of_page result page tag)
  file(READ ${page} text)
  if(NOT text MATCHES "<${tag}>([^<]*)</${tag}>")
    message(FATAL_ERROR "${page} has no ${tag}")
  endif()
  set(${result} "${CMAKE_MATCH_1}" PARENT_SCOPE)
endfunction()

# Writes the pages of a language into FOLDER/LANGUAGE/windows and appends their names, relative to the folder,
# to a variable. They have the title and heading of the page that they redirect to.
function(verdane_write_window_pages language folder result)
  set(names ${${result}})
  foreach(line IN LISTS guide_sections)
    separate_arguments(windows UNIX_COMMAND "${line}")
    list(POP_FRONT windows page)
    set(target ${CMAKE_CURRENT_SOURCE_DIR}/${language}/${page})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${target})
    verdane_text_of_page(title ${target} title)
    verdane_text_of_page(heading ${target} h1)
    foreach(window IN LISTS windows)
      configure_file(window.html.in ${folder}/${language}/windows/${window}.html @ONLY)
      list(APPEND names ${language}/windows/${window}.html)
    endforeach()
  endforeach()
  set(${result} ${names} PARENT_SCOPE)
endfunction()
