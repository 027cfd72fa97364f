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

/// Watches the application's events for those that take the focus off the box. Tab and short cuts are
/// stopped before they act. A click has moved the focus by the time any filter sees it: the box takes
/// the focus back, and the click is kept from the control that it was meant for.
class leaving_guard : public QObject {
public:
    leaving_guard(QLineEdit& box, std::function<bool()> allows)
        : QObject(&box), box_(box), allows_(std::move(allows))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* target, QEvent* event) override
    {
        if (asking_)
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
        asking_ = true;
        run_event([&] { stays = !allows_(); });
        asking_ = false;
        return stays;
    }

private:
    /// A box that has the focus again must not handle its loss any more, which would drop its selection.
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

    /// The rows of a list, say, give the focus to the list.
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
    bool asking_ = false;
    bool press_is_refused_ = false;
};

class click_watch : public QObject {
public:
    click_watch(QLineEdit& box, std::function<void()> routine) : QObject(&box), routine_(std::move(routine))
    {
        qApp->installEventFilter(this);
        look_again();
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::Hide)
            look_again();
        return false;
    }

private:
    /// Behind what the event itself leads to.
    void look_again()
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
