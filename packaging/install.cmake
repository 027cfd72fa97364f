# What an installation lays down. The program and its report templates stand side by side, since it
# looks for them in its own folder and nowhere else; the command is a link to it.
set(verdane_id io.verdane.Verdane)
set(verdane_home lib/verdane)

install(TARGETS verdane RUNTIME DESTINATION ${verdane_home})
install(CODE [[
  set(commands "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/bin")
  file(MAKE_DIRECTORY "${commands}")
  file(CREATE_LINK ../lib/verdane/verdane "${commands}/verdane" SYMBOLIC)]])

install(DIRECTORY templates/ DESTINATION ${verdane_home} FILES_MATCHING PATTERN "*.rpt")
install(FILES packaging/${verdane_id}.desktop DESTINATION share/applications)
install(FILES packaging/${verdane_id}.metainfo.xml DESTINATION share/metainfo)
install(FILES src/shell/art/verdane.svg RENAME ${verdane_id}.svg
  DESTINATION share/icons/hicolor/scalable/apps)
