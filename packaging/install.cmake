# What an installation contains. The program reads its report templates, their layouts and the guide only
# from its folder. The guide itself is in the folder for files that are the same on every machine; its place
# in the folder of the program is a link, and so are the commands. All links are relative, so an installation
# can be moved.
set(verdane_id io.verdane.Verdane)
set(verdane_home lib/verdane)
set(verdane_guide share/verdane/guide)

# The day of the newest release.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS packaging/${verdane_id}.metainfo.xml)
file(STRINGS packaging/${verdane_id}.metainfo.xml releases REGEX "<release version=")
string(REGEX MATCH "date=\"([^\"]*)\"" VERDANE_RELEASE_DATE "${releases}")
set(VERDANE_RELEASE_DATE ${CMAKE_MATCH_1})

include(packaging/icons.cmake)
include(packaging/manual_pages.cmake)

# All that an installation needs to be built.
add_custom_target(verdane_product DEPENDS
  verdane verdane-store verdane_templates verdane_guide verdane_icons verdane_manual_pages)

install(TARGETS verdane verdane-store RUNTIME DESTINATION ${verdane_home})
install(CODE [[
  set(prefix "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
  file(MAKE_DIRECTORY "${prefix}/bin")
  foreach(command verdane verdane-store)
    file(CREATE_LINK ../lib/verdane/${command} "${prefix}/bin/${command}" SYMBOLIC)
    list(APPEND CMAKE_INSTALL_MANIFEST_FILES "${CMAKE_INSTALL_PREFIX}/bin/${command}")
  endforeach()
  # The guide of an earlier installation is a folder, which a link cannot replace.
  file(REMOVE_RECURSE "${prefix}/lib/verdane/guide")
  file(CREATE_LINK ../../share/verdane/guide "${prefix}/lib/verdane/guide" SYMBOLIC)
  list(APPEND CMAKE_INSTALL_MANIFEST_FILES "${CMAKE_INSTALL_PREFIX}/lib/verdane/guide")]])

install(DIRECTORY templates/ DESTINATION ${verdane_home} FILES_MATCHING
  PATTERN "*.rpt" PATTERN "*.layout")
# The second folder has the pages that the build makes.
install(DIRECTORY guide/ ${CMAKE_BINARY_DIR}/guide/pages/ DESTINATION ${verdane_guide} FILES_MATCHING
  PATTERN "*.html" PATTERN "*.css" PATTERN "*.png" PATTERN "*.csv")
install(FILES packaging/${verdane_id}.desktop DESTINATION share/applications)
install(FILES packaging/${verdane_id}.metainfo.xml DESTINATION share/metainfo)
