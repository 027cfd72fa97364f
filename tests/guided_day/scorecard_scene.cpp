#include "tests/guided_day/report_prints.h"
#include "tests/guided_day/season.h"

namespace verdane::guided_day {

namespace {

/// The course with the longest name is the one that might not fit.
int row_of_longest_name(const QStringList& lines)
{
    int row = 0;
    for (int line = 0; line < lines.size(); ++line) {
        const auto length = [&](int of) { return lines.at(of).section(u',', 0, 0).trimmed().size(); };
        if (length(line) > length(row))
            row = line;
    }
    return row;
}

}  // namespace

void print_scorecard(visit& now)
{
    now.user.menu(QStringLiteral("mCarte"));
    now.user.wait_for_window(now.window(QStringLiteral("f_carte")));
    const int row = row_of_longest_name(now.user.entries(QStringLiteral("List1")));
    now.user.click_row(QStringLiteral("List1"), row);
    now.keep(QStringLiteral("f_carte"), QStringLiteral("f_carte"));
    now.user.click(QStringLiteral("Command1_0"));
    keep_report(now, QStringLiteral("card"));
    now.user.same(now.store.number(QStringLiteral("select count(*) from r_card where card_name in "
                                                  "(select name from vrd_fields) and card_club_1 = "
                                                  "(select avg_1 from sticks)")),
                  2, QStringLiteral("lines of the scorecard"));
    now.user.click(QStringLiteral("Command1_1"));
    now.user.wait_until_gone(now.window(QStringLiteral("f_carte")));
}

}  // namespace verdane::guided_day
