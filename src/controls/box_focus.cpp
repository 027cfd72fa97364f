#include "controls/box_focus.h"

#include <QApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTimer>

#include <algorithm>
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

/// Filters the events of the application for those that move the focus from the box. Tab and shortcuts are
/// stopped before they act. A click has already moved the focus when a filter gets its event: the box takes
/// the focus back, and the press does not reach the clicked control.
class leaving_guard : public QObject {
public:
    leaving_guard(QLineEdit& box, std::function<bool()> allows)
        : QObject(&box), box_(box), allows_(std::move(allows))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* target, QEvent* event) override
    {
        if (checking_)
            return false;
        switch (event->type()) {
        case QEvent::KeyPress:
            return target == &box_ && is_tab(*static_cast<QKeyEvent*>(event)) && refused();
        case QEvent::Shortcut:
            return box_.hasFocus() && takes_focus(qobject_cast<QWidget*>(target)) && refused();
        case QEvent::FocusOut:
            return target == &box_ && static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason &&
                   keeps_focus();
        case QEvent::MouseButtonPress:
            return swallows_press(qobject_cast<QWidget*>(target));
        default:
            return false;
        }
    }

    bool refused()
    {
        bool stays = false;
        checking_ = true;
        run_event([&] { stays = !allows_(); });
        checking_ = false;
        return stays;
    }

private:
    /// The box has the focus again, so it must not handle the event of the loss, which would clear its
    /// selection.
    bool keeps_focus()
    {
        if (!refused())
            return false;
        box_.setFocus(Qt::OtherFocusReason);
        press_is_refused_ = true;
        return true;
    }

    bool swallows_press(const QWidget* pressed)
    {
        return std::exchange(press_is_refused_, false) && takes_focus(focused_by_press_on(pressed));
    }

    /// The control that gets the focus: for a click on the rows of a list, the list.
    static const QWidget* focused_by_press_on(const QWidget* pressed)
    {
        while (pressed && !pressed->isWindow() && !(pressed->focusPolicy() & Qt::ClickFocus))
            pressed = pressed->parentWidget();
        return pressed;
    }

    bool takes_focus(const QWidget* other) const
    {
        return other && other != &box_ && other->window() == box_.window() && other->isEnabled() &&
               other->focusPolicy() != Qt::NoFocus;
    }

    static bool is_tab(const QKeyEvent& event)
    {
        return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    }

    QLineEdit& box_;
    std::function<bool()> allows_;
    bool checking_ = false;
    bool press_is_refused_ = false;
};

class click_watch : public QObject {
public:
    click_watch(QLineEdit& box, std::function<void()> routine) : QObject(&box), routine_(std::move(routine))
    {
        qApp->installEventFilter(this);
        check_later();
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::Hide)
            check_later();
        return false;
    }

private:
    /// Runs the check after the current event is handled.
    void check_later()
    {
        QTimer::singleShot(0, this, [this] {
            if (QApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget())
                return;
            deleteLater();
            if (auto routine = std::exchange(routine_, nullptr))
                run_event(routine);
        });
    }

    std::function<void()> routine_;
};

}  // namespace

void when_entered(QLineEdit& box, std::function<void()> handler)
{
    new entering_filter(box, std::move(handler));
}

void when_click_is_over(QLineEdit& box, std::function<void()> routine)
{
    new click_watch(box, std::move(routine));
}

void when_left(QLineEdit& box, std::function<bool()> allows)
{
    new leaving_guard(box, std::move(allows));
}

bool leave_focused_box(const QWidget& window)
{
    const QWidget* box = window.focusWidget();
    if (!box)
        return true;
    const QObjectList& helpers = box->children();
    return std::none_of(helpers.begin(), helpers.end(), [](QObject* helper) {
        auto* guard = dynamic_cast<leaving_guard*>(helper);
        return guard && guard->refused();
    });
}

}  // namespace verdane
