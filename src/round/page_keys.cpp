#include "page_keys.h"

#include <QApplication>
#include <QKeyEvent>

#include "boxes.h"
#include "detailed_page.h"
#include "f_new_round.h"
#include "failure_guard.h"

namespace verdane {

namespace {

void click_hole(f_new_round& window, int hole)
{
    TabStrip& holes = *window.TabStrip1;
    if (hole < 1 || hole > holes.count())
        ring_bell();
    else
        holes.click(hole);
}

/// False for a key of the controls. With the French layout the keys of 1 and 2 are those of & and é.
bool act_on(f_new_round& window, const QKeyEvent& event)
{
    const int modifiers = event.modifiers() & ~Qt::KeypadModifier;
    switch (event.key() | modifiers) {
    case Qt::Key_PageDown:
        click_hole(window, window.TabStrip1->selected() + 1);
        return true;
    case Qt::Key_PageUp:
        click_hole(window, window.TabStrip1->selected() - 1);
        return true;
    case static_cast<int>(Qt::ControlModifier) | Qt::Key_1:
    case static_cast<int>(Qt::ControlModifier) | Qt::Key_Ampersand:
        window.TabStrip2->click(f_new_round_func::quick_page);
        return true;
    case static_cast<int>(Qt::ControlModifier) | Qt::Key_2:
    case static_cast<int>(Qt::ControlModifier) | Qt::Key_Eacute:
        window.TabStrip2->click(f_new_round_func::detailed_page);
        return true;
    default:
        return false;
    }
}

/// Sees the keys ahead of the controls: lists and boxes with arrows use PageDown and PageUp themselves.
class page_keys : public QObject {
public:
    explicit page_keys(f_new_round& window) : QObject(&window), window_(window)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* target, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress || QApplication::activePopupWidget())
            return false;
        const auto* control = qobject_cast<QWidget*>(target);
        if (!control || control->window() != &window_)
            return false;
        bool acted = false;
        run_event([&] { acted = act_on(window_, *static_cast<QKeyEvent*>(event)); });
        return acted;
    }

private:
    f_new_round& window_;
};

}  // namespace

void watch_page_keys(f_new_round& window)
{
    new page_keys(window);
}

}  // namespace verdane
