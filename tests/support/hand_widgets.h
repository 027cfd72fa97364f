#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

class QAction;
class QMenu;

/// Finding and reading controls. To be called in the window thread.
namespace verdane::testing {

/// The windows that take input: an open pop-up, and the active modal window with its children or, without a
/// modal one, every visible window.
QList<QWidget*> windows_taking_input();
QWidget* visible_window(const QString& name);
/// A control of that name in the windows that take input, or null.
QWidget* find_control(const QString& name);
/// The control of that name and type in a window.
template <typename Control>
Control& find_control(const QWidget& window, const QString& name)
{
    return dynamic_cast<Control&>(*window.findChild<QWidget*>(name));
}
QAction* find_action(const QString& name);
/// The menu with the entry; null for an entry of the menu bar itself.
QMenu* menu_of(const QAction& entry);
/// The open menu, or null.
QMenu* menu_on_top();
QString text_of(const QWidget& control);
QStringList entries_of(const QWidget& list);
int selected_of(const QWidget& list);
/// A line for each open window, for the message of a failure.
QString describe_open_windows();

}  // namespace verdane::testing
