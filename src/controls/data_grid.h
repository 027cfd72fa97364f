#pragma once

#include <QLineEdit>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QTableView>

#include <functional>
#include <map>
#include <set>

#include "controls/keys.h"
#include "controls/recordset_model.h"

namespace verdane {

class choice_menu;

/// A grid bound to a recordset. The cursor's row is the recordset's current row; moving it commits the
/// row that is left.
///
/// A cell is typed into by just typing (what stood there is replaced), by F2, Enter or a double click;
/// Enter and Tab take what was typed and go one cell to the right, Escape drops it, a click elsewhere
/// takes it. Tab behind the last cell of a row, and Shift+Tab before the first, leave the grid.
///
/// A column may have a cell button, which opens a menu: by a click on it, a double click on the cell,
/// Space, Enter, F4, Alt+Down, or the first letter of an entry. Such cells are not typed into.
class data_grid : public QTableView {
public:
    explicit data_grid(recordset_model* model, QWidget* parent = nullptr);

    recordset_model& bound_model() const { return *model_; }

    void bind();
    void unbind();
    /// Shows again what the recordset holds, the cursor on its current row.
    void ReBind();

    /// The cursor's column and row, from 0; the row is -1 when no row is current.
    int Col() const { return col_; }
    void set_Col(int column);
    int Row() const;

    /// Gives a column's cells a button that opens the menu.
    void set_cell_menu(int column, choice_menu* menu);
    /// Asked for each character that is typed or pasted into the column's cells; it passes or refuses.
    void set_key_filter(int column, std::function<key_answer(QChar)> filter);
    /// A text that the column cannot take stays in its cell, selected, with the cursor in it, until it is
    /// corrected or dropped by Escape. In other columns such a text is dropped. The bell rings either way.
    void hold_refused_text(int column);
    /// Told after the user changed a cell, by its column; the cell's row is the current one.
    std::function<void(int)> column_updated;

    /// Opens the menu of the cursor's cell, if it has one.
    void open_cell_menu();
    /// Takes what is being typed. Every routine that works on the rows of the grid calls it first, and does
    /// nothing more when it answers false: the cell holds a text that its column cannot take.
    bool commit_cell();
    /// The focus comes to the grid, except while it takes what was typed into a cell that the user has left
    /// for another control.
    void take_keyboard();

    bool has_cell_button(int column) const { return menus_.count(column) > 0; }
    /// True for a cell that can be typed into.
    bool is_typed_into(const QModelIndex& cell) const;
    /// Where the button of a cell is inside the cell's rectangle.
    static QRect button_in(const QRect& cell);

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
    bool opens_menu(const QKeyEvent& event) const;
    bool take_character(const QKeyEvent& event);
    void choose_by_letter(QChar letter);
    void start_typing(const QString& text);
    void watch_editor(QLineEdit& editor, const QModelIndex& index);
    void drop_cell();
    bool may_leave_cell();
    bool keyboard_is_elsewhere() const;
    void commit_and_move_on();

    recordset_model* model_;
    std::map<int, choice_menu*> menus_;
    std::map<int, std::function<key_answer(QChar)>> filters_;
    std::set<int> holding_columns_;
    QPointer<QLineEdit> editor_;
    QPersistentModelIndex edited_;
    int col_ = 0;
    /// The cursor follows the recordset, not the other way round.
    bool following_ = false;
    /// What is being taken was typed into a cell that the user has left for another control.
    bool left_ = false;
};

}  // namespace verdane
