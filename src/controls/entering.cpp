#include "controls/entering.h"

#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMouseEvent>

#include <utility>

#include "controls/failure_guard.h"

namespace verdane {

namespace {

/// Passes each event to the box first, because that may change the selection, and then calls the handler.
class entering_filter : public QObject {
public:
    entering_filter(QLineEdit& box, std::function<void()> handler)
        : QObject(&box), box_(box), handler_(std::move(handler))
    {
        box.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::FocusIn:
            return focus_gained(*static_cast<QFocusEvent*>(event));
        case QEvent::FocusOut:
            entered_by_click_ = false;
            return false;
        case QEvent::MouseButtonPress:
            pressed_at_ = static_cast<QMouseEvent*>(event)->position().toPoint();
            return entered_by_click_ && handled_first_by_box(*event);
        case QEvent::MouseMove:
            return entered_by_click_ && !is_dragged(*static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonRelease:
            return std::exchange(entered_by_click_, false) && handled_first_by_box(*event);
        default:
            return false;
        }
    }

private:
    bool focus_gained(QFocusEvent& event)
    {
        // The context menu of the box has closed. Its commands act on the selection, which must not change.
        if (event.reason() == Qt::PopupFocusReason)
            return false;
        entered_by_click_ = event.reason() == Qt::MouseFocusReason;
        return handled_first_by_box(event);
    }

    bool handled_first_by_box(QEvent& event)
    {
        static_cast<QObject&>(box_).event(&event);
        run_event(handler_);
        return true;
    }

    /// A small move during a click is not a drag, nor is a move with another button. A drag selects from the
    /// position of the press.
    bool is_dragged(const QMouseEvent& event)
    {
        const QPoint distance = event.position().toPoint() - pressed_at_;
        if (!event.buttons().testFlag(Qt::LeftButton) ||
            distance.manhattanLength() < QApplication::startDragDistance())
            return false;
        entered_by_click_ = false;
        box_.setCursorPosition(box_.cursorPositionAt(pressed_at_));
        return true;
    }

    QLineEdit& box_;
    std::function<void()> handler_;
    /// True from the click that gives the box the focus until the button is released.
    bool entered_by_click_ = false;
    QPoint pressed_at_;
};

}  // namespace

void when_entered(QLineEdit& box, std::function<void()> handler)
{
    new entering_filter(box, std::move(handler));
}

}  // namespace verdane
