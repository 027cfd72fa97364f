#pragma once

#include <QString>
#include <QStringList>

#include <functional>

#include "tests/support/hand.h"

class QAction;
class QWidget;

/// Functions that the tests of the main window share.
namespace verdane::testing {

/// A menu entry and a tool button of the main window; null if there is none of that name. To be called in the
/// thread of the windows.
QAction* entry(const QString& name);
QWidget* tool(const QString& key);

/// Runs the program in a language (1 French, 2 English) on a store prepared with statements. Calls the script
/// when the main window is open, and quits.
void in_main_window(int language, const QStringList& statements, const std::function<void(hand&)>& script);

/// Waits for the main window and quits the program by its menu.
void quit(hand& user);

/// Rows of data for both languages: their stored values in the column `language`.
void both_stored_languages();

}  // namespace verdane::testing
