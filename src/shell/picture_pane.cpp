#include "shell/picture_pane.h"

#include <QPainter>
#include <QTimer>

#include <algorithm>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

const QString sign = u"sign"_s;
constexpr double margin = 8;

/// The shift that moves the range from `first` to `last` between 0 and `end`, with a margin at both ends. If
/// the range is too long, its start is moved there. The shift is limited so that `covered_first` stays at 0
/// or below and `covered_last` at `end` or above, and the drawing still covers the pane.
double shift_into_view(double first, double last, double end, double covered_first, double covered_last)
{
    double shift = 0;
    if (last > end - margin)
        shift = end - margin - last;
    if (first + shift < margin)
        shift = margin - first;
    return std::min(std::max(shift, end - covered_last), -covered_first);
}

}  // namespace

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
    const QRectF seen = sign_in(area);
    area.translate(shift_into_view(seen.left(), seen.right(), width(), area.left(), area.right()),
                   shift_into_view(seen.top(), seen.bottom(), height(), area.top(), area.bottom()));
    return area;
}

QRectF picture_pane::sign_in(const QRectF& area) const
{
    const QRectF in_drawing = drawing_.boundsOnElement(sign);
    const double scale = area.width() / drawing_.defaultSize().width();
    return {area.topLeft() + in_drawing.topLeft() * scale, in_drawing.size() * scale};
}

QRectF picture_pane::place_of_sign() const
{
    return drawing_.isValid() ? sign_in(cover()) : QRectF();
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
