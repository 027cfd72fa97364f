#include "controls/filled_header.h"

#include <QPainter>
#include <QStyleOptionHeader>

namespace verdane {

filled_header::filled_header(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

void filled_header::paintEvent(QPaintEvent* event)
{
    QHeaderView::paintEvent(event);
    const int end = length() - offset();
    if (end >= viewport()->width())
        return;
    QStyleOptionHeader rest;
    initStyleOption(&rest);
    // The lines that end a column would double the frame of the grid, so they fall outside.
    constexpr int end_lines = 2;
    rest.rect = QRect(end, 0, viewport()->width() - end + end_lines, viewport()->height());
    QPainter painter(viewport());
    style()->drawControl(QStyle::CE_HeaderSection, &rest, &painter, this);
}

}  // namespace verdane
