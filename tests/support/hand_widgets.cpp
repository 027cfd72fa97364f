#include "tests/support/hand_widgets.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTabBar>
#include <QTextEdit>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

/// Whether a window is the modal one or a child of it, which takes input, too.
bool belongs_to(const QWidget* window, const QWidget* modal)
{
    while (window && window != modal)
        window = window->parentWidget();
    return window == modal;
}

}  // namespace

QList<QWidget*> windows_taking_input()
{
    QList<QWidget*> windows;
    for (QWidget* popup = QApplication::activePopupWidget(); popup; popup = nullptr)
        windows << popup;
    QWidget* modal = QApplication::activeModalWidget();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && (!modal || belongs_to(window, modal)) && !windows.contains(window))
            windows << window;
    }
    return windows;
}

QWidget* visible_window(const QString& name)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->objectName() == name)
            return window;
    }
    return nullptr;
}

QWidget* find_control(const QString& name)
{
    for (QWidget* window : windows_taking_input()) {
        if (window->objectName() == name)
            return window;
        if (auto* control = window->findChild<QWidget*>(name))
            return control;
    }
    return nullptr;
}

QAction* find_action(const QString& name)
{
    for (QWidget* window : windows_taking_input()) {
        if (auto* action = window->findChild<QAction*>(name))
            return action;
    }
    return nullptr;
}

QMenu* menu_of(const QAction& entry)
{
    QMenu* menu = nullptr;
    for (QObject* owner : entry.associatedObjects()) {
        if (qobject_cast<QMenuBar*>(owner))
            return nullptr;
        if (auto* found = qobject_cast<QMenu*>(owner))
            menu = found;
    }
    return menu;
}

QMenu* menu_on_top()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

QString text_of(const QWidget& control)
{
    if (auto* box = qobject_cast<const QLineEdit*>(&control))
        return box->text();
    if (auto* label = qobject_cast<const QLabel*>(&control))
        return label->text();
    if (auto* button = qobject_cast<const QAbstractButton*>(&control))
        return button->text();
    if (auto* combo = qobject_cast<const QComboBox*>(&control))
        return combo->currentText();
    if (auto* list = qobject_cast<const QListWidget*>(&control))
        return list->currentItem() ? list->currentItem()->text() : QString();
    if (auto* group = qobject_cast<const QGroupBox*>(&control))
        return group->title();
    if (auto* text = qobject_cast<const QTextEdit*>(&control))
        return text->toPlainText();
    return control.windowTitle();
}

QStringList entries_of(const QWidget& list)
{
    QStringList entries;
    if (auto* combo = qobject_cast<const QComboBox*>(&list)) {
        for (int i = 0; i < combo->count(); ++i)
            entries << combo->itemText(i);
    } else if (auto* rows = qobject_cast<const QListWidget*>(&list)) {
        for (int i = 0; i < rows->count(); ++i)
            entries << rows->item(i)->text();
    } else if (auto* tabs = qobject_cast<const QTabBar*>(&list)) {
        for (int i = 0; i < tabs->count(); ++i)
            entries << tabs->tabText(i);
    }
    return entries;
}

int selected_of(const QWidget& list)
{
    if (auto* combo = qobject_cast<const QComboBox*>(&list))
        return combo->currentIndex();
    if (auto* rows = qobject_cast<const QListWidget*>(&list))
        return rows->currentRow();
    if (auto* tabs = qobject_cast<const QTabBar*>(&list))
        return tabs->currentIndex();
    return -1;
}

QString describe_open_windows()
{
    QString lines;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible())
            continue;
        lines += u"  %1 \"%2\""_s.arg(window->objectName(), window->windowTitle());
        if (window->isActiveWindow())
            lines += u", active"_s;
        if (auto* box = qobject_cast<QMessageBox*>(window))
            lines += u" with the text \"%1\" %2"_s.arg(box->text(), box->informativeText());
        lines += u'\n';
    }
    return lines.isEmpty() ? u"  no window\n"_s : lines;
}

}  // namespace verdane::testing
