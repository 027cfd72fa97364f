#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QMenu>
#include <QTableView>
#include <QTest>

#include "controls/data_grid.h"
#include "tests/support/hand.h"
#include "tests/support/hand_widgets.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

QTableView& grid_named(const QString& name)
{
    return dynamic_cast<QTableView&>(*find_control(name));
}

void press(QTableView& grid, const QPoint& place)
{
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

QRect visible_cell(QTableView& grid, int row, int column)
{
    const QModelIndex cell = grid.model()->index(row, column);
    grid.scrollTo(cell);
    return grid.visualRect(cell);
}

}  // namespace

void hand::click_cell(const QString& grid, int row, int column)
{
    on_control(grid, [](QWidget&) {});
    post([=] {
        QTableView& cells = grid_named(grid);
        // Left of the middle, next to the button.
        const QRect cell = visible_cell(cells, row, column);
        press(cells, {cell.left() + cell.width() / 4, cell.center().y()});
    });
}

void hand::open_menu(const QString& grid, int row, int column)
{
    on_control(grid, [](QWidget&) {});
    post([=] {
        QTableView& cells = grid_named(grid);
        press(cells, cell_menus::button_in(visible_cell(cells, row, column)).center());
    });
    wait_until(u"the menu of a cell"_s, [] { return menu_on_top() != nullptr; });
}

void hand::wait_for_menu(const QString& menu)
{
    wait_until(u"menu " + menu, [&] { return menu_on_top() && menu_on_top()->objectName() == menu; });
}

QStringList hand::menu_entries()
{
    QStringList captions;
    look([&] {
        for (const QAction* entry : menu_on_top() ? menu_on_top()->actions() : QList<QAction*>())
            captions << entry->text();
    });
    return captions;
}

void hand::choose_menu_entry(const QString& entry)
{
    wait_until(u"menu entry " + entry,
               [&] { return menu_on_top() && menu_on_top()->findChild<QAction*>(entry); });
    post([entry] {
        QMenu* menu = menu_on_top();
        auto* action = menu->findChild<QAction*>(entry);
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
    });
}

void hand::menu_key(int key)
{
    post([key] {
        if (QMenu* menu = menu_on_top())
            QTest::keyClick(menu, static_cast<Qt::Key>(key));
    });
}

void hand::menu_type(const QString& characters)
{
    for (const QChar character : characters) {
        post([character] {
            if (QMenu* menu = menu_on_top())
                QTest::sendKeyEvent(QTest::Click, menu, static_cast<Qt::Key>(character.toUpper().unicode()),
                                    QString(character), Qt::NoModifier);
        });
    }
}

QString hand::cell(const QString& grid, int row, int column)
{
    QString text;
    on_control(grid,
               [&](QWidget&) { text = grid_named(grid).model()->index(row, column).data().toString(); });
    return text;
}

QString hand::grid_row(const QString& grid, int row)
{
    QStringList texts;
    on_control(grid, [&](QWidget&) {
        const QTableView& cells = grid_named(grid);
        for (int column = 0; column < cells.model()->columnCount(); ++column) {
            if (!cells.isColumnHidden(column))
                texts << cells.model()->index(row, column).data().toString();
        }
    });
    return texts.join(u" | ");
}

int hand::grid_rows(const QString& grid)
{
    int rows = 0;
    on_control(grid, [&](QWidget&) { rows = grid_named(grid).model()->rowCount(); });
    return rows;
}

QString hand::cursor(const QString& grid)
{
    QModelIndex current;
    on_control(grid, [&](QWidget&) { current = grid_named(grid).currentIndex(); });
    return current.isValid() ? u"%1,%2"_s.arg(current.row()).arg(current.column()) : u"none"_s;
}

}  // namespace verdane::testing
