#include "reports/query/report_tables.h"

namespace verdane {

using namespace Qt::StringLiterals;

const QStringList& stored_tables()
{
    static const QStringList tables{u"stats"_s,  u"s_put1"_s, u"s_put2"_s, u"stat_sticks"_s,
                                    u"r_cost"_s, u"hand"_s,   u"r_card"_s, u"sticknames"_s};
    return tables;
}

const std::vector<passed_table>& passed_tables()
{
    static const std::vector<passed_table> tables{
        {u"season"_s,
         {u"rounds"_s, u"whole_rounds"_s, u"holes"_s, u"mean_window"_s, u"gross"_s, u"over"_s, u"putts"_s,
          u"greens"_s, u"penalties"_s, u"ranked_holes"_s, u"least_plays"_s}},
        {u"season_rounds"_s,
         {u"place"_s, u"date"_s, u"course"_s, u"holes"_s, u"whole"_s, u"gross"_s, u"rating"_s, u"slope"_s,
          u"differential"_s, u"counting"_s, u"handicap"_s, u"over"_s, u"moving_mean"_s, u"putts"_s,
          u"greens"_s, u"penalties"_s}},
        {u"season_handicap"_s,
         {u"rounds"_s, u"take"_s, u"sum"_s, u"mean"_s, u"factor"_s, u"product"_s, u"handicap"_s, u"missing"_s,
          u"least_rounds"_s}},
        {u"season_ladder"_s, {u"first_rounds"_s, u"last_rounds"_s, u"take"_s, u"is_current"_s}},
        {u"season_holes"_s,
         {u"is_best"_s, u"rank"_s, u"course"_s, u"hole"_s, u"par"_s, u"plays"_s, u"mean_over"_s}},
        {u"season_courses"_s,
         {u"course"_s, u"rounds"_s, u"whole_rounds"_s, u"gross"_s, u"best_gross"_s, u"over"_s, u"putts"_s,
          u"greens"_s, u"penalties"_s, u"best_differential"_s}}};
    return tables;
}

const QStringList& readable_tables()
{
    static const QStringList tables = [] {
        QStringList all = stored_tables();
        for (const passed_table& table : passed_tables())
            all.append(table.name);
        return all;
    }();
    return tables;
}

}  // namespace verdane
