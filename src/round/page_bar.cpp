#include "round/page_bar.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

#include "controls/accessible_controls.h"
#include "controls/boxes.h"
#include "controls/control_array.h"
#include "controls/events.h"
#include "controls/Form.h"
#include "controls/look.h"
#include "controls/shortcuts.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int number_of(round_page page)
{
    return static_cast<int>(page);
}

void click_hole(TabStrip& holes, int hole)
{
    if (hole < 1 || hole > holes.count())
        ring_bell();
    else
        holes.click(hole);
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
    tab_key_filter(Form& window, TabStrip& hole_tabs, TabStrip& page_tabs)
        : QObject(&window), window_(window), hole_tabs_(hole_tabs), page_tabs_(page_tabs)
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
            click_hole(hole_tabs_, hole_tabs_.selected() + 1);
            break;
        case tab_key::previous_hole:
            click_hole(hole_tabs_, hole_tabs_.selected() - 1);
            break;
        case tab_key::quick_page:
            page_tabs_.click(number_of(round_page::quick));
            break;
        case tab_key::detailed_page:
            page_tabs_.click(number_of(round_page::detailed));
            break;
        case tab_key::none:
            break;
        }
    }

    Form& window_;
    TabStrip& hole_tabs_;
    TabStrip& page_tabs_;
};

}  // namespace

page_bar::page_bar(Form& window)
    : page_tabs_(named(new TabStrip, u"TabStrip2")),
      shots_button_(named(make_button(u"Cliquer pour détailler votre ronde"_s), u"Command4")),
      putts_button_(named(make_button(window.caption(u"Coups roulés", u"Putts")), u"b_putts"))
{
    name_control(*page_tabs_, u"Pages"_s);
    page_tabs_->addTab(window.caption(u"Entrée rapide", u"Quick entry"));
    page_tabs_->addTab(window.caption(u"Entrée détaillée", u"Detailed Entry"));
    window.shortcuts().add(shortcut_table::putt_report, *putts_button_);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(rhythm);
    line->addWidget(page_tabs_);
    line->addStretch();
    line->addWidget(putts_button_);
    line->addWidget(shots_button_);
    on_click(*shots_button_, [this] { call_if_set(shots_clicked); });
    on_click(*putts_button_, [this] { call_if_set(putts_clicked); });
}

bool page_bar::is_selected(round_page page) const
{
    return page_tabs_->selected() == number_of(page);
}

void page_bar::select(round_page page)
{
    page_tabs_->select(number_of(page));
}

std::vector<QWidget*> page_bar::tab_order() const
{
    return {page_tabs_, putts_button_, shots_button_};
}

void watch_tab_keys(Form& window, TabStrip& hole_tabs, TabStrip& page_tabs)
{
    new tab_key_filter(window, hole_tabs, page_tabs);
    const auto tip = [&window](const shortcut& which) {
        window.shortcuts().mention(which);
        return tool_tip_of(which, window.french());
    };
    const QString next = tip(shortcut_table::next_hole);
    hole_tabs.setToolTip(next + u'\n' + tip(shortcut_table::previous_hole));
    page_tabs.setTabToolTip(number_of(round_page::quick) - 1, tip(shortcut_table::quick_page));
    page_tabs.setTabToolTip(number_of(round_page::detailed) - 1, tip(shortcut_table::detailed_page));
}

}  // namespace verdane
