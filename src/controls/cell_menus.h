#pragma once

#include <QRect>

#include <map>

class QKeyEvent;
class QTableView;

namespace verdane {

class choice_menu;

/// The menus of the columns of a grid. A cell of a column with a menu has a button at its right end, which
/// opens it.
class cell_menus {
public:
    void set(int column, choice_menu* menu) { menus_[column] = menu; }
    bool has(int column) const { return menus_.count(column) > 0; }

    /// The rectangle of the button of a cell, from the rectangle of the cell.
    static QRect button_in(const QRect& cell);

    /// True if a key opens the menu of a column: Space, Enter, F4 or Alt+Down, if the column has a menu.
    bool opens(int column, const QKeyEvent& event) const;
    /// True if a point of the grid is on the button of its current cell.
    bool is_on_button(const QTableView& grid, const QPoint& place) const;

    /// Opens the menu of a column below the current cell of the grid. Does nothing without a menu or a
    /// current cell.
    void open(QTableView& grid, int column) const;
    /// Chooses the only entry of the menu that begins with a letter; otherwise opens the menu and marks the
    /// first of them. The column has a menu. Does nothing without a current cell.
    void choose_by_letter(QTableView& grid, int column, QChar letter) const;

private:
    std::map<int, choice_menu*> menus_;
};

}  // namespace verdane
