#include "round/page_bar.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "controls/accessible_controls.h"
#include "controls/control_array.h"
#include "controls/Form.h"
#include "controls/look.h"
#include "controls/shortcuts.h"
#include "controls/TabStrip.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int number_of(round_page page)
{
    return static_cast<int>(page);
}

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
    page_tabs_->before_click = [this] { return !before_tab_click || before_tab_click(); };
    connect(page_tabs_, &TabStrip::clicked, this, &page_bar::tab_clicked);
    connect(shots_button_, &QPushButton::clicked, this, &page_bar::shots_clicked);
    connect(putts_button_, &QPushButton::clicked, this, &page_bar::putts_clicked);
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

std::vector<QWidget*> page_bar::tab_order() const
{
    return {page_tabs_, putts_button_, shots_button_};
}

}  // namespace verdane
