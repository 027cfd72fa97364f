#include "tests/guided_day/day.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

QString member(const QString& array, int index)
{
    return u"%1_%2"_s.arg(array).arg(index);
}

void fill_general_page(day& today)
{
    today.user.fill(u"text_1"_s, today.card.name);
    today.user.choose(u"departure"_s, testing::tee_code(today.card.tee));
    today.user.fill(u"text_2"_s, today.card.rating);
    today.user.fill(u"text_0"_s, today.card.slope);
    today.save_picture(u"f_courses"_s, u"f_courses_1"_s);
}

/// Nine holes of the scorecard.
void fill_nine(day& today, int page)
{
    today.user.click_tab(u"TabStrip1"_s, page);
    const int first = page == 2 ? 0 : 9;
    for (int i = first; i < first + 9; ++i) {
        const auto hole = static_cast<std::size_t>(i);
        today.user.fill(member(u"txt_verge"_s, i), QString::number(today.card.yards[hole]));
        today.user.fill(member(u"txt_hnd"_s, i), QString::number(today.card.stroke_index[hole]));
        today.user.fill(member(u"txt_normal"_s, i), QString::number(today.card.par[hole]));
    }
    today.user.key(Qt::Key_Tab);
    today.save_picture(u"f_courses"_s, page == 2 ? u"f_courses_2"_s : u"f_courses_3"_s);
}

}  // namespace

void enter_course(day& today)
{
    today.user.menu(u"mManagF"_s);
    today.user.wait_for_window(today.window(u"f_c_list"_s));
    today.user.click(u"Command1_1"_s);
    today.user.wait_for_window(today.window(u"f_courses"_s));
    fill_general_page(today);
    fill_nine(today, 2);
    fill_nine(today, 3);
    today.user.click(u"smdsave"_s);
    today.answer(u"Les modifications sont enregistrées.", u"Changes have been saved",
                 QMessageBox::Information);
    today.user.wait_until_closed(today.window(u"f_courses"_s));
    today.user.click(u"Command1_2"_s);
    today.user.wait_until_closed(today.window(u"f_c_list"_s));

    today.user.menu(u"mManagF"_s);
    today.user.wait_for_window(today.window(u"f_c_list"_s));
    today.save_picture(u"f_c_list"_s, u"f_c_list"_s);
    today.user.click(u"Command1_2"_s);
    today.user.wait_until_closed(today.window(u"f_c_list"_s));
}

}  // namespace verdane::guided_day
