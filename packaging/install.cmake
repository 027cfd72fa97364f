# What an installation contains. The program reads its report templates, their layouts and the guide only
# from its folder, so all are in one folder. The command is a link to the program.
set(verdane_id io.verdane.Verdane)
set(verdane_home lib/verdane)

# All that an installation needs to be built.
add_custom_target(verdane_product DEPENDS verdane verdane-store verdane_templates verdane_guide)

install(TARGETS verdane verdane-store RUNTIME DESTINATION ${verdane_home})
install(CODE [[
  set(commands "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/bin")
  file(MAKE_DIRECTORY "${commands}")
  foreach(command verdane verdane-store)
    file(CREATE_LINK ../lib/verdane/${command} "${commands}/${command}" SYMBOLIC)
  endforeach()]])

install(DIRECTORY templates/ DESTINATION ${verdane_home} FILES_MATCHING
  PATTERN "*.rpt" PATTERN "*.layout")
# The second folder has the pages that the build makes.
install(DIRECTORY guide/ ${CMAKE_BINARY_DIR}/guide/pages/ DESTINATION ${verdane_home}/guide FILES_MATCHING
  PATTERN "*.html" PATTERN "*.css" PATTERN "*.png")
install(FILES packaging/${verdane_id}.desktop DESTINATION share/applications)
install(FILES packaging/${verdane_id}.metainfo.xml DESTINATION share/metainfo)
install(FILES src/shell/art/verdane.svg RENAME ${verdane_id}.svg
  DESTINATION share/icons/hicolor/scalable/apps)
