#include "reference/f_courses.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <vector>

#include "controls/entering.h"
#include "controls/events.h"
#include "controls/leaving.h"
#include "controls/main_frame.h"
#include "controls/shortcuts.h"
#include "reference/f_courses_boxes.h"
#include "reference/f_courses_func.h"

namespace verdane {

namespace {

using namespace f_courses_func;
using namespace Qt::StringLiterals;

constexpr QSize usual_size(pixels(10410), pixels(8700));

/// A published scorecard gives the lengths of nine holes in a row, then their stroke indexes, then
/// their pars: the boxes of a page follow each other in that order.
void append_nine(std::vector<QWidget*>& order, const f_courses& window, int first_index)
{
    for (const auto* boxes : {&window.txt_verge, &window.txt_hnd, &window.txt_normal}) {
        for (int index = first_index; index < first_index + front_hole_count; ++index)
            order.push_back(&(*boxes)(index));
    }
}

}  // namespace

f_courses::f_courses(bool new_course)
    : Form(u"f_courses"),
      isNew(new_course),
      TabStrip1(named(new TabStrip, u"TabStrip1")),
      departure(named(new QComboBox, u"departure")),
      lbl_alle(named(new QLabel, u"lbl_alle")),
      lbl_retour(named(new QLabel, u"lbl_retour")),
      lbl_total(named(new QLabel, u"lbl_total")),
      smdsave(named(make_button(u"OK"_s), u"smdsave")),
      cmdan(named(make_button(caption(u"Annuler", u"Cancel")), u"cmdan"))
{
    setWindowTitle(caption(u"Terrains", u"Golf Course"));
    lay_out();
    set_tab_order();
    take_size(usual_size);
    load(*this);
    wire();
}

void f_courses::set_tab_order()
{
    std::vector<QWidget*> order{TabStrip1, &text(1), departure, &text(2), &text(0)};
    order.insert(order.end(), {&text(3), &text(4), &text(5)});
    append_nine(order, *this, 0);
    append_nine(order, *this, front_hole_count);
    order.insert(order.end(), {smdsave, cmdan});
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    text(1).setFocus();
}

void f_courses::wire()
{
    for (const auto& [index, box] : text.members()) {
        filter_keys(*box, [this, i = index](QChar key) { return text_key(*this, i, key); });
        on_change(*box, [this] { needtosave = true; });
    }
    for (int index = 0; index < hole_count; ++index)
        wire_hole(index);
    TabStrip1->clicked = [this] { page_clicked(*this); };
    on_click(*smdsave, [this] {
        save();
        closeForm();
    });
    on_click(*cmdan, [this] { closeForm(); });
    set_cancel_button(*cmdan);
    // The modal editor disables the main window, so the mouse cannot reach its toolbar.
    shortcuts().add(shortcut_table::save_course, [this] { toolbar_clicked(*this, u"B1"); });
    shortcuts().add(shortcut_table::close_course, [this] { toolbar_clicked(*this, u"B5"); });
}

void f_courses::wire_hole(int index)
{
    for (const auto* boxes : {&txt_verge, &txt_hnd, &txt_normal}) {
        QLineEdit& box = (*boxes)(index);
        when_entered(box, [&box] { enter_hole_box(box); });
    }
    when_left(txt_verge(index), [this, index] { return leave_verge(*this, index); });
    when_left(txt_hnd(index), [this, index] { return leave_hnd(*this, index); });
    when_left(txt_normal(index), [this, index] { return leave_normal(*this, index); });
}

void f_courses::save()
{
    f_courses_func::save(*this);
}

void f_courses::closeForm()
{
    f_courses_func::close(*this);
}

void f_courses::unloading()
{
    f_courses_func::unload(*this);
}

}  // namespace verdane
