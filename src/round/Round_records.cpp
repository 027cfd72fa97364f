#include "round/Round_records.h"

#include <QComboBox>
#include <QLineEdit>

#include "base/Main_module.h"
#include "records/round_columns.h"
#include "records/round_rows.h"
#include "round/course_box.h"
#include "round/f_new_round.h"
#include "round/round_boxes.h"
#include "round/round_panel.h"
#include "round/round_parameters.h"
#include "round/temperature_box.h"
#include "store/DataEnvironment1.h"

/// A hole between boxes and rows.
namespace verdane {

namespace {

namespace at = round_columns;

void show(QLineEdit& box, int16 value)
{
    box.setText(QString::number(plain(value)));
}

void show_strokes(f_new_round& window, const Round_functions::strokes& values)
{
    show(window.text_vrd(round_box::long_shots), values.long_shots);
    show(window.text_vrd(round_box::approach), values.approach);
    show(window.text_vrd(round_box::putts), values.putts);
    sum_stroke_boxes(window);
}

void show_penalties(f_new_round& window, const Round_functions::penalties& values)
{
    show(window.text_s(round_box::water), values.water);
    show(window.text_s(round_box::lost), values.lost);
    show(window.text_s(round_box::rule), values.rule);
    show(window.text_s(round_box::bounds), values.bounds);
    sum_penalty_boxes(window);
}

void show_situation(f_new_round& window, int16 hole)
{
    const Round_functions::situation values = Round_functions::read_situation(hole);
    show(window.text_p(round_box::fairway), values.fairway);
    show(window.text_p(round_box::sand), values.sand);
    show(window.text_p(round_box::missed), values.missed);
    show(window.text_p(round_box::recovery), Round_functions::read_recovery(hole));
}

void store_strokes(const f_new_round& window, int16 hole)
{
    const hole_figures f = window.figures();
    Round_functions::store_strokes(hole, {f.long_shots, f.approach, f.putts});
    Round_functions::store_penalties(hole, {f.pen_rule, f.pen_water, f.pen_bounds, f.pen_lost});
}

void store_situation(const f_new_round& window, int16 hole)
{
    const auto box = [&window](int index) { return window.text_p(index).text(); };
    Round_functions::store_situation(hole, {box(round_box::fairway), box(round_box::sand),
                                            box(round_box::missed), box(round_box::recovery)});
}

}  // namespace

void load_hole(f_new_round& window, int16 hole)
{
    show_strokes(window, Round_functions::read_strokes(hole));
    show_penalties(window, Round_functions::read_penalties(hole));
    show_situation(window, hole);
    show_hole_card(window, hole);
    show(window.text(round_box::hole), hole);
    refresh_panel(window, true);
}

void show_hole_card(f_new_round& window, int16 hole)
{
    const Round_functions::hole_card card = Round_functions::read_hole_card(hole);
    show(window.text(round_box::length), card.yards);
    show(window.text(round_box::par), card.par);
    show(window.text(round_box::stroke_index), card.handicap);
}

int16 hole_in_boxes(const f_new_round& window)
{
    return figure_of_box(window.text(round_box::hole).text());
}

void store_hole(f_new_round& window, int16 hole)
{
    store_strokes(window, hole);
    store_partners(window);
    store_situation(window, hole);
}

void store_partners(f_new_round& window)
{
    const QString text = Round_functions::partners_text(selected_partners(window));
    data_environment().rsgames2.Fields(at::partners).set(text);
}

void store_round_header(f_new_round& window)
{
    DataEnvironment1& store = data_environment();
    const QString code = Round_functions::course_code_at(window.cmb_courses->currentIndex());
    store.rsgames.Fields(at::field).set(store.rsvrd_fields.Fields(at::name).value());
    store.rsgames2.Fields(at::conditionM).set(window.conditions->currentIndex());
    store.rsgames2.Fields(at::temperature).set(window.UpDown1->value());
    store.rsgames.Fields(at::codef).set(code);
    store.rsgames2.Fields(at::fc).set(code);
    Main_module::append_round_key(store.rsgames.Fields(at::date).trimmed());
    store.rsgames2.Update();
    store.rsgames.Update();
}

}  // namespace verdane
