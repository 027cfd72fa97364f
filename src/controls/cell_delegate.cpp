#include "controls/cell_delegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QRegion>

#include <algorithm>
#include <utility>

#include "controls/data_grid.h"
#include "controls/leaving.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int frame_width = 2;

/// Where typing starts: beside the words as the style lays them out.
QRect caret_in(const data_grid& grid, const QStyleOptionViewItem& cell)
{
    const int margin = grid.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &grid) + 1;
    const int width = grid.style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, &grid);
    const QRect inside = cell.rect.adjusted(margin, 0, -margin, 0);
    const int words = std::min(cell.fontMetrics.horizontalAdvance(cell.text), inside.width());
    const int left = cell.displayAlignment & Qt::AlignRight ? inside.right() : inside.left() + words;
    QRect caret(left, 0, width, cell.fontMetrics.height());
    caret.moveCenter({caret.center().x(), cell.rect.center().y()});
    return caret;
}

/// Two pixels wide while the grid has the focus, one pixel otherwise.
void paint_frame(QPainter& painter, const QStyleOptionViewItem& cell, bool has_keyboard)
{
    const int width = has_keyboard ? frame_width : 1;
    const QColor green = cell.palette.color(QPalette::Highlight);
    const QRect& whole = cell.rect;
    const QRect inside = whole.marginsRemoved({width, width, width, width});
    for (const QRect& side : QRegion(whole).subtracted(inside))
        painter.fillRect(side, green);
}

void paint_chevron(QPainter& painter, const QRect& button, const QColor& color)
{
    const QPointF middle = QRectF(button).center();
    QPainterPath chevron(middle + QPointF(-3.5, -1.5));
    chevron.lineTo(middle + QPointF(0, 2));
    chevron.lineTo(middle + QPointF(3.5, -1.5));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.2));
    painter.drawPath(chevron);
    painter.restore();
}

}  // namespace

cell_delegate::cell_delegate(data_grid& grid) : QStyledItemDelegate(&grid), grid_(grid) {}

void cell_delegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    // The frame says where the cursor is.
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
    const QRect button = data_grid::button_in(option.rect);
    // The words beside the button, as the style draws them in the cells that have none.
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
    paint_frame(painter, cell, focused && (focused == &grid_ || grid_.isAncestorOf(focused)));
    if (grid_.hasFocus() && grid_.is_typed_into(index))
        painter.fillRect(caret_in(grid_, cell), cell.palette.color(QPalette::Text));
}

QWidget* cell_delegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                     const QModelIndex& index) const
{
    auto* box = new QLineEdit(parent);
    box->setObjectName(u"cell_being_typed"_s);
    box->setFrame(false);
    box->setAlignment(Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt()));
    grid_.watch_editor(*box, index);
    return box;
}

void cell_delegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                         const QModelIndex&) const
{
    editor->setGeometry(option.rect.marginsRemoved({frame_width, frame_width, frame_width, frame_width}));
}

void cell_delegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto& box = static_cast<QLineEdit&>(*editor);
    // A refresh of the rows must not undo what is being typed.
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
    // Another program, or the box's own menu, takes the keyboard for a while only.
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
