#pragma once

#include <QTableView>

#include <functional>
#include <utility>

#include "controls/cell_menus.h"
#include "controls/edited_cell.h"
#include "controls/recordset_model.h"

namespace verdane {

/// A grid bound to a recordset. The row of the cursor is the current row of the recordset; moving the cursor
/// to another row commits the row that is left.
///
/// Typing a character replaces the content of a cell; F2, Enter or a double click edits it. Enter and Tab
/// write the text and move the cursor one cell to the right, a click elsewhere writes it, Escape discards it.
/// Tab in the last cell of a row and Shift+Tab in the first leave the grid.
///
/// The cells of a column may have a button that opens a menu: by a click on it, a double click on the cell,
/// Space, Enter, F4, Alt+Down, or the first letter of an entry. The text of such cells cannot be edited.
class data_grid : public QTableView {
    Q_OBJECT

public:
    explicit data_grid(recordset_model* model, QWidget* parent = nullptr);

    recordset_model& bound_model() const { return *model_; }

    void bind();
    void unbind();
    /// Reads the rows of the recordset again and moves the cursor to the current row.
    void ReBind();

    /// Column and row of the cursor, from 0; the row is -1 if no row is current.
    int Col() const { return col_; }
    void set_Col(int column);
    int Row() const;

    /// Adds a button to the cells of a column, which opens the menu.
    void set_cell_menu(int column, choice_menu* menu) { menus_.set(column, menu); }
    /// Sets the filter that accepts or refuses each character typed or pasted into a column.
    void set_key_filter(int column, std::function<key_answer(QChar)> filter)
    {
        edited_.set_key_filter(column, std::move(filter));
    }
    /// A text that is not valid in this column stays in its cell, selected and with the focus, until it is
    /// corrected or discarded by Escape. In other columns it is discarded. The bell rings in both cases.
    void keep_refused_text(int column) { edited_.keep_refused_text(column); }

    /// Opens the menu of the cell with the cursor, if it has one.
    void open_cell_menu();
    /// Writes the text that is being edited. False if it is not valid and stays in its cell. Every routine
    /// that works on the rows of the grid calls this first, and returns on false.
    bool commit_cell();
    /// Sets the focus to the grid, except while it writes the text of a cell because the user moved the focus
    /// to another control.
    void take_keyboard();

    bool has_cell_button(int column) const { return menus_.has(column); }
    /// True for a cell whose text can be edited.
    bool is_typed_into(const QModelIndex& cell) const;

Q_SIGNALS:
    /// The user has changed the cell of the current row in that column.
    void column_updated(int column);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    friend class cell_delegate;

    void show_current_row();
    int neighbour(int column, int step) const;
    bool move_cursor(int step);
    bool take_character(const QKeyEvent& event);
    void start_typing(const QString& text);
    void drop_cell();
    bool keyboard_is_elsewhere() const;
    void commit_and_move_on();

    recordset_model* model_;
    cell_menus menus_;
    edited_cell edited_;
    int col_ = 0;
    /// True while the cursor is moved to the current row of the recordset; otherwise a move of the cursor
    /// moves the recordset.
    bool following_ = false;
    /// True while a text is written because the user moved the focus to another control.
    bool left_ = false;
};

}  // namespace verdane
