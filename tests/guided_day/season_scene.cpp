#include <array>

#include "tests/guided_day/report_prints.h"
#include "tests/guided_day/season.h"

namespace verdane::guided_day {

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
    static const std::array<statistic, 4> all{{{QStringLiteral("clubs"), QStringLiteral("mnStabat"),
                                                QStringLiteral("Command1"), QStringLiteral("stat_sticks")},
                                               {QStringLiteral("putts"), QStringLiteral("mnStatcr"),
                                                QStringLiteral("OKButton"), QStringLiteral("s_put1")},
                                               {QStringLiteral("rounds"), QStringLiteral("mnstatr"),
                                                QStringLiteral("Command2"), QStringLiteral("stats")},
                                               {QStringLiteral("costs"), QStringLiteral("mncouts"),
                                                QStringLiteral("Command3"), QStringLiteral("r_cost")}}};
    return all;
}

void print(visit& now, const statistic& one)
{
    now.user.menu(one.menu);
    now.user.wait_for_window(now.window(QStringLiteral("f_date_range")));
    choose_season(now);
    now.keep(QStringLiteral("f_date_range"), u"f_date_range_" + one.name);
    now.user.click(one.button);
    keep_report(now, one.name);
    now.user.same(now.store.number(QStringLiteral("select round_count from %1 limit 1").arg(one.table)),
                  rounds_of_season, u"rounds in the report on " + one.name);
    now.user.click(QStringLiteral("CancelButton"));
    now.user.wait_until_gone(now.window(QStringLiteral("f_date_range")));
}

}  // namespace

void print_statistics(visit& now)
{
    for (const statistic& one : statistics())
        print(now, one);
}

}  // namespace verdane::guided_day
