#include "round/f_new_round.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "controls/events.h"
#include "controls/look.h"
#include "controls/scrolled_content.h"
#include "round/detailed_page.h"
#include "round/f_new_round_func.h"
#include "round/hole_bar.h"
#include "round/hole_navigation.h"
#include "round/input_filters.h"
#include "round/load_and_save.h"
#include "round/parameters_pane.h"
#include "round/quick_page.h"
#include "round/round_record.h"
#include "round/statistics_pane.h"
#include "round/tee_off.h"
#include "scoring/round_key.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int gap_between_rows = rhythm + rhythm / 2;

}  // namespace

// The panes are made in the order in which Ctrl+F1 lists their keys.
f_new_round::f_new_round(shot_rows& shots)
    : Form(u"f_new_round"),
      panes_{*new hole_bar(*this),
             *new page_bar(*this),
             *new quick_page(*this),
             *new statistics_pane(*this),
             *new detailed_page(
                 *this, shots,
                 [this] {
                     return hole_on_screen{date_value_, panes_.holes.listed_hole(), panes_.holes.card()};
                 }),
             *new parameters_pane(*this),
             *new totals_pane,
             shots}
{
    lay_out();
    connect_panes();
    connect_window();
    f_new_round_func::load(*this, panes_);
}

void f_new_round::lay_out()
{
    setWindowTitle(caption(u"Ronde", u"Round"));
    auto* content = new QVBoxLayout;
    content->setSpacing(gap_between_rows);
    content->addWidget(&panes_.holes);
    content->addWidget(&panes_.pages);
    content->addLayout(make_panes(), 1);
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(2 * rhythm, 2 * rhythm, 2 * rhythm, 2 * rhythm);
    page->setSpacing(gap_between_rows);
    page->addWidget(panes_.holes.tab_strip());
    page->addWidget(scrolled(content), 1);
    page->addLayout(make_bottom());
    order_for_tab_key();
    std::vector<QWidget*> wheel_controls = panes_.parameters.wheel_controls();
    wheel_controls.push_back(panes_.holes.wheel_control());
    for (QWidget* control : wheel_controls)
        ignore_wheel(*control);
}

QLayout* f_new_round::make_panes()
{
    pane_layout_ = new QHBoxLayout;
    pane_layout_->setSpacing(rhythm);
    pane_layout_->addWidget(&panes_.quick);
    pane_layout_->addWidget(&panes_.statistics, 1);
    pane_layout_->addWidget(&panes_.detailed, 1);
    pane_layout_->addWidget(&panes_.parameters);
    return pane_layout_;
}

QLayout* f_new_round::make_bottom()
{
    end_buttons_.add(ok, make_button(u"OK"_s));
    end_buttons_.add(cancel, make_button(caption(u"Annuler", u"Cancel")));
    auto* bottom = new QHBoxLayout;
    bottom->setSpacing(rhythm);
    bottom->addWidget(&panes_.totals);
    bottom->addStretch();
    for (const int index : {ok, cancel}) {
        end_buttons_(index).setMinimumWidth(12 * rhythm);
        bottom->addWidget(&end_buttons_(index), 0, Qt::AlignBottom);
    }
    return bottom;
}

/// The Tab key visits the controls of either page in reading order, OK and Cancel last, then the first one
/// again.
void f_new_round::order_for_tab_key()
{
    std::vector<QWidget*> order;
    for (const auto& part : {panes_.holes.tab_order(), panes_.pages.tab_order(), panes_.quick.tab_order(),
                             panes_.detailed.tab_order(), panes_.parameters.tab_order()})
        order.insert(order.end(), part.begin(), part.end());
    order.insert(order.end(), {&end_buttons_(ok), &end_buttons_(cancel)});
    for (std::size_t place = 1; place < order.size(); ++place)
        QWidget::setTabOrder(order[place - 1], order[place]);
}

