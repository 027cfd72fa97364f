#include "shell/after_first_paint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <utility>

#include "controls/failure_guard.h"

namespace verdane {

namespace {

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

void after_first_paint(QWidget& window, std::function<void()> routine)
{
    new first_paint_watch(window, std::move(routine));
}

}  // namespace verdane
