#include "controls/cell_delegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

#include <utility>

#include "controls/box_focus.h"
#include "controls/data_grid.h"
#include "controls/grid_painting.h"

namespace verdane {

using namespace Qt::StringLiterals;

cell_delegate::cell_delegate(data_grid& grid) : QStyledItemDelegate(&grid), grid_(grid) {}

void cell_delegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    // The frame marks the cursor; the focus rectangle of the style is not needed.
    cell.state &= ~QStyle::State_HasFocus;
    if (grid_.has_cell_button(index.column()))
        paint_with_button(*painter, cell, index);
    else
        QStyledItemDelegate::paint(painter, cell, index);
    if (index == grid_.currentIndex())
        paint_cursor(*painter, cell, index);
}

void cell_delegate::paint_with_button(QPainter& painter, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    QStyleOptionViewItem whole = option;
    initStyleOption(&whole, index);
    const QString text = std::exchange(whole.text, QString());
    QStyle* style = grid_.style();
    style->drawControl(QStyle::CE_ItemViewItem, &whole, &painter, &grid_);
    const QRect button = cell_menus::button_in(option.rect);
    // The style draws the text next to the button as in a cell without one.
    whole.rect.setRight(button.left());
    whole.text = text;
    style->drawControl(QStyle::CE_ItemViewItem, &whole, &painter, &grid_);
    QColor color = option.palette.color(QPalette::Text);
    color.setAlphaF(index == grid_.currentIndex() ? 1.0F : 0.4F);
    paint_chevron(painter, button, color);
}

void cell_delegate::paint_cursor(QPainter& painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QWidget* focused = QApplication::focusWidget();
    paint_cursor_frame(painter, cell, focused && (focused == &grid_ || grid_.isAncestorOf(focused)));
    if (grid_.hasFocus() && grid_.is_typed_into(index))
        paint_caret(painter, cell, grid_);
}

QWidget* cell_delegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                     const QModelIndex& index) const
{
    auto* box = new QLineEdit(parent);
    box->setObjectName(u"cell_being_typed"_s);
    box->setFrame(false);
    box->setAlignment(Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt()));
    grid_.edited_.watch(*box, index);
    return box;
}

void cell_delegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                         const QModelIndex&) const
{
    constexpr int width = cursor_frame_width;
    editor->setGeometry(option.rect.marginsRemoved({width, width, width, width}));
}

void cell_delegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto& box = static_cast<QLineEdit&>(*editor);
    // A refresh of the rows must not replace the text that is being edited.
    if (box.isModified())
        return;
    box.setText(index.data(Qt::EditRole).toString());
    box.selectAll();
}

bool cell_delegate::key_pressed(const QKeyEvent& event) const
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        grid_.commit_and_move_on();
        return true;
    case Qt::Key_Backtab:
        grid_.commit_cell();
        return true;
    case Qt::Key_Escape:
        grid_.drop_cell();
        return true;
    default:
        return false;
    }
}

bool cell_delegate::focus_lost(QLineEdit& editor, Qt::FocusReason why) const
{
    // The focus returns from another program or from the context menu of the editor.
    if (why == Qt::ActiveWindowFocusReason || why == Qt::PopupFocusReason)
        return false;
    if (why != Qt::MouseFocusReason)
        return !grid_.commit_cell();
    when_click_is_over(editor, [this] { grid_.commit_cell(); });
    return false;
}

bool cell_delegate::eventFilter(QObject* editor, QEvent* event)
{
    if (event->type() == QEvent::KeyPress)
        return key_pressed(*static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::FocusOut)
        return focus_lost(static_cast<QLineEdit&>(*editor), static_cast<QFocusEvent*>(event)->reason());
    return false;
}

}  // namespace verdane
