#include "round/input_filters.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

#include "controls/boxes.h"
#include "controls/entering.h"
#include "controls/failure_guard.h"
#include "controls/Form.h"
#include "controls/keys.h"
#include "controls/shortcuts.h"
#include "round/hole_bar.h"
#include "round/page_bar.h"
#include "scoring/limits.h"

namespace verdane {

namespace {

void click_hole(hole_bar& holes, int hole)
{
    if (hole < 1 || hole > hole_count)
        ring_bell();
    else
        holes.click_tab(hole);
}

enum class tab_key { none, next_hole, previous_hole, quick_page, detailed_page };

/// On a French keyboard the keys of 1 and 2 are those of & and é.
tab_key meaning_of(const QKeyEvent& event)
{
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    switch (QKeyCombination(modifiers, static_cast<Qt::Key>(event.key())).toCombined()) {
    case shortcut_table::next_hole.keys.toCombined():
        return tab_key::next_hole;
    case shortcut_table::previous_hole.keys.toCombined():
        return tab_key::previous_hole;
    case shortcut_table::quick_page.keys.toCombined():
    case (Qt::CTRL | Qt::Key_Ampersand).toCombined():
        return tab_key::quick_page;
    case shortcut_table::detailed_page.keys.toCombined():
    case (Qt::CTRL | Qt::Key_Eacute).toCombined():
        return tab_key::detailed_page;
    default:
        return tab_key::none;
    }
}

/// Handles the keys before the controls do: lists and boxes with arrows use PageDown and PageUp themselves.
class tab_key_filter : public QObject {
public:
    tab_key_filter(Form& window, hole_bar& holes, page_bar& pages)
        : QObject(&window), window_(window), holes_(holes), pages_(pages)
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
        const tab_key key = meaning_of(pressed);
        // A key that is held down acts once: each change of hole uses one of the limited places for round
        // keys.
        if (key != tab_key::none && !pressed.isAutoRepeat())
            run_event([&] { act_on(key); });
        return key != tab_key::none;
    }

private:
    void act_on(tab_key key)
    {
        switch (key) {
        case tab_key::next_hole:
            click_hole(holes_, holes_.selected_tab() + 1);
            break;
        case tab_key::previous_hole:
            click_hole(holes_, holes_.selected_tab() - 1);
            break;
        case tab_key::quick_page:
            pages_.click(round_page::quick);
            break;
        case tab_key::detailed_page:
            pages_.click(round_page::detailed);
            break;
        case tab_key::none:
            break;
        }
    }

    Form& window_;
    hole_bar& holes_;
    page_bar& pages_;
};

constexpr int selection_length = 4;

/// A click into a box that has the focus already selects its figure, too: the next digit replaces it,
/// wherever the pointer is.
class click_selects : public QObject {
public:
    explicit click_selects(QLineEdit& box) : QObject(&box), box_(box) { box.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonRelease && !box_.hasSelectedText())
            select_figure(box_);
        return false;
    }

private:
    QLineEdit& box_;
};

key_answer take_key(QLineEdit& box, QChar key, const std::function<void()>& move_on)
{
    if (key == backspace || digits_only(key) == key_answer::refuse)
        return digits_only(key);
    box.insert(key);
    move_on();
    return key_answer::taken;
}

class wheel_filter : public QObject {
public:
    explicit wheel_filter(QWidget& control) : QObject(&control)
    {
        control.installEventFilter(this);
        // The toolkit focuses a control with this policy before any filter runs.
        if (control.focusPolicy() == Qt::WheelFocus)
            control.setFocusPolicy(Qt::StrongFocus);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel)
            return false;
        event->ignore();
        return true;
    }
};

}  // namespace

void watch_tab_keys(Form& window, hole_bar& holes, page_bar& pages)
{
    new tab_key_filter(window, holes, pages);
    const auto tip = [&window](const shortcut& which) {
        window.shortcuts().mention(which);
        return tool_tip_of(which, window.french());
    };
    const QString next = tip(shortcut_table::next_hole);
    holes.set_tab_tip(next + u'\n' + tip(shortcut_table::previous_hole));
    pages.set_tab_tip(round_page::quick, tip(shortcut_table::quick_page));
    pages.set_tab_tip(round_page::detailed, tip(shortcut_table::detailed_page));
}

void watch_digit_keys(QLineEdit& box, std::function<void()> move_on)
{
    filter_keys(box, [&box, move_on = std::move(move_on)](QChar key) { return take_key(box, key, move_on); });
    when_entered(box, [&box] { select_figure(box); });
    new click_selects(box);
    filter_pasted_text(box, digits_only);
}

void select_figure(QLineEdit& box)
{
    select_characters(box, selection_length);
}

void ignore_wheel(QWidget& control)
{
    new wheel_filter(control);
}

}  // namespace verdane
