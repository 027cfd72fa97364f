# Headers are included by their bare names, so of two with one name the nearer hides the other, and
# what is hidden shows only in a build from scratch. No name may be given twice.
file(GLOB_RECURSE headers CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/src/*.h ${CMAKE_SOURCE_DIR}/tests/*.h ${CMAKE_SOURCE_DIR}/bench/*.h)
set(names)
foreach(header ${headers})
  get_filename_component(name ${header} NAME)
  if(name IN_LIST names)
    message(FATAL_ERROR "Two headers are called ${name}; the second is ${header}")
  endif()
  list(APPEND names ${name})
endforeach()
