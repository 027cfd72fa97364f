#include "round/page_bar.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include <utility>

#include "controls/accessible_controls.h"
#include "controls/boxes.h"
#include "controls/control_array.h"
#include "controls/failure_guard.h"
#include "controls/Form.h"
#include "controls/look.h"
#include "controls/shortcuts.h"
#include "controls/TabStrip.h"
#include "round/hole_bar.h"
#include "scoring/limits.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int number_of(round_page page)
{
    return static_cast<int>(page);
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
        const std::function<void()> action = action_of(pressed);
        // A key that is held down acts once: each change of the hole saves the round, and each save adds an
        // entry to `round_keys`, whose length is limited.
        if (action && !pressed.isAutoRepeat())
            run_event(action);
        return action != nullptr;
    }

private:
    /// Empty for a key that this filter does not handle. On a French keyboard the keys of 1 and 2 are those
    /// of & and é.
    std::function<void()> action_of(const QKeyEvent& event) const
    {
        const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
        switch (QKeyCombination(modifiers, static_cast<Qt::Key>(event.key())).toCombined()) {
        case shortcut_table::next_hole.keys.toCombined():
            return [this] { click_hole(holes_.selected_tab() + 1); };
        case shortcut_table::previous_hole.keys.toCombined():
            return [this] { click_hole(holes_.selected_tab() - 1); };
        case shortcut_table::quick_page.keys.toCombined():
        case (Qt::CTRL | Qt::Key_Ampersand).toCombined():
            return [this] { pages_.click(round_page::quick); };
        case shortcut_table::detailed_page.keys.toCombined():
        case (Qt::CTRL | Qt::Key_Eacute).toCombined():
            return [this] { pages_.click(round_page::detailed); };
        default:
            return nullptr;
        }
    }

    void click_hole(int hole) const
    {
        if (hole < 1 || hole > hole_count)
            ring_bell();
        else
            holes_.click_tab(hole);
    }

    Form& window_;
    hole_bar& holes_;
    page_bar& pages_;
};

}  // namespace

page_bar::page_bar(Form& window)
    : page_tabs_(named(new TabStrip, u"TabStrip2")),
      // French in both languages.
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
    connect(page_tabs_, &TabStrip::clicked, this, &page_bar::tab_clicked);
    connect(shots_button_, &QPushButton::clicked, this, &page_bar::shots_clicked);
    connect(putts_button_, &QPushButton::clicked, this, &page_bar::putts_clicked);
}

void page_bar::set_before_tab_click(std::function<bool()> check)
{
    page_tabs_->set_before_click(std::move(check));
}

bool page_bar::is_selected(round_page page) const
{
    return page_tabs_->selected() == number_of(page);
}

void page_bar::select(round_page page)
{
    page_tabs_->select(number_of(page));
}

void page_bar::click(round_page page)
{
    page_tabs_->click(number_of(page));
}

void page_bar::set_tab_tip(round_page page, const QString& text)
{
    page_tabs_->setTabToolTip(number_of(page) - 1, text);
}

void page_bar::show_note(const QString& line, const QString& explanation)
{
    if (note_ == nullptr) {
        if (line.isEmpty())
            return;
        note_ = named(new QLabel(this), u"places_left");
        QFont bold = note_->font();
        bold.setBold(true);
        note_->setFont(bold);
        // It takes the free width and never enlarges the window.
        note_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        constexpr int after_tabs = 1;
        static_cast<QHBoxLayout*>(layout())->insertWidget(after_tabs, note_, 1);
    }
    note_->setText(line);
    note_->setToolTip(explanation);
    note_->setAccessibleDescription(explanation);
    note_->setVisible(!line.isEmpty());
}

std::vector<QWidget*> page_bar::tab_order() const
{
    return {page_tabs_, putts_button_, shots_button_};
}

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

}  // namespace verdane
