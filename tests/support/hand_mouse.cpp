#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTabBar>
#include <QTest>
#include <QWindow>

#include <cstdio>

#include "tests/support/hand.h"
#include "tests/support/hand_thread.h"
#include "tests/support/hand_widgets.h"

namespace verdane::testing {

namespace {

QPoint middle_of_row(const QListWidget& list, int row)
{
    return list.visualItemRect(list.item(row)).center();
}

void click_action(QWidget& owner, const QRect& where)
{
    QTest::mouseClick(&owner, Qt::LeftButton, Qt::NoModifier, where.center());
}

}  // namespace

void hand::click(const QString& control)
{
    on_control(control, [&](QWidget& found) {
        if (!found.isVisible() || !found.isEnabled())
            std::fprintf(stderr, "note: %s is hidden or disabled\n", qUtf8Printable(control));
    });
    check(result_of<bool>([&] { return find_control(control)->isVisible(); }), control + u" is not visible");
    post([control] {
        if (QWidget* found = find_control(control))
            QTest::mouseClick(found, Qt::LeftButton);
    });
}

void hand::press_and_release(QWidget& control, const QPoint& place)
{
    const QPointer<QWindow> window = control.window()->windowHandle();
    const QPoint at = control.mapTo(control.window(), place);
    post([window, at] { QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, at); });
    post([window, at] {
        if (window)
            QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, at);
    });
}

void hand::press_and_release(const QString& control)
{
    QWidget* found = nullptr;
    on_control(control, [&found](QWidget& there) { found = &there; });
    press_and_release(*found, found->rect().center());
}

void hand::press_and_release_tab(const QString& tabs, int tab)
{
    QTabBar* bar = nullptr;
    on_control(tabs, [&bar](QWidget& there) { bar = &dynamic_cast<QTabBar&>(there); });
    press_and_release(*bar, bar->tabRect(tab - 1).center());
}

void hand::press_and_release_row(const QString& list, int row)
{
    QListWidget* rows = nullptr;
    on_control(list, [&rows](QWidget& there) { rows = &dynamic_cast<QListWidget&>(there); });
    press_and_release(*rows->viewport(), middle_of_row(*rows, row));
}

void hand::click_row(const QString& list, int row)
{
    on_control(list, [](QWidget&) {});
    post([list, row] {
        auto& rows = dynamic_cast<QListWidget&>(*find_control(list));
        rows.scrollToItem(rows.item(row));
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, Qt::NoModifier, middle_of_row(rows, row));
    });
}

void hand::double_click(const QString& button)
{
    on_control(button, [](QWidget&) {});
    post([button] {
        QWidget* found = find_control(button);
        QTest::mouseClick(found, Qt::LeftButton);
        QTest::mouseDClick(found, Qt::LeftButton);
        QTest::mouseRelease(found, Qt::LeftButton);
    });
}

void hand::double_click_row(const QString& list, int row)
{
    click_row(list, row);
    post([list, row] {
        auto& rows = dynamic_cast<QListWidget&>(*find_control(list));
        QTest::mouseDClick(rows.viewport(), Qt::LeftButton, Qt::NoModifier, middle_of_row(rows, row));
    });
}

void hand::click_tab(const QString& tabs, int tab)
{
    on_control(tabs, [](QWidget&) {});
    post([tabs, tab] {
        auto& bar = dynamic_cast<QTabBar&>(*find_control(tabs));
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(tab - 1).center());
    });
}

void hand::menu(const QString& entry)
{
    wait_until(u"menu entry " + entry, [&] { return find_action(entry) != nullptr; });
    post([entry] {
        QAction* action = find_action(entry);
        QMenu* menu = menu_of(*action);
        QAction* top = menu ? menu->menuAction() : action;
        for (QObject* owner : top->associatedObjects()) {
            if (auto* bar = qobject_cast<QMenuBar*>(owner))
                click_action(*bar, bar->actionGeometry(top));
        }
    });
    post([entry] {
        QWidget* popup = QApplication::activePopupWidget();
        auto* menu = qobject_cast<QMenu*>(popup);
        for (QAction* action : menu ? menu->actions() : QList<QAction*>()) {
            if (action->objectName() == entry)
                return click_action(*menu, menu->actionGeometry(action));
        }
    });
}

void hand::close_window(const QString& window)
{
    wait_for_window(window);
    post([window] { visible_window(window)->close(); });
}

}  // namespace verdane::testing
