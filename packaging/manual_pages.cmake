# The manual pages in both languages, with the version filled in, compressed as in every distribution.
find_program(GZIP gzip REQUIRED)
set(manual_pages)
foreach(page en/verdane en/verdane-store fr/verdane fr/verdane-store)
  cmake_path(GET page PARENT_PATH language)
  set(written ${CMAKE_BINARY_DIR}/man/${page}.1)
  configure_file(packaging/man/${page}.1.in ${written} @ONLY)
  add_custom_command(OUTPUT ${written}.gz
    COMMAND ${GZIP} --force --keep --best --no-name ${written}
    DEPENDS ${written}
    COMMENT "Compressing man/${page}.1"
    VERBATIM)
  list(APPEND manual_pages ${written}.gz)
  # Pages in English are not in a folder of their language.
  if(language STREQUAL en)
    set(language .)
  endif()
  install(FILES ${written}.gz DESTINATION share/man/${language}/man1)
endforeach()
add_custom_target(verdane_manual_pages ALL DEPENDS ${manual_pages})
