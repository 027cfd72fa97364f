#include "controls/leaving.h"

#include <QApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>
#include <utility>

#include "controls/failure_guard.h"

namespace verdane {

namespace {

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