void f_new_round::connect_panes()
{
    namespace func = f_new_round_func;
    hole_bar& holes = panes_.holes;
    page_bar& pages = panes_.pages;
    quick_page& quick = panes_.quick;
    holes.before_tab_click = [this] { return func::hole_tab_before_click(*this, panes_); };
    pages.before_tab_click = [this] { return panes_.detailed.finish_typing(); };
    on_signal(holes, &hole_bar::list_changed, [this] { func::hole_chosen(*this, panes_); });
    on_signal(holes, &hole_bar::tab_clicked, [this] { func::hole_tab_clicked(*this, panes_); });
    on_signal(pages, &page_bar::tab_clicked, [this] { func::page_changed(*this, panes_); });
    on_signal(pages, &page_bar::shots_clicked, [this] { func::open_shots_of_hole(*this, panes_); });
    on_signal(pages, &page_bar::putts_clicked, [this] { func::report_putts(*this, panes_); });
    on_signal(quick, &quick_page::figure_changed,
              [this] { func::refresh_panel(*this, panes_, panes_.quick.figures()); });
    on_signal(quick, &quick_page::strokes_changed,
              [this] { func::refresh_score(panes_.quick, panes_.totals); });
    on_signal(quick, &quick_page::last_figure_typed,
              [this] { end_buttons_(ok).setFocus(Qt::TabFocusReason); });
    on_signal(panes_.detailed, &detailed_page::summarised,
              [this](const hole_summary& summary) { func::show_summary(panes_.quick, summary); });
    on_signal(panes_.parameters, &parameters_pane::course_changed,
              [this] { func::course_selected(*this, panes_); });
    on_signal(panes_.parameters, &parameters_pane::costs_clicked, [this] { func::show_costs(panes_); });
}

void f_new_round::connect_window()
{
    for (const auto& [index, button] : end_buttons_.members())
        on_click(*button,
                 [this, pressed = index] { f_new_round_func::on_ok_cancel(*this, panes_, pressed); });
    set_cancel_button(end_buttons_(cancel));
    watch_tab_keys(*this, panes_.holes, panes_.pages);
}

/// Hides one page before it shows the other: both at once would enlarge the window beyond the screen
/// permanently.
void f_new_round::show_page(round_page page)
{
    const std::initializer_list<QWidget*> of_quick_page{&panes_.quick, &panes_.statistics};
    const std::initializer_list<QWidget*> of_detailed_page{&panes_.detailed};
    const bool quick = page == round_page::quick;
    for (QWidget* pane : quick ? of_detailed_page : of_quick_page)
        pane->hide();
    pane_layout_->setDirection(quick ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    panes_.parameters.arrange(quick ? Qt::Vertical : Qt::Horizontal);
    for (QWidget* pane : quick ? of_quick_page : of_detailed_page)
        pane->show();
}

void f_new_round::choose_date(f_get_date& dialog)
{
    on_signal(dialog, &f_get_date::canceled, [this] { get_date_canceled_ = true; });
    choosing_date_ = true;
    dialog.show_modal();
    choosing_date_ = false;
}

void f_new_round::hole_is_shown(int16 hole)
{
    first_entry_ = false;
    last_hole_ = hole - 1;
}

void f_new_round::fill_courses(const std::vector<course_line>& courses)
{
    panes_.parameters.fill_courses(courses);
}

void f_new_round::select_course(int list_index)
{
    panes_.parameters.select_course(list_index);
}

void f_new_round::show_stored_hole(int16 hole, const QString& course_code)
{
    panes_.holes.select_in_list(plain(hole));
    panes_.parameters.select_course(course_code);
    panes_.holes.set_hole_in_boxes(hole);
}

void f_new_round::set_hole_in_boxes(int16 hole)
{
    panes_.holes.set_hole_in_boxes(hole);
}

void f_new_round::show_header(const round_header& header)
{
    panes_.parameters.show_weather(header.weather);
    panes_.parameters.show_temperature(header.temperature);
    panes_.holes.set_course_name(header.course_name);
    panes_.holes.show_tee_off(Verdane_tools::key_date_text(date_value_),
                              Verdane_tools::key_time_text(date_value_));
    panes_.parameters.show_costs(header.costs);
}

void f_new_round::lock_date()
{
    panes_.holes.lock_date();
}

bool f_new_round::on_detailed_page() const
{
    return panes_.pages.is_selected(round_page::detailed);
}

void f_new_round::save_round(bool silent)
{
    f_new_round_func::save_round(*this, panes_, silent);
}

void f_new_round::ask_and_close(bool skip_prompt)
{
    f_new_round_func::ask_and_close(*this, panes_, skip_prompt);
}

bool f_new_round::isdetailed() const
{
    return panes_.detailed.isdetailed();
}

bool f_new_round::PUT_MODE() const
{
    return panes_.detailed.PUT_MODE();
}

bool f_new_round::open_hole_shots()
{
    return panes_.detailed.open_hole_shots();
}

bool f_new_round::check_shots()
{
    return panes_.detailed.check_shots();
}

blank_shot f_new_round::drop_blank_shot()
{
    return panes_.detailed.drop_blank_shot();
}

void f_new_round::saveShots()
{
    panes_.shots.commit_all();
}

void f_new_round::activated()
{
    if (!choosing_date_)
        f_new_round_func::activate(*this, panes_);
}

void f_new_round::unloading()
{
    f_new_round_func::unload(panes_);
}

void f_new_round::close_requested()
{
    f_new_round_func::on_close_box(*this, panes_);
}

}  // namespace verdane
