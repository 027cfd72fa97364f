#include "events.h"

#include <QEvent>

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

void take_double_click_as_one(QAbstractButton& button)
{
    button.installEventFilter(new second_press_filter(&button));
}

}  // namespace verdane
