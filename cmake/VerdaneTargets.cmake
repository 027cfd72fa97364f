# Flags that every target shares, and the functions that declare the targets of a folder:
#
#   verdane_library(NAME HEADERS SET LINKS ... SOURCES ...)   one folder of src/; SET is its set of
#                                                             precompiled headers
#   verdane_test(NAME LINKS ... SOURCES ... [COMMAND ...])    one test program; COMMAND runs it, with its
#                                                             arguments before the program
#
# The include root of the program is src/, so an include names its folder: "store/Recordset.h". Headers
# of tests and benchmarks are included from the root of the project: "tests/support/hand.h".

add_library(verdane_flags INTERFACE)
target_include_directories(verdane_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(verdane_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wnull-dereference
  # When GCC 12 optimises, it warns of overlapping copies in std::string.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  # With full optimisation it also warns of null pointers that were checked just before.
  $<$<CONFIG:Release>:-Wno-null-dereference>)
target_compile_definitions(verdane_flags INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER)
if(VERDANE_WERROR)
  target_compile_options(verdane_flags INTERFACE -Werror)
endif()
if(VERDANE_SANITIZE)
  target_compile_options(verdane_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer
    # GCC 12 warns of null dereferences in the code that the sanitizers insert.
    -Wno-null-dereference -Wno-maybe-uninitialized)
  target_link_options(verdane_flags INTERFACE -fsanitize=address,undefined)
endif()

# Two hundred test programs are linked: mold needs a fifth of the time of the default linker.
find_program(VERDANE_MOLD mold)
if(VERDANE_MOLD AND CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  target_link_options(verdane_flags INTERFACE -fuse-ld=mold)
endif()

function(verdane_library name)
  cmake_parse_arguments(ARG "" "HEADERS" "LINKS;SOURCES" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  verdane_use_headers(${name} ${ARG_HEADERS})
  target_link_libraries(${name} PUBLIC verdane_flags ${ARG_LINKS})
  list(JOIN ARG_LINKS " " links)
  set_property(GLOBAL APPEND_STRING PROPERTY VERDANE_LIBRARIES "${name} ${links}\n")
endfunction()

# The environment of every test: an offscreen screen of 1920 x 1080 pixels (the default has 800 x 800), and no
# leak report, because the toolkit does not free some of its memory.
set(VERDANE_TEST_SCREENS "${CMAKE_SOURCE_DIR}/tests/screens")
set(VERDANE_TEST_ENVIRONMENT
  "QT_QPA_PLATFORM=offscreen:configfile=${VERDANE_TEST_SCREENS}/desktop.json;ASAN_OPTIONS=detect_leaks=0;UBSAN_OPTIONS=print_stacktrace=1")

function(verdane_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "LINKS;SOURCES;COMMAND" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 300)
  endif()
  if(NOT ARG_SOURCES)
    set(ARG_SOURCES ${name}.cpp)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  verdane_use_headers(${name} tests)
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  # AUTOMOC adds this source to the target. It is empty, because a test includes its own *.moc file.
  set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/mocs_compilation.cpp
    PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
  target_link_libraries(${name} PRIVATE verdane_test_support ${ARG_LINKS} Qt6::Test)
  add_test(NAME ${name} COMMAND ${ARG_COMMAND} $<TARGET_FILE:${name}>)
  # By default Qt Test ends a test function after five minutes.
  set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT}
    ENVIRONMENT "${VERDANE_TEST_ENVIRONMENT};QTEST_FUNCTION_TIMEOUT=${ARG_TIMEOUT}000")
  verdane_label_test(${name})
endfunction()
