#include "controls/cell_menus.h"

#include <QKeyEvent>
#include <QTableView>

#include "controls/choice_menu.h"

namespace verdane {

namespace {

constexpr int button_width = 16;

}  // namespace

QRect cell_menus::button_in(const QRect& cell)
{
    return {cell.right() - button_width + 1, cell.top(), button_width, cell.height()};
}

bool cell_menus::opens(int column, const QKeyEvent& event) const
{
    if (!has(column))
        return false;
    switch (event.key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F4:
        return true;
    case Qt::Key_Down:
        return event.modifiers().testFlag(Qt::AltModifier);
    default:
        return false;
    }
}

bool cell_menus::is_on_button(const QTableView& grid, const QPoint& place) const
{
    const QModelIndex cell = grid.indexAt(place);
    return cell.isValid() && cell == grid.currentIndex() && has(cell.column()) &&
           button_in(grid.visualRect(cell)).contains(place);
}

void cell_menus::open(QTableView& grid, int column) const
{
    const auto menu = menus_.find(column);
    const QModelIndex cell = grid.currentIndex();
    if (menu == menus_.end() || !cell.isValid())
        return;
    grid.scrollTo(cell);
    const QPoint below = grid.visualRect(cell).bottomLeft() + QPoint(0, 1);
    menu->second->popup_on(grid.viewport()->mapToGlobal(below), cell.data().toString());
}

void cell_menus::choose_by_letter(QTableView& grid, int column, QChar letter) const
{
    choice_menu* menu = menus_.at(column);
    if (!grid.currentIndex().isValid() || menu->choose_only(letter))
        return;
    open(grid, column);
    menu->choose_by_letter(letter);
}

}  // namespace verdane
