#include "controls/screen_limits.h"

#include <QScreen>
#include <QStyle>
#include <QWidget>

#include <algorithm>

#include "controls/main_frame.h"

namespace verdane {

namespace {

QMargins frame_of(const QWidget& window)
{
    const QRect inner = window.geometry();
    const QRect outer = window.frameGeometry();
    return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
            outer.bottom() - inner.bottom()};
}

QWidget* main_window()
{
    return main_frame() ? main_frame()->frame_widget() : nullptr;
}

QMargins expected_frame(const QWidget& window)
{
    for (const QWidget* framed : {&window, static_cast<const QWidget*>(main_window())}) {
        if (framed && framed->isVisible() && !frame_of(*framed).isNull())
            return frame_of(*framed);
    }
    return {0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window), 0, 0};
}

const QScreen& screen_of(const QWidget& window)
{
    const QWidget* placed = window.isVisible() || !main_window() ? &window : main_window();
    return *placed->screen();
}

}  // namespace

QSize largest_size_on_screen(const QWidget& window)
{
    return screen_of(window).availableGeometry().marginsRemoved(expected_frame(window)).size();
}

void keep_on_screen(QWidget& window)
{
    const QSize limited = window.size().boundedTo(largest_size_on_screen(window));
    // The toolkit chooses a size when a window is shown, unless it was resized, even to the same size.
    if (limited != window.size())
        window.resize(limited);
    if (!window.testAttribute(Qt::WA_Moved) && !window.isVisible())
        return;
    const QRect available = screen_of(window).availableGeometry();
    const QRect outer(window.pos(), window.size().grownBy(expected_frame(window)));
    QRect inside = outer;
    inside.moveRight(std::min(inside.right(), available.right()));
    inside.moveBottom(std::min(inside.bottom(), available.bottom()));
    inside.moveLeft(std::max(inside.left(), available.left()));
    inside.moveTop(std::max(inside.top(), available.top()));
    if (inside != outer)
        window.move(inside.topLeft());
}

}  // namespace verdane
