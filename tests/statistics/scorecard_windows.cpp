#include "tests/statistics/scorecard_windows.h"

#include <QTest>

#include "base/language.h"
#include "reports/query/report_snapshot.h"
#include "statistics/f_carte.h"
#include "tests/support/hand_widgets.h"

using namespace Qt::StringLiterals;

namespace verdane::testing {

diary_course pebble()
{
    return course_of(u"Pebble Beach"_s, u"Gold"_s);
}

stocked_store::stocked_store(bool french) : stored_diary(french)
{
    set_report_store(location());
    book.add(pebble());
    book.add(course_of(u"Carnoustie Championship"_s, u"White"_s));
    book.add(course_of(u"Carnoustie Championship"_s, u"Black"_s));
    for (int club = 1; club <= 14; ++club)
        book.store.write(u"update sticks set avg_%1 = %2"_s.arg(club).arg(250.5 - 10 * club));
}

std::vector<QVariant> stocked_store::card(int row) const
{
    return book.store.rows(u"select * from r_card"_s).at(static_cast<std::size_t>(row - 1));
}

QString scorecard_window()
{
    return in_language(u"f_carte", u"f_carte_en");
}

void in_scorecard_window(const std::function<void(hand&)>& script)
{
    play(
        [] {
            f_carte window;
            window.show_modal();
        },
        [&](hand& user) {
            user.wait_for_window(scorecard_window());
            script(user);
            user.click(u"Command1_1"_s);
            user.wait_until_closed(scorecard_window());
        });
}

void print_card(hand& user, int course)
{
    user.click_row(u"List1"_s, course);
    user.click(u"Command1_0"_s);
}

void close_card(hand& user)
{
    user.wait_until(u"the report"_s, [] { return visible_window(preview) != nullptr; });
    user.look([] {
        QWidget* report = visible_window(preview);
        QCOMPARE(report->windowTitle(), u"Verdane International Inc."_s);
        QVERIFY(report->isMaximized());
        QCOMPARE(report->parentWidget()->objectName(), scorecard_window());
        QCOMPARE(dynamic_cast<f_carte&>(*active_form()).cr2().ReportFileName(),
                 QCoreApplication::applicationDirPath() + in_language(u"\\r_card2.rpt", u"\\r_card2_en.rpt"));
        report->close();
    });
    user.wait_until_closed(preview);
}

}  // namespace verdane::testing
