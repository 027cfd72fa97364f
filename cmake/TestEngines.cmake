# Which tests use a store, and on which engines they run. Each test has one of these labels:
#
#   no_store   uses no store
#   file       uses a store that can only be the file of the embedded engine
#   store      runs on every engine; `./test --engine NAME` runs these tests
#   server     starts a server of its own
#
# Those of `store` that every run of `./test` repeats on the other engines also have the label `engines`.

# The only list of the tests that need no store.
set(VERDANE_FOLDERS_WITHOUT_STORE base scoring)
set(VERDANE_TESTS_WITHOUT_STORE
  library_dependencies version_of_release screenshots_of_metainfo manual_pages_name_every_option
  test_keyboard_hand
  test_boxes test_choice_menu test_entering test_failure_guard test_form test_keys test_leaving test_look
  test_scrolled_content test_shortcuts test_tab_strip
  test_Main_module test_round_labels
  test_drawing_texts
  test_class_captions
  test_club_texts test_selection_clauses
  test_column_value test_copy_days test_diary_copy test_mariadb_errors test_mariadb_tables test_registered_source test_select_statement
  test_source_tables test_sql_text test_tables)

# The only list of the tests that run on the embedded engine alone, with the reason.
set(VERDANE_FILE_TESTS
  test_copy_command         # both stores are files
  test_archive_safety       # see test_every_kill
  test_courses_safety       # see test_every_kill
  test_every_kill           # kills at writes of the file, and its size
  test_every_refusal        # see test_every_kill
  test_export_safety        # see test_every_kill
  test_import_faults        # what is wrong in files, before a store is opened
  test_sample_reports       # a file that another process writes
  test_sample_safety        # see test_every_kill
  test_Connection1          # the folder and the lock file that are made, and the settings of the engine
  test_daily_copy           # copies of the file
  test_dated_copies         # the same
  test_file_damage          # damages bytes of the file
  test_lock_wait            # the engine calls the program while it waits; the others wait by themselves
  test_lost_store           # files next to the store
  test_new_file             # a new file has all tables or none; a server commits each of them
  test_sqlite_rows          # the rows of the embedded engine
  test_missing_plugin       # a source that is never opened
  test_prepared_statements  # the others have no prepared statements
  test_restore_command      # a source is restored with copy
  test_refused_commit       # a hook of the engine refuses the commit
  test_store_failures       # permissions and size of the file
  test_stored_format        # the text of the statements in the file
  test_round_commits        # a hook of the engine runs at each commit
  test_full_disk            # a limit on the size of the file
  test_locked_diary         # see test_lock_wait
  test_locked_removal       # see test_lock_wait
  test_soundness            # damages bytes of the file
  test_start_refusals)      # permissions and content of the file

# Which tests of `store` also have the label `engines`. Of verdane-store only the copy between engines: the checks
# of a diary take a minute on each of them. Of the windows the one that names the argument of the open store.
set(VERDANE_FOLDERS_ON_ALL_ENGINES store statistics guided_day)
set(VERDANE_TESTS_ON_ALL_ENGINES test_copy_engines test_first_steps)

# Gives the labels to a test of the current folder.
function(verdane_label_test name)
  get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  if(name IN_LIST VERDANE_TESTS_WITHOUT_STORE OR folder IN_LIST VERDANE_FOLDERS_WITHOUT_STORE)
    set(labels no_store)
  elseif(folder STREQUAL server)
    set(labels server)
  elseif(name IN_LIST VERDANE_FILE_TESTS)
    set(labels file)
  elseif(folder IN_LIST VERDANE_FOLDERS_ON_ALL_ENGINES OR name IN_LIST VERDANE_TESTS_ON_ALL_ENGINES)
    set(labels store engines)
  else()
    set(labels store)
  endif()
  set_tests_properties(${name} PROPERTIES LABELS "${labels}")
  set_property(GLOBAL APPEND PROPERTY VERDANE_LABELLED_TESTS ${name})
endfunction()

# Fails if a list above names a test that does not exist. To be called after all tests were declared.
function(verdane_check_labels)
  get_property(known GLOBAL PROPERTY VERDANE_LABELLED_TESTS)
  foreach(name ${VERDANE_TESTS_WITHOUT_STORE} ${VERDANE_FILE_TESTS} ${VERDANE_TESTS_ON_ALL_ENGINES})
    if(NOT name IN_LIST known)
      message(FATAL_ERROR "cmake/TestEngines.cmake names ${name}, which is no test")
    endif()
  endforeach()
endfunction()
