#include "tests/guided_day/report_prints.h"
#include "tests/guided_day/season.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

/// The row of the course with the longest name, which needs the most space.
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
    now.user.menu(u"mCarte"_s);
    now.user.wait_for_window(now.window(u"f_carte"_s));
    const int row = row_of_longest_name(now.user.entries(u"List1"_s));
    now.user.click_row(u"List1"_s, row);
    now.save_picture(u"f_carte"_s, u"f_carte"_s);
    now.user.click(u"Command1_0"_s);
    save_report(now, u"card"_s);
    now.user.same(now.store.number(u"select count(*) from r_card where card_name in "
                                   u"(select name from vrd_fields) and card_club_1 = "
                                   u"(select avg_1 from sticks)"_s),
                  2, u"lines of the scorecard"_s);
    now.user.click(u"Command1_1"_s);
    now.user.wait_until_closed(now.window(u"f_carte"_s));
}

}  // namespace verdane::guided_day
