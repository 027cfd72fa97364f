#include "round/page_keys.h"

#include <QApplication>
#include <QKeyEvent>

#include "base/language.h"
#include "controls/boxes.h"
#include "controls/failure_guard.h"
#include "controls/shortcuts.h"
#include "round/detailed_page.h"
#include "round/f_new_round.h"

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

enum class page_key { none, next_hole, previous_hole, quick_page, detailed_page };

/// With the French layout the keys of 1 and 2 are those of & and é.
page_key meaning_of(const QKeyEvent& event)
{
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    switch (QKeyCombination(modifiers, static_cast<Qt::Key>(event.key())).toCombined()) {
    case shortcut_table::next_hole.keys.toCombined():
        return page_key::next_hole;
    case shortcut_table::previous_hole.keys.toCombined():
        return page_key::previous_hole;
    case shortcut_table::quick_page.keys.toCombined():
    case (Qt::CTRL | Qt::Key_Ampersand).toCombined():
        return page_key::quick_page;
    case shortcut_table::detailed_page.keys.toCombined():
    case (Qt::CTRL | Qt::Key_Eacute).toCombined():
        return page_key::detailed_page;
    default:
        return page_key::none;
    }
}

void act_on(f_new_round& window, page_key key)
{
    switch (key) {
    case page_key::next_hole:
        click_hole(window, window.TabStrip1->selected() + 1);
        break;
    case page_key::previous_hole:
        click_hole(window, window.TabStrip1->selected() - 1);
        break;
    case page_key::quick_page:
        window.TabStrip2->click(f_new_round_func::quick_page);
        break;
    case page_key::detailed_page:
        window.TabStrip2->click(f_new_round_func::detailed_page);
        break;
    case page_key::none:
        break;
    }
}

/// Handles the keys before the controls do: lists and boxes with arrows use PageDown and PageUp themselves.
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
        const auto& pressed = *static_cast<QKeyEvent*>(event);
        const page_key key = meaning_of(pressed);
        // A key that is held down acts once: each change of hole takes one of the limited places for round
        // keys.
        if (key != page_key::none && !pressed.isAutoRepeat())
            run_event([&] { act_on(window_, key); });
        return key != page_key::none;
    }

private:
    f_new_round& window_;
};

/// In the list of F1 and in the tool tips of the tabs.
void name_keys(f_new_round& window)
{
    const auto tip = [&window](const shortcut& which) {
        window.shortcuts().mention(which);
        return tool_tip_of(which, window.french());
    };
    const QString next = tip(shortcut_table::next_hole);
    window.TabStrip1->setToolTip(next + u'\n' + tip(shortcut_table::previous_hole));
    window.TabStrip2->setTabToolTip(f_new_round_func::quick_page - 1, tip(shortcut_table::quick_page));
    window.TabStrip2->setTabToolTip(f_new_round_func::detailed_page - 1, tip(shortcut_table::detailed_page));
}

}  // namespace

void watch_page_keys(f_new_round& window)
{
    new page_keys(window);
    name_keys(window);
}

}  // namespace verdane
