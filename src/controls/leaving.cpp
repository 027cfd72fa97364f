#include "leaving.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>

#include <utility>

#include "failure_guard.h"

namespace verdane {

namespace {

/// Watches the application's events for those that are about to take the focus off the box: a
/// refusal has to come before the other control sees its click.
class leaving_guard : public QObject {
public:
    leaving_guard(QLineEdit& box, std::function<bool()> allows)
        : QObject(&box), box_(box), allows_(std::move(allows))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* target, QEvent* event) override
    {
        if (asking_ || !box_.hasFocus() || !would_leave(target, event))
            return false;
        bool stays = false;
        asking_ = true;
        run_event([&] { stays = !allows_(); });
        asking_ = false;
        if (stays)
            event->accept();
        return stays;
    }

private:
    bool would_leave(QObject* target, QEvent* event) const
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
            return takes_focus(qobject_cast<QWidget*>(target));
        case QEvent::KeyPress:
            return target == &box_ && is_tab(*static_cast<QKeyEvent*>(event));
        case QEvent::Shortcut:
            return takes_focus(qobject_cast<QWidget*>(target));
        default:
            return false;
        }
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
};

}  // namespace

void when_left(QLineEdit& box, std::function<bool()> allows)
{
    new leaving_guard(box, std::move(allows));
}

}  // namespace verdane
