#include "controls/scrolled_content.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>

namespace verdane {

namespace {

constexpr QSize least_size(160, 96);

/// The scroll position that shows the range from `from` to `to` in a view of `page` pixels with the least
/// scrolling; the start of the range if it is longer than the view.
int scrolled_to(int position, int from, int to, int page)
{
    if (from < position || to - from > page)
        return from;
    return std::max(position, to - page);
}

}  // namespace

scrolled_content::scrolled_content(QLayout* layout) : after_layout_(new QTimer(this))
{
    layout->setContentsMargins(0, 0, 0, 0);
    auto* content = new QWidget;
    content->setLayout(layout);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(content);
    after_layout_->setSingleShot(true);
    connect(after_layout_, &QTimer::timeout, this, [this] { follow_focus(); });
    connect(qApp, &QApplication::focusChanged, this, [this] { follow_focus(); });
}

scrolled_content::~scrolled_content()
{
    // A control with the focus loses it while the content is deleted; `follow_focus` must not run then.
    QObject::disconnect(qApp, nullptr, this, nullptr);
}

QSize scrolled_content::missing()
{
    QLayout& layout = *widget()->layout();
    layout.activate();
    QSize needed = layout.totalMinimumSize();
    if (layout.hasHeightForWidth())
        needed.setHeight(layout.totalHeightForWidth(std::max(width(), needed.width())));
    return (needed - size()).expandedTo({0, 0});
}

QSize scrolled_content::sizeHint() const
{
    return widget()->sizeHint();
}

QSize scrolled_content::minimumSizeHint() const
{
    return widget()->minimumSizeHint().boundedTo(least_size);
}

void scrolled_content::keyPressEvent(QKeyEvent* event)
{
    event->ignore();
}

void scrolled_content::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    after_layout_->start(0);
}

bool scrolled_content::focusNextPrevChild(bool next)
{
    // The version of QScrollArea would scroll a second time, with other margins.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    return QAbstractScrollArea::focusNextPrevChild(next);
}

bool scrolled_content::eventFilter(QObject* watched, QEvent* event)
{
    // The controls are moved only after the event is handled.
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        after_layout_->start(0);
    return QScrollArea::eventFilter(watched, event);
}

void scrolled_content::follow_focus()
{
    QWidget* focused = QApplication::focusWidget();
    if (!focused || !widget()->isAncestorOf(focused))
        return;
    const QRect with_label = place_with_label(*focused);
    const QSize view = viewport()->size();
    if (with_label.size().boundedTo(view) == with_label.size())
        bring_into_view(with_label);
    else
        bring_into_view(place_of(*focused));
}

QRect scrolled_content::place_of(const QWidget& control) const
{
    return {control.mapTo(widget(), QPoint()), control.size()};
}

QRect scrolled_content::place_with_label(QWidget& control) const
{
    QRect place = place_of(control);
    for (const QLabel* label : widget()->findChildren<QLabel*>()) {
        if (label->buddy() == &control && label->isVisible())
            place |= place_of(*label);
    }
    return place;
}

void scrolled_content::bring_into_view(const QRect& place)
{
    QScrollBar& across = *horizontalScrollBar();
    QScrollBar& down = *verticalScrollBar();
    const QSize view = viewport()->size();
    across.setValue(scrolled_to(across.value(), place.left(), place.right() + 1, view.width()));
    down.setValue(scrolled_to(down.value(), place.top(), place.bottom() + 1, view.height()));
}

}  // namespace verdane
