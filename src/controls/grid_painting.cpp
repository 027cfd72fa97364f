#include "controls/grid_painting.h"

#include <QPainter>
#include <QPainterPath>
#include <QRegion>
#include <QStyleOptionHeader>
#include <QStyleOptionViewItem>

#include <algorithm>

namespace verdane {

namespace {

/// The rectangle of the caret: next to the text, as the style places it.
QRect caret_in(const QWidget& grid, const QStyleOptionViewItem& cell)
{
    const int margin = grid.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &grid) + 1;
    const int width = grid.style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, &grid);
    const QRect inside = cell.rect.adjusted(margin, 0, -margin, 0);
    const int text_width = std::min(cell.fontMetrics.horizontalAdvance(cell.text), inside.width());
    const int left = cell.displayAlignment & Qt::AlignRight ? inside.right() : inside.left() + text_width;
    QRect caret(left, 0, width, cell.fontMetrics.height());
    caret.moveCenter({caret.center().x(), cell.rect.center().y()});
    return caret;
}

}  // namespace

filled_header::filled_header(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

void filled_header::paintEvent(QPaintEvent* event)
{
    QHeaderView::paintEvent(event);
    const int end = length() - offset();
    if (end >= viewport()->width())
        return;
    QStyleOptionHeader rest;
    initStyleOption(&rest);
    // The lines at the end of a column are outside the viewport: they would double the frame of the grid.
    constexpr int end_lines = 2;
    rest.rect = QRect(end, 0, viewport()->width() - end + end_lines, viewport()->height());
    QPainter painter(viewport());
    style()->drawControl(QStyle::CE_HeaderSection, &rest, &painter, this);
}

void paint_cursor_frame(QPainter& painter, const QStyleOptionViewItem& cell, bool grid_has_focus)
{
    const int width = grid_has_focus ? cursor_frame_width : 1;
    const QColor green = cell.palette.color(QPalette::Highlight);
    const QRect& whole = cell.rect;
    const QRect inside = whole.marginsRemoved({width, width, width, width});
    for (const QRect& side : QRegion(whole).subtracted(inside))
        painter.fillRect(side, green);
}

void paint_caret(QPainter& painter, const QStyleOptionViewItem& cell, const QWidget& grid)
{
    painter.fillRect(caret_in(grid, cell), cell.palette.color(QPalette::Text));
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

}  // namespace verdane
