#include "controls/events.h"

#include <QEvent>
#include <QShortcut>

namespace verdane {

namespace {

/// The toolkit takes the second press of a double click for a click of its own.
class second_press_filter : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent* event) override
    {
        return event->type() == QEvent::MouseButtonDblClick;
    }
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

}  // namespace verdane
