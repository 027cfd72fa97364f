# The icon of the program in the sizes that desktops use, drawn from the picture of the program.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
set(icon_picture ${CMAKE_SOURCE_DIR}/src/shell/art/verdane.svg)
set(icons)
foreach(size 16 22 24 32 48 64 128 256 512)
  set(icon ${CMAKE_BINARY_DIR}/icons/${size}.png)
  add_custom_command(OUTPUT ${icon}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/icons
    COMMAND ${RSVG_CONVERT} --width=${size} --height=${size} --output=${icon} ${icon_picture}
    DEPENDS ${icon_picture}
    COMMENT "Drawing the icon of ${size} pixels"
    VERBATIM)
  list(APPEND icons ${icon})
  install(FILES ${icon} RENAME ${verdane_id}.png DESTINATION share/icons/hicolor/${size}x${size}/apps)
endforeach()
add_custom_target(verdane_icons ALL DEPENDS ${icons})
install(FILES ${icon_picture} RENAME ${verdane_id}.svg DESTINATION share/icons/hicolor/scalable/apps)
