#include "picture_pane.h"

#include <QPainter>
#include <QTimer>

#include <algorithm>

namespace verdane {

picture_pane::picture_pane(const QString& drawing, QWidget* parent) : QWidget(parent), file_(drawing)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QRectF picture_pane::cover() const
{
    const QSizeF whole = drawing_.defaultSize();
    const double scale = std::max(width() / whole.width(), height() / whole.height());
    QRectF area(QPointF(), whole * scale);
    area.moveCenter(QRectF(rect()).center());
    return area;
}

void picture_pane::draw_soon()
{
    if (drawn_soon_)
        return;
    drawn_soon_ = true;
    QTimer::singleShot(0, this, [this] {
        drawing_.load(file_);
        redraw();
        update();
    });
}

void picture_pane::redraw()
{
    picture_ = QPixmap(size() * devicePixelRatio());
    picture_.setDevicePixelRatio(devicePixelRatio());
    QPainter painter(&picture_);
    painter.fillRect(rect(), palette().window());
    drawing_.render(&painter, cover());
}

void picture_pane::paintEvent(QPaintEvent*)
{
    if (picture_.isNull()) {
        draw_soon();
        QPainter(this).fillRect(rect(), palette().window());
        return;
    }
    if (picture_.size() != size() * devicePixelRatio())
        redraw();
    QPainter(this).drawPixmap(0, 0, picture_);
}

}  // namespace verdane
