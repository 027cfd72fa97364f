#include "round/f_new_round.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "controls/data_grid.h"
#include "controls/events.h"
#include "round/course_box.h"
#include "round/detailed_page.h"
#include "round/f_new_round_func.h"
#include "round/f_new_round_layout.h"
#include "round/page_keys.h"
#include "round/quick_entry.h"
#include "round/round_boxes.h"
#include "round/round_putts.h"
#include "round/shot_entry.h"
#include "store/DataEnvironment1.h"

namespace verdane {

f_new_round::f_new_round() : Form(u"f_new_round")
{
    lay_out(*this);
    connect_events();
    f_new_round_func::load(*this);
}

int16 f_new_round::hole_shown() const
{
    return static_cast<std::int16_t>(cmb_holes->currentIndex() + 1);
}

hole_figures f_new_round::figures() const
{
    const auto stroke = [this](int index) { return figure_of_box(text_vrd(index).text()); };
    const auto penalty = [this](int index) { return figure_of_box(text_s(index).text()); };
    hole_figures f;
    f.long_shots = stroke(round_box::long_shots);
    f.approach = stroke(round_box::approach);
    f.putts = stroke(round_box::putts);
    f.pen_rule = penalty(round_box::rule);
    f.pen_water = penalty(round_box::water);
    f.pen_bounds = penalty(round_box::bounds);
    f.pen_lost = penalty(round_box::lost);
    return f;
}

void f_new_round::connect_events()
{
    on_select(*cmb_holes, [this] { f_new_round_func::hole_chosen(*this); });
    on_select(*cmb_courses, [this] { f_new_round_func::course_selected(*this); });
    TabStrip1->before_click = [this] { return f_new_round_func::hole_tab_before_click(*this); };
    TabStrip1->clicked = [this] { f_new_round_func::hole_tab_clicked(*this); };
    TabStrip2->before_click = [this] { return f_new_round_func::finish_typing(*this); };
    TabStrip2->clicked = [this] { f_new_round_func::page_changed(*this); };
    on_click(*Command2, [this] { f_new_round_func::show_costs(*this); });
    on_click(*Command4, [this] { f_new_round_func::tell_shot_by_shot(*this); });
    on_click(*b_putts, [this] { f_new_round_func::report_putts(*this); });
    for (const auto& [button, routine] : {std::pair{CommandSuiv, &f_new_round_func::next_shot},
                                          std::pair{CommandSup, &f_new_round_func::remove_shot},
                                          std::pair{b_carte, &f_new_round_func::finish_hole}}) {
        on_click(*button, [this, pressed = routine] {
            if (f_new_round_func::finish_typing(*this))
                pressed(*this);
        });
    }
    for (const auto& [index, button] : Command1.members())
        on_click(*button, [this, pressed = index] { f_new_round_func::on_ok_cancel(*this, pressed); });
    set_cancel_button(Command1(round_box::cancel));
    quick_entry::watch_boxes(*this);
    watch_page_keys(*this);
}

void f_new_round::saveShots()
{
    data_environment().rsStat_rounds.UpdateBatch();
}

void f_new_round::activated()
{
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
