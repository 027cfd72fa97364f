#include "reference/f_courses_boxes.h"

#include <QLabel>
#include <QLineEdit>

#include "base/numbers.h"
#include "base/text.h"
#include "controls/boxes.h"
#include "reference/f_courses.h"

namespace verdane::f_courses_func {

using namespace Qt::StringLiterals;

namespace {

/// The filter's own limit for rating and slope; a point passes it.
constexpr int most_figure_characters = 6;
constexpr int selected_characters = 5;
constexpr int stroke_index_limit = 19;
constexpr int lowest_par = 3;
constexpr int highest_par = 5;

key_answer figure_key(const QLineEdit& box, QChar key)
{
    if (key == u'.' || key == backspace)
        return key_answer::pass;
    const bool full = trimmed_blanks(box.text()).size() >= most_figure_characters;
    return is_plain_digit(key) && !full ? key_answer::pass : key_answer::refuse;
}

/// The name becomes part of the course's key: plain letters and blanks only.
key_answer name_key(QChar key)
{
    const bool letter = (key >= u'a' && key <= u'z') || (key >= u'A' && key <= u'Z');
    return letter || key == u' ' || key == backspace ? key_answer::pass : key_answer::refuse;
}

bool refuse(QLineEdit& box)
{
    box.setText(u"0"_s);
    box.setFocus();
    select_characters(box, selected_characters);
    return false;
}

bool refuse(QLineEdit& box, const QString& reason)
{
    tell(reason);
    return refuse(box);
}

bool belongs_to_another_hole(const f_courses& window, int index, double stored_value)
{
    for (int other = 0; other < hole_count; ++other) {
        if (other != index && plain(to_int16(window.txt_hnd(other).text())) == stored_value)
            return true;
    }
    return false;
}

int16 yards(const f_courses& window, int first, int end)
{
    int16 sum = 0;
    for (int index = first; index < end; ++index)
        sum = sum + to_int16(window.txt_verge(index).text());
    return sum;
}

void show_figure(QLabel& label, int16 value)
{
    label.setText(QString::number(plain(value)));
}

}  // namespace

key_answer text_key(const f_courses& window, int index, QChar key)
{
    switch (index) {
    case 0:
    case 2:
        return figure_key(window.text(index), key);
    case 1:
        return name_key(key);
    default:
        return key_answer::pass;
    }
}

void enter_hole_box(QLineEdit& box)
{
    select_characters(box, selected_characters);
}

bool leave_verge(f_courses& window, int index)
{
    QLineEdit& box = window.txt_verge(index);
    if (!is_numeric(box.text()))
        return refuse(box);
    window.needtosave = true;
    show_totals(window);
    return true;
}

bool leave_hnd(f_courses& window, int index)
{
    QLineEdit& box = window.txt_hnd(index);
    if (!is_numeric(box.text()))
        return refuse(box);
    const double value = leading_number(box.text());
    const double stored_value = round_half_even(value);
    // Several holes may have 0: a course can be saved before its indexes are known.
    if (stored_value == 0)
        return true;
    if (belongs_to_another_hole(window, index, stored_value))
        return refuse(box, window.caption(u"Cette handicap est attri1buée à un autre trou",
                                          u"This handicap is associated to another hole."));
    if (value >= stroke_index_limit || stored_value >= stroke_index_limit)
        return refuse(box, window.caption(u"La valeur de l'Handicap doit être inférieure à 19.",
                                          u"The handicap must be under 19."));
    return true;
}

bool leave_normal(f_courses& window, int index)
{
    QLineEdit& box = window.txt_normal(index);
    if (!is_numeric(box.text()))
        return refuse(box);
    // The typed value, not the rounded one: 0.4 is no par, although it would be stored as 0. What lies within
    // the limits does so when it is rounded, too.
    const double value = leading_number(box.text());
    if (value != 0 && (value < lowest_par || value > highest_par))
        return refuse(box, window.caption(u"La Normale doit être inférieure à 6 et supérieur à 2.",
                                          u"The par must be under 6 and above 2."));
    return true;
}

void show_totals(f_courses& window)
{
    const int16 front = yards(window, 0, front_hole_count);
    const int16 back = yards(window, front_hole_count, hole_count);
    const int16 total = front + back;
    show_figure(*window.lbl_alle, front);
    show_figure(*window.lbl_retour, back);
    show_figure(*window.lbl_total, total);
}

}  // namespace verdane::f_courses_func
