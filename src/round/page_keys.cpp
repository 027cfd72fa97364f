#include "page_keys.h"

#include <QApplication>
#include <QKeyEvent>

#include "boxes.h"
#include "detailed_page.h"
#include "f_new_round.h"
#include "failure_guard.h"
#include "shortcuts.h"

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
