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
    const int modifiers = static_cast<int>(event.modifiers() & ~Qt::KeypadModifier);
    switch (event.key() | modifiers) {
    case Qt::Key_PageDown:
        return page_key::next_hole;
    case Qt::Key_PageUp:
        return page_key::previous_hole;
    case static_cast<int>(Qt::ControlModifier) | Qt::Key_1:
    case static_cast<int>(Qt::ControlModifier) | Qt::Key_Ampersand:
        return page_key::quick_page;
    case static_cast<int>(Qt::ControlModifier) | Qt::Key_2:
    case static_cast<int>(Qt::ControlModifier) | Qt::Key_Eacute:
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

constexpr text_pair next_hole{u"Trou suivant", u"Next hole"};
constexpr text_pair previous_hole{u"Trou précédent", u"Previous hole"};
constexpr text_pair quick_entry_words{u"Entrée rapide", u"Quick entry"};
constexpr text_pair detailed_entry_words{u"Entrée détaillée", u"Detailed Entry"};

/// In the list of F1 and in the tool tips of the tabs.
void name_keys(f_new_round& window)
{
    const auto tip = [&window](const QKeySequence& keys, const text_pair& words) {
        window.shortcuts().mention(keys, words);
        return tool_tip_with_keys(words, keys, window.french());
    };
    const QString next = tip(Qt::Key_PageDown, next_hole);
    window.TabStrip1->setToolTip(next + u'\n' + tip(Qt::Key_PageUp, previous_hole));
    window.TabStrip2->setTabToolTip(f_new_round_func::quick_page - 1,
                                    tip(Qt::CTRL | Qt::Key_1, quick_entry_words));
    window.TabStrip2->setTabToolTip(f_new_round_func::detailed_page - 1,
                                    tip(Qt::CTRL | Qt::Key_2, detailed_entry_words));
}

}  // namespace

void watch_page_keys(f_new_round& window)
{
    new page_keys(window);
    name_keys(window);
}

}  // namespace verdane
