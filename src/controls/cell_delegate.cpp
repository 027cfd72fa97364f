#include "cell_delegate.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>

#include "data_grid.h"
#include "leaving.h"

namespace verdane {

namespace {

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
    if (!grid_.has_cell_button(index.column())) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    const bool current = index == grid_.currentIndex();
    QStyleOptionViewItem whole = option;
    initStyleOption(&whole, index);
    const QString text = std::exchange(whole.text, QString());
    QStyle* style = grid_.style();
    style->drawControl(QStyle::CE_ItemViewItem, &whole, painter, &grid_);
    const QRect button = data_grid::button_in(option.rect);
    // The words beside the button, as the style draws them in the cells that have none.
    whole.rect.setRight(button.left());
    whole.text = text;
    whole.state &= ~QStyle::State_HasFocus;
    style->drawControl(QStyle::CE_ItemViewItem, &whole, painter, &grid_);
    const QPalette::ColorRole role =
        option.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text;
    QColor color = option.palette.color(role);
    color.setAlphaF(current ? 1.0F : 0.4F);
    paint_chevron(*painter, button, color);
}

QWidget* cell_delegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                     const QModelIndex& index) const
{
    auto* box = new QLineEdit(parent);
    box->setObjectName(QStringLiteral("cell_being_typed"));
    box->setFrame(false);
    box->setAlignment(Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt()));
    grid_.watch_editor(*box, index);
    return box;
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

void cell_delegate::focus_lost(QLineEdit& editor, Qt::FocusReason why) const
{
    // Another program, or the box's own menu, takes the keyboard for a while only.
    if (why == Qt::ActiveWindowFocusReason || why == Qt::PopupFocusReason)
        return;
    if (why == Qt::MouseFocusReason)
        when_click_is_over(editor, [this] { grid_.commit_cell(); });
    else
        grid_.commit_cell();
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
        focus_lost(static_cast<QLineEdit&>(*editor), static_cast<QFocusEvent*>(event)->reason());
    return false;
}

}  // namespace verdane
