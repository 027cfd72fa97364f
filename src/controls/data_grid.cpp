#include "controls/data_grid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include "controls/boxes.h"
#include "controls/cell_delegate.h"
#include "controls/failure_guard.h"
#include "controls/grid_painting.h"

namespace verdane {

data_grid::data_grid(recordset_model* model, QWidget* parent)
    : QTableView(parent), model_(model), edited_(*model)
{
    if (!model_->parent())
        model_->setParent(this);
    setModel(model_);
    setItemDelegate(new cell_delegate(*this));
    setEditTriggers(NoEditTriggers);
    // The delegate marks the cell with the cursor by a frame; nothing uses a selection of cells.
    setSelectionMode(NoSelection);
    setTabKeyNavigation(true);
    setHorizontalHeader(new filled_header(this));
    verticalHeader()->hide();
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    setHorizontalScrollMode(ScrollPerPixel);
}

void data_grid::bind()
{
    const QScopedValueRollback<bool> guard(following_, true);
    model_->bind();
    show_current_row();
}

void data_grid::unbind()
{
    drop_cell();
    const QScopedValueRollback<bool> guard(following_, true);
    model_->unbind();
}

void data_grid::ReBind()
{
    drop_cell();
    const QScopedValueRollback<bool> guard(following_, true);
    model_->refresh();
    show_current_row();
}

void data_grid::show_current_row()
{
    const int row = Row();
    setCurrentIndex(row < 0 ? QModelIndex() : model_->index(row, col_));
}

int data_grid::Row() const
{
    return model_->is_bound() && model_->source().is_open() ? model_->source().position() : -1;
}

void data_grid::set_Col(int column)
{
    if (column < 0 || column >= model_->columnCount())
        return;
    col_ = column;
    const QScopedValueRollback<bool> guard(following_, true);
    show_current_row();
}

void data_grid::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    // The delegate paints the frame of the cursor.
    update(previous);
    update(current);
    if (following_ || !current.isValid())
        return;
    col_ = current.column();
    run_event([this, row = current.row()] { model_->move_to(row); });
}

int data_grid::neighbour(int column, int step) const
{
    do
        column += step;
    while (column >= 0 && column < model_->columnCount() && isColumnHidden(column));
    return column;
}

bool data_grid::move_cursor(int step)
{
    const int column = neighbour(col_, step);
    if (Row() < 0 || column < 0 || column >= model_->columnCount())
        return false;
    set_Col(column);
    return true;
}

void data_grid::open_cell_menu()
{
    menus_.open(*this, col_);
}

void data_grid::keyPressEvent(QKeyEvent* event)
{
    const bool tab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (tab) {
        // The window moves the focus on a key that is not accepted.
        event->setAccepted(move_cursor(event->key() == Qt::Key_Tab ? 1 : -1));
    } else if (menus_.opens(col_, *event)) {
        open_cell_menu();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
               event->key() == Qt::Key_F2) {
        start_typing({});
    } else if (!take_character(*event)) {
        QTableView::keyPressEvent(event);
    }
}

bool data_grid::take_character(const QKeyEvent& event)
{
    const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const QChar key = event.text().isEmpty() ? QChar() : event.text().front();
    if (command || !(key.isPrint() || key == backspace))
        return false;
    if (has_cell_button(col_) && key != backspace) {
        menus_.choose_by_letter(*this, col_, key);
        return true;
    }
    if (edited_.refuses(col_, key) || !is_typed_into(currentIndex()))
        ring_bell();
    else
        start_typing(event.text());
    return true;
}

bool data_grid::is_typed_into(const QModelIndex& cell) const
{
    return cell.isValid() && !has_cell_button(cell.column()) &&
           model_->flags(cell).testFlag(Qt::ItemIsEditable);
}

void data_grid::start_typing(const QString& text)
{
    if (!is_typed_into(currentIndex()))
        return;
    edit(currentIndex());
    edited_.type_first(text);
}

void data_grid::drop_cell()
{
    if (QLineEdit* editor = edited_.release())
        closeEditor(editor, QAbstractItemDelegate::NoHint);
}

bool data_grid::keyboard_is_elsewhere() const
{
    const QWidget* focused = window()->focusWidget();
    return focused && focused != this && !isAncestorOf(focused);
}

void data_grid::take_keyboard()
{
    if (!left_)
        setFocus(Qt::OtherFocusReason);
}

bool data_grid::commit_cell()
{
    if (!edited_.may_leave())
        return false;
    if (!edited_.editor())
        return true;
    const std::optional<edited_cell::typed_text> typed = edited_.changed_text();
    const QScopedValueRollback<bool> elsewhere(left_, keyboard_is_elsewhere());
    drop_cell();
    if (!typed)
        return true;
    run_event([&] {
        const int column = typed->cell.column();
        if (!model_->write(typed->cell.row(), column, typed->text))
            ring_bell();
        else
            Q_EMIT column_updated(column);
    });
    return true;
}

void data_grid::commit_and_move_on()
{
    if (commit_cell())
        move_cursor(1);
}

QModelIndex data_grid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    // A key that the editor does not use, such as Up, moves the cursor to another cell.
    return commit_cell() ? QTableView::moveCursor(action, modifiers) : currentIndex();
}

void data_grid::mousePressEvent(QMouseEvent* event)
{
    const QPoint place = event->position().toPoint();
    const QModelIndex clicked = indexAt(place);
    const bool clicked_a_cell = clicked.isValid();
    const int row = clicked.row();
    const int column = clicked.column();
    // The text is written before the click moves the cursor to another row. This can add a row and scroll the
    // clicked one to another position.
    if (!commit_cell())
        return;
    const QModelIndex pressed = indexAt(place);
    if (pressed.row() != row || pressed.column() != column) {
        if (clicked_a_cell)
            setCurrentIndex(model_->index(row, column));
        return;
    }
    QTableView::mousePressEvent(event);
    if (event->button() == Qt::LeftButton && menus_.is_on_button(*this, place))
        open_cell_menu();
}

void data_grid::mouseDoubleClickEvent(QMouseEvent* event)
{
    QTableView::mouseDoubleClickEvent(event);
    if (!indexAt(event->position().toPoint()).isValid())
        return;
    if (has_cell_button(col_))
        open_cell_menu();
    else
        start_typing({});
}

}  // namespace verdane
