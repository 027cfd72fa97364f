# Precompiled toolkit headers, in three sets: `core` for the libraries without windows, `windows` for the
# others, `tests` for the tests. A source file still includes what it uses: CI builds the release without them
# (CMAKE_DISABLE_PRECOMPILE_HEADERS), where a missing include is an error.
#
# The compiler accepts a precompiled header only where every macro has the value that it had there, so a
# set links only what each of its users links.
#
# Every user of a set pays for its pending template instantiations again. Headers that include the file
# system or the clocks of the standard library (QDir, QFile, QTimer) cost 0.1 to 0.2 s in each of some two
# hundred sources and are used by few, so they are in no set.
#
#   verdane_header_set(NAME LINKS ... HEADERS ...)   declares a set
#   verdane_use_headers(TARGET NAME)                 compiles a target with it

function(verdane_header_set name)
  cmake_parse_arguments(ARG "" "" "LINKS;HEADERS" ${ARGN})
  set(target verdane_headers_${name})
  set(source ${CMAKE_BINARY_DIR}/${target}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "")
  add_library(${target} STATIC ${source})
  target_link_libraries(${target} PRIVATE verdane_flags ${ARG_LINKS})
  target_precompile_headers(${target} PRIVATE ${ARG_HEADERS})
endfunction()

function(verdane_use_headers target name)
  target_precompile_headers(${target} REUSE_FROM verdane_headers_${name})
endfunction()

set(core_headers
  <QDate> <QHash> <QString> <QStringList> <QStringView> <QVariant>
  <algorithm> <array> <functional> <map> <memory> <optional> <utility> <vector>
  <boost/safe_numerics/safe_integer.hpp>)
set(window_headers
  ${core_headers}
  <QAction> <QApplication> <QComboBox> <QDialog> <QGridLayout> <QGroupBox> <QHBoxLayout> <QHeaderView>
  <QKeyEvent> <QLabel> <QLineEdit> <QListWidget> <QMenu> <QMessageBox> <QPainter> <QPushButton>
  <QTableView> <QVBoxLayout> <QWidget>)

verdane_header_set(core LINKS Qt6::Core Boost::boost HEADERS ${core_headers})
verdane_header_set(windows LINKS Qt6::Widgets Boost::boost HEADERS ${window_headers})
if(VERDANE_TESTS)
  # <QTest> takes longer to compile than a test. Its target defines the folder of each test as a macro, for
  # QFINDTESTDATA, which no test uses.
  find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
  set_target_properties(Qt6::Test PROPERTIES INTERFACE_COMPILE_DEFINITIONS QT_TESTLIB_LIB)
  verdane_header_set(tests LINKS Qt6::Widgets Qt6::Test Boost::boost HEADERS ${window_headers} <QTest>)
endif()
