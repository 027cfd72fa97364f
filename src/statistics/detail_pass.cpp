#include "statistics/detail_pass.h"

#include "store/DataEnvironment1.h"

namespace verdane::Statistics {

using namespace Qt::StringLiterals;

namespace {

// A true comparison sums to 1 on one engine and to -1 on another, hence the ABS.
constexpr QStringView figures_of_a_hole =
    u"SELECT ABS(SUM(STAT_ROUNDS.FAIRVAL=1 and STAT_ROUNDS.shot_type_value<>3 )), "
    u"ABS(SUM(STAT_ROUNDS.TS)), ABS(SUM(STAT_ROUNDS.MISSED)), "
    u"ABS(SUM(STAT_ROUNDS.PENVAL=1)), ABS(SUM(STAT_ROUNDS.PENVAL=2)), ABS(SUM(STAT_ROUNDS.PENVAL=3)), "
    u" ABS(SUM(STAT_ROUNDS.PENVAL=4)), "
    u"SUM(STAT_ROUNDS.NORMAL)/COUNT(STAT_ROUNDS.HOLE) , COUNT(STAT_ROUNDS.HOLE), "
    u"SUM(STAT_ROUNDS.ADDPEN),STAT_ROUNDS.HOLE ";

constexpr QStringView tables = u"FROM STAT_ROUNDS, GAMES2 WHERE (STAT_ROUNDS.DATE = GAMES2.DATE AND  ";

}  // namespace

QString detail_select(const selection_arguments& chosen)
{
    return figures_of_a_hole + tables + u"games2.date>= " + quoted(chosen.from_key) + u" AND games2.date <=" +
           quoted(chosen.to_key) + u" )" + chosen.partner_clause + chosen.course_clause +
           chosen.weather_clause + u" GROUP BY STAT_ROUNDS.HOLE";
}

bool open_detail(const selection_arguments& chosen)
{
    Recordset& shots = data_environment().rsStat_rounds;
    shots.set_Source(detail_select(chosen));
    shots.Open();
    return !shots.eof() && !shots.bof();
}

void close_detail()
{
    Recordset& shots = data_environment().rsStat_rounds;
    shots.Close();
    shots.set_Source(u"select * from Stat_rounds"_s);
}

}  // namespace verdane::Statistics
