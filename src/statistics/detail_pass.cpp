#include "statistics/detail_pass.h"

#include "scoring/words.h"
#include "statistics/stats_table.h"
#include "store/DataEnvironment1.h"
#include "store/scoped_source.h"
#include "store/tables/stats.h"

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
// The codes in it.
static_assert(in_the_fairway == 1 && putt == 3);
static_assert(water_hazard == 1 && lost_ball == 2 && against_the_rules == 3 && out_of_bounds == 4);

constexpr QStringView tables_joined = u"FROM STAT_ROUNDS, GAMES2 WHERE (STAT_ROUNDS.DATE = GAMES2.DATE AND  ";

detailed_hole read_hole(Recordset& rows)
{
    int column = 0;
    const auto next = [&] { return rows.Fields(column++).double_or_zero(); };
    detailed_hole hole;
    for (double* figure : {&hole.fairway, &hole.sand, &hole.missed, &hole.water, &hole.lost, &hole.rules,
                           &hole.bounds, &hole.par, &hole.shots, &hole.added_penalties})
        *figure = next();
    hole.hole = rows.Fields(column).to_int16();
    return hole;
}

int checked_hole(int16 hole)
{
    if (hole < 1 || hole > hole_count)
        throw run_time_failure(failure_kind::subscript,
                               u"hole %1 in the shots of a selection"_s.arg(plain(hole)));
    return plain(hole);
}

}  // namespace

QString detail_select(const selection_arguments& chosen)
{
    return figures_of_a_hole + tables_joined + u"games2.date>= " + quoted(chosen.from_key) +
           u" AND games2.date <=" + quoted(chosen.to_key) + u" )" + chosen.partner_clause +
           chosen.course_clause + chosen.weather_clause + u" GROUP BY STAT_ROUNDS.HOLE";
}

std::vector<detailed_hole> gather_detail(const selection_arguments& chosen)
{
    Recordset& shots = data_environment().rsStat_rounds;
    const scoped_source selection(shots, detail_select(chosen), shots.settings().source);
    shots.Open();
    std::vector<detailed_hole> holes;
    for (; !shots.eof(); shots.MoveNext())
        holes.push_back(read_hole(shots));
    shots.Close();
    return holes;
}

void write_detail(const std::vector<detailed_hole>& holes)
{
    Recordset& stats = data_environment().rsstats;
    for (const detailed_hole& each : holes) {
        const int h = checked_hole(each.hole);
        for (const double figure : detail_figures(each)) {
            stats.Fields(tables::stats::hole_h(h)).set(figure);
            stats.MoveNext();
        }
        stats_table::move_to_row(tables::stats::row::fairway);
    }
}

}  // namespace verdane::Statistics
