#include "controls/events.h"

#include <QEvent>
#include <QShortcut>
#include <QTimer>

namespace verdane {

namespace {

/// By default the second press of a double click is another click.
class second_press_filter : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent* event) override
    {
        return event->type() == QEvent::MouseButtonDblClick;
    }
};

class first_paint_watch : public QObject {
public:
    first_paint_watch(QWidget& window, std::function<void()> routine)
        : QObject(&window), routine_(std::move(routine))
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* window, QEvent* event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        window->removeEventFilter(this);
        QTimer::singleShot(0, this, [this] {
            run_event(routine_);
            deleteLater();
        });
        return false;
    }

private:
    std::function<void()> routine_;
};

}  // namespace

void on_enter(QListWidget& list, const std::function<void()>& routine)
{
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* enter = new QShortcut(QKeySequence(key), &list);
        enter->setContext(Qt::WidgetShortcut);
        QObject::connect(enter, &QShortcut::activated, &list, [routine] { run_event(routine); });
    }
}

void take_double_click_as_one(QAbstractButton& button)
{
    button.installEventFilter(new second_press_filter(&button));
}

void after_first_paint(QWidget& window, std::function<void()> routine)
{
    new first_paint_watch(window, std::move(routine));
}

}  // namespace verdane
