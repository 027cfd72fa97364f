#include "round/steady_wheel.h"

#include <QEvent>
#include <QWidget>

namespace verdane {

namespace {

class wheel_filter : public QObject {
public:
    explicit wheel_filter(QWidget& control) : QObject(&control) { control.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel)
            return false;
        event->ignore();
        return true;
    }
};

}  // namespace

void ignore_wheel(QWidget& control)
{
    new wheel_filter(control);
    // The toolkit gives the keyboard to what the wheel turns over, ahead of every filter.
    if (control.focusPolicy() == Qt::WheelFocus)
        control.setFocusPolicy(Qt::StrongFocus);
}

}  // namespace verdane
