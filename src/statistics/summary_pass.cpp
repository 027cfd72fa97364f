#include "statistics/summary_pass.h"

#include <utility>

#include "base/text.h"
#include "records/course_rows.h"
#include "records/round_rows.h"
#include "scoring/limits.h"
#include "scoring/round_lines.h"
#include "statistics/stats_table.h"
#include "store/DataEnvironment1.h"
#include "store/scoped_source.h"
#include "store/tables/courses.h"
#include "store/tables/games.h"
#include "store/tables/stats.h"

namespace verdane::Statistics {

using namespace Qt::StringLiterals;
using stats_table::move_to_row;
using stats_table::write_line;

namespace {

namespace row = tables::stats::row;

Recordset& stats()
{
    return data_environment().rsstats;
}

void open_round_tables()
{
    DataEnvironment1& store = data_environment();
    store.rsvrd_fields.Open();
    store.rsfield_info.Open();
    open_situations(Round_functions::situation_columns());
    store.rsgames.Open();
}

void close_round_tables()
{
    DataEnvironment1& store = data_environment();
    for (Recordset* table : {&store.rsgames2, &store.rsgames, &store.rsvrd_fields, &store.rsfield_info})
        table->Close();
}

QString course_text(QStringView name, QStringView code)
{
    const QString tee = Verdane_tools::tee_name(code.right(1));
    return trimmed_blanks(name) + (tee.isEmpty() ? QString() : u", " + tee);
}

/// Key, course, rating and slope of the round in the current rows of `rsgames` and `rsvrd_fields`, without
/// its holes. The name of the tee is in the current language.
season_round current_season_round()
{
    using namespace tables::vrd_fields;
    Recordset& course = data_environment().rsvrd_fields;
    Recordset& games = data_environment().rsgames;
    season_round round;
    round.key = trimmed_blanks(games.Fields(tables::games::date).text_or_empty()).toString();
    round.course_code = trimmed_blanks(games.Fields(tables::games::CODEF).text_or_empty()).toString();
    round.course = course_text(course.Fields(name).text_or_empty(), round.course_code);
    round.rating = course.Fields(rating).double_or_zero();
    round.slope = course.Fields(slope).double_or_zero();
    return round;
}

/// Reads a hole of the round from the current rows, each column once.
played_hole read_hole(int16 hole)
{
    const situation_counts situation = Round_functions::read_situation(hole);
    return {{Round_functions::figures_from_row(hole), situation}, Round_functions::hole_par(hole)};
}

void add_current_round(round_sums& sums, season_rounds& season)
{
    season.push_back(current_season_round());
    sums.add_round();
    for (int h = 1; h <= hole_count; ++h) {
        season.back().holes[h] = read_hole(h);
        sums.add_hole(h, season.back().holes[h]);
    }
}

void write_averages(const round_sums& sums)
{
    move_to_row(row::average_par_3);
    for (int par = lowest_par; par <= highest_par; ++par) {
        stats_table::write_nines(average_line(sums, par));
        stats().MoveNext();
    }
}

/// From the row of the total upwards to that of the water.
void write_penalties(const round_sums& sums)
{
    move_to_row(row::penalties);
    write_line(line_of(sums.penalties));
    for (const auto* kind : {&sums.bounds, &sums.rule, &sums.lost, &sums.water}) {
        stats().MovePrevious();
        write_line(line_of(*kind));
    }
}

void write_situation(const round_sums& sums)
{
    stats().MoveFirst();
    for (const auto* kind : {&sums.fairway, &sums.sand, &sums.missed}) {
        stats().MoveNext();
        write_line(line_of(*kind));
    }
}

void write_strokes(const round_sums& sums)
{
    move_to_row(row::over_par);
    write_line(over_line(sums));
    stats().MoveFirst();
    write_line(strokes_line(sums));
    stats().Fields(tables::stats::average_mark).set(verdane::average_mark(sums));
}

/// Hole by hole, each from the first class to the last.
void write_classes(const round_sums& sums)
{
    checked_array<by_hole<double>, class_count, 1> lines;
    for (int place = 1; place <= class_count; ++place)
        lines[place] = class_holes(sums, place);
    for (int h = 1; h <= hole_count; ++h) {
        move_to_row(row::pars);
        for (int place = 1; place <= class_count; ++place) {
            stats().Fields(tables::stats::hole_h(h)).set(lines[place][h]);
            // The table is at its end after the last class.
            stats().MoveNext();
        }
    }
}

void write_lines(const round_sums& sums)
{
    write_averages(sums);
    write_penalties(sums);
    write_situation(sums);
    write_strokes(sums);
    write_classes(sums);
    stats().Update();
}

}  // namespace

filled_lines fill_round_lines(const selection_arguments& chosen)
{
    const scoped_source rounds(data_environment().rsgames, selected_rounds_statement(chosen),
                               tables::games::source_after_run.toString());
    open_round_tables();
    round_sums sums;
    season_rounds season;
    const missing_row missing = walk_selected_rounds(chosen, [&] { add_current_round(sums, season); });
    if (missing == missing_row::none)
        write_lines(sums);
    close_round_tables();
    return {missing, sums.rounds, std::move(season)};
}

}  // namespace verdane::Statistics
