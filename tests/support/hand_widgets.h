#pragma once

#include <QString>
#include <QStringList>

class QAction;
class QWidget;

/// Finding and reading controls. To be called in the window thread.
namespace verdane::testing {

/// The windows that take input now: the modal one with its children, else every visible window.
QList<QWidget*> windows_taking_input();
QWidget* visible_window(const QString& name);
/// A control of that name in the windows that take input; null when there is none.
QWidget* find_control(const QString& name);
QAction* find_action(const QString& name);
QString text_of(const QWidget& control);
QStringList entries_of(const QWidget& list);
int selected_of(const QWidget& list);
/// A line for each open window: what a lost script saw.
QString what_is_open();

}  // namespace verdane::testing
