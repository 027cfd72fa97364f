#include <array>

#include "tests/guided_day/report_prints.h"
#include "tests/guided_day/season.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

/// A statistic: its entry in the menu, the button that runs it and the table of its report.
struct statistic {
    QString name;
    QString menu;
    QString button;
    QString table;
};

const std::array<statistic, 4>& statistics()
{
    static const std::array<statistic, 4> all{{{u"clubs"_s, u"mnStabat"_s, u"Command1"_s, u"stat_sticks"_s},
                                               {u"putts"_s, u"mnStatcr"_s, u"OKButton"_s, u"s_put1"_s},
                                               {u"rounds"_s, u"mnstatr"_s, u"Command2"_s, u"stats"_s},
                                               {u"costs"_s, u"mncouts"_s, u"Command3"_s, u"r_cost"_s}}};
    return all;
}

void print(visit& now, const statistic& one)
{
    now.user.menu(one.menu);
    now.user.wait_for_window(now.window(u"f_date_range"_s));
    choose_season(now);
    now.save_picture(u"f_date_range"_s, u"f_date_range_" + one.name);
    now.user.click(one.button);
    save_report(now, one.name);
    now.user.same(now.store.number(u"select round_count from %1 limit 1"_s.arg(one.table)), rounds_of_season,
                  u"rounds in the report on " + one.name);
    now.user.click(u"CancelButton"_s);
    now.user.wait_until_closed(now.window(u"f_date_range"_s));
}

}  // namespace

void print_statistics(visit& now)
{
    for (const statistic& one : statistics())
        print(now, one);
}

}  // namespace verdane::guided_day
