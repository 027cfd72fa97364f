#include "tests/guided_day/day.h"

namespace verdane::guided_day {

namespace {

QString member(const QString& array, int index)
{
    return QStringLiteral("%1_%2").arg(array).arg(index);
}

void fill_general_page(day& today)
{
    today.user.fill(QStringLiteral("text_1"), today.card.name);
    today.user.choose(QStringLiteral("departure"), testing::tee_code(today.card.tee));
    today.user.fill(QStringLiteral("text_2"), today.card.rating);
    today.user.fill(QStringLiteral("text_0"), today.card.slope);
    today.keep(QStringLiteral("f_courses"), QStringLiteral("f_courses_1"));
}

/// Nine holes as they stand on the card: a row of figures after another.
void fill_nine(day& today, int page)
{
    today.user.click_tab(QStringLiteral("TabStrip1"), page);
    const int first = page == 2 ? 0 : 9;
    for (int i = first; i < first + 9; ++i) {
        const auto hole = static_cast<std::size_t>(i);
        today.user.fill(member(QStringLiteral("txt_verge"), i), QString::number(today.card.yards[hole]));
        today.user.fill(member(QStringLiteral("txt_hnd"), i), QString::number(today.card.stroke_index[hole]));
        today.user.fill(member(QStringLiteral("txt_normal"), i), QString::number(today.card.par[hole]));
    }
    today.user.key(Qt::Key_Tab);
    today.keep(QStringLiteral("f_courses"),
               page == 2 ? QStringLiteral("f_courses_2") : QStringLiteral("f_courses_3"));
}

}  // namespace

void describe_course(day& today)
{
    today.user.menu(QStringLiteral("mManagF"));
    today.user.wait_for_window(today.window(QStringLiteral("f_c_list")));
    today.user.click(QStringLiteral("Command1_1"));
    today.user.wait_for_window(today.window(QStringLiteral("f_courses")));
    fill_general_page(today);
    fill_nine(today, 2);
    fill_nine(today, 3);
    today.user.click(QStringLiteral("smdsave"));
    today.answer(u"Les modifications sont enregistrées.", u"Changes have been saved",
                 QMessageBox::Information);
    today.user.wait_until_gone(today.window(QStringLiteral("f_courses")));
    today.user.click(QStringLiteral("Command1_2"));
    today.user.wait_until_gone(today.window(QStringLiteral("f_c_list")));

    today.user.menu(QStringLiteral("mManagF"));
    today.user.wait_for_window(today.window(QStringLiteral("f_c_list")));
    today.keep(QStringLiteral("f_c_list"), QStringLiteral("f_c_list"));
    today.user.click(QStringLiteral("Command1_2"));
    today.user.wait_until_gone(today.window(QStringLiteral("f_c_list")));
}

}  // namespace verdane::guided_day
