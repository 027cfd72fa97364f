#pragma once

#include <QString>
#include <QStringList>

#include <functional>

#include "tests/support/hand.h"

class QAction;
class QWidget;

/// What the tests of the main window share.
namespace verdane::testing {

/// A menu entry and a tool button of the main window; null where there is none of that name. To be
/// called in the window thread.
QAction* entry(const QString& name);
QWidget* tool(const QString& key);

/// Runs the program in a language (1 French, 2 English) on a store prepared with statements up to the
/// main window, lets the script work, and leaves.
void in_main_window(int language, const QStringList& statements, const std::function<void(hand&)>& script);

/// Waits for the main window and leaves the program by its menu.
void quit(hand& user);

/// Both languages, by the value that the store keeps, as rows of data in the column `language`.
void both_stored_languages();

}  // namespace verdane::testing
