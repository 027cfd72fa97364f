#include "round/f_new_round.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

#include "controls/events.h"
#include "controls/look.h"
#include "controls/scrolled_content.h"
#include "round/detailed_page.h"
#include "round/f_new_round_func.h"
#include "round/hole_bar.h"
#include "round/hole_navigation.h"
#include "round/load_and_save.h"
#include "round/parameters_pane.h"
#include "round/quick_page.h"
#include "round/statistics_pane.h"
#include "round/tab_keys.h"
#include "round/tee_off.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int gap_between_rows = rhythm + rhythm / 2;

/// Ignores the mouse wheel over a control: turned by accident, it would select another course, hole or
/// weather unnoticed.
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

// The panes are made in the order in which Ctrl+F1 lists their keys.
f_new_round::f_new_round(shot_rows& shots)
    : Form(u"f_new_round"),
      shots_(shots),
      holes_(new hole_bar(*this)),
      pages_(new page_bar(*this)),
      quick_(new quick_page(*this)),
      statistics_(new statistics_pane(*this)),
      detailed_(
          new detailed_page(*this, shots,
                            [this] {
                                return hole_on_screen{date_value_, holes_->listed_hole(), holes_->card()};
                            })),
      parameters_(new parameters_pane(*this)),
      totals_(new totals_pane)
{
    lay_out();
    connect_panes();
    connect_window();
    f_new_round_func::load(*this);
}

void f_new_round::lay_out()
{
    setWindowTitle(caption(u"Ronde", u"Round"));
    auto* content = new QVBoxLayout;
    content->setSpacing(gap_between_rows);
    content->addWidget(holes_);
    content->addWidget(pages_);
    content->addLayout(make_panes(), 1);
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(2 * rhythm, 2 * rhythm, 2 * rhythm, 2 * rhythm);
    page->setSpacing(gap_between_rows);
    page->addWidget(holes_->tab_strip());
    page->addWidget(scrolled(content), 1);
    page->addLayout(make_bottom());
    order_for_tab_key();
    std::vector<QWidget*> wheel_controls = parameters_->wheel_controls();
    wheel_controls.push_back(holes_->wheel_control());
    for (QWidget* control : wheel_controls)
        new wheel_filter(*control);
}

QLayout* f_new_round::make_panes()
{
    panes_ = new QHBoxLayout;
    panes_->setSpacing(rhythm);
    panes_->addWidget(quick_);
    panes_->addWidget(statistics_, 1);
    panes_->addWidget(detailed_, 1);
    panes_->addWidget(parameters_);
    return panes_;
}

QLayout* f_new_round::make_bottom()
{
    end_buttons_.add(ok, make_button(u"OK"_s));
    end_buttons_.add(cancel, make_button(caption(u"Annuler", u"Cancel")));
    auto* bottom = new QHBoxLayout;
    bottom->setSpacing(rhythm);
    bottom->addWidget(totals_);
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
    for (const auto& part : {holes_->tab_order(), pages_->tab_order(), quick_->tab_order(),
                             detailed_->tab_order(), parameters_->tab_order()})
        order.insert(order.end(), part.begin(), part.end());
    order.insert(order.end(), {&end_buttons_(ok), &end_buttons_(cancel)});
    for (std::size_t place = 1; place < order.size(); ++place)
        QWidget::setTabOrder(order[place - 1], order[place]);
}

void f_new_round::connect_panes()
{
    holes_->list_changed = [this] { f_new_round_func::hole_chosen(*this); };
    holes_->before_tab_click = [this] { return f_new_round_func::hole_tab_before_click(*this); };
    holes_->tab_clicked = [this] { f_new_round_func::hole_tab_clicked(*this); };
    pages_->before_tab_click = [this] { return detailed_->finish_typing(); };
    pages_->tab_clicked = [this] { f_new_round_func::page_changed(*this); };
    pages_->shots_clicked = [this] { f_new_round_func::open_shots_of_hole(*this); };
    pages_->putts_clicked = [this] { f_new_round_func::report_putts(*this); };
    quick_->figure_changed = [this] { f_new_round_func::refresh_panel(*this, quick_->figures()); };
    quick_->strokes_changed = [this] { f_new_round_func::refresh_score(*this); };
    quick_->last_figure_typed = [this] { end_buttons_(ok).setFocus(Qt::TabFocusReason); };
    detailed_->summarised = [this](const hole_summary& summary) {
        f_new_round_func::show_summary(*this, summary);
    };
    parameters_->course_changed = [this] { f_new_round_func::course_selected(*this); };
    parameters_->costs_clicked = [this] { f_new_round_func::show_costs(*this); };
}

void f_new_round::connect_window()
{
    for (const auto& [index, button] : end_buttons_.members())
        on_click(*button, [this, pressed = index] { f_new_round_func::on_ok_cancel(*this, pressed); });
    set_cancel_button(end_buttons_(cancel));
    watch_tab_keys(*this, *holes_, *pages_);
}

/// Hides one page before it shows the other: both at once would enlarge the window beyond the screen
/// permanently.
void f_new_round::show_page(round_page page)
{
    const std::initializer_list<QWidget*> of_quick_page{quick_, statistics_};
    const std::initializer_list<QWidget*> of_detailed_page{detailed_};
    const bool quick = page == round_page::quick;
    for (QWidget* pane : quick ? of_detailed_page : of_quick_page)
        pane->hide();
    panes_->setDirection(quick ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    parameters_->arrange(quick ? Qt::Vertical : Qt::Horizontal);
    for (QWidget* pane : quick ? of_quick_page : of_detailed_page)
        pane->show();
}

void f_new_round::choose_date(f_get_date& dialog)
{
    dialog.canceled = [this] { get_date_canceled_ = true; };
    choosing_date_ = true;
    dialog.show_modal();
    choosing_date_ = false;
}

void f_new_round::hole_is_shown(int16 hole)
{
    first_entry_ = false;
    last_hole_ = hole - 1;
}

void f_new_round::saveShots()
{
    shots_.commit_all();
}

void f_new_round::activated()
{
    if (!choosing_date_)
        f_new_round_func::activate(*this);
}

void f_new_round::unloading()
{
    f_new_round_func::unload(*this);
}

void f_new_round::close_requested()
{
    f_new_round_func::on_close_box(*this);
}

}  // namespace verdane
