#include "statistics/stats_table.h"

#include <array>

#include "scoring/round_key.h"
#include "scoring/round_lines.h"
#include "statistics/stats_columns.h"
#include "store/DataEnvironment1.h"

namespace verdane::stats_table {

using namespace Qt::StringLiterals;

namespace {

namespace at = stats_columns;

Recordset& stats()
{
    return data_environment().rsstats;
}

void move_to_row(int row)
{
    stats().MoveFirst();
    stats().Move(row);
}

void write_holes(const by_hole<double>& holes)
{
    for (int h = 1; h <= hole_count; ++h)
        stats().Fields(at::hole_h(h)).set(holes[h]);
}

void write_nines(const stats_line& line)
{
    stats().Fields(at::front_nine).set(line.front_nine);
    stats().Fields(at::back_nine).set(line.back_nine);
    stats().Fields(at::all_holes).set(line.all_holes);
}

void write_line(const stats_line& line)
{
    write_holes(line.holes);
    write_nines(line);
}

by_hole<double> read_holes()
{
    by_hole<double> holes;
    for (int h = 1; h <= hole_count; ++h)
        holes[h] = stats().Fields(at::hole_h(h)).to_double();
    return holes;
}

void write_averages(const round_sums& sums)
{
    move_to_row(at::average_par_3_row);
    for (int par = 3; par <= 5; ++par) {
        write_nines(average_line(sums, par));
        stats().MoveNext();
    }
}

/// Written upwards from their total, so that the rows above follow the order of a hole's fields.
void write_penalties(const round_sums& sums)
{
    move_to_row(at::penalties_row);
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

void write_over(const round_sums& sums)
{
    move_to_row(at::over_row);
    write_line(over_line(sums));
}

void write_strokes(const round_sums& sums)
{
    stats().MoveFirst();
    write_line(strokes_line(sums));
    stats().Fields(at::average_mark).set(average_mark(sums));
}

/// Column by column, one for each hole, from top to bottom, in the order in which the classes are counted.
void write_classes(const round_sums& sums)
{
    checked_array<by_hole<double>, class_count, 1> lines;
    for (int place = 1; place <= class_count; ++place)
        lines[place] = class_holes(sums, place);
    for (int h = 1; h <= hole_count; ++h) {
        move_to_row(at::classes_row);
        for (int place = 1; place <= class_count; ++place) {
            stats().Fields(at::hole_h(h)).set(lines[place][h]);
            // After the last class this is past the end; the next column starts at the first row.
            stats().MoveNext();
        }
    }
}

int checked_hole(int16 hole)
{
    if (hole < 1 || hole > hole_count)
        throw run_time_failure(failure_kind::subscript,
                               u"hole %1 in the shots of a selection"_s.arg(plain(hole)));
    return plain(hole);
}

/// The sum of the four kinds of penalty of a hole; the row of the total is then the current one.
double sum_of_penalty_rows(int h)
{
    double sum = 0;
    for (move_to_row(at::water_row); stats().position() < at::penalties_row; stats().MoveNext())
        sum += stats().Fields(at::hole_h(h)).to_double();
    return sum;
}

void write_detail_of_hole(Recordset& shots)
{
    constexpr int counts = 7;
    constexpr int mean_par = 7;
    constexpr int shot_count = 8;
    constexpr int added_penalties = 9;
    const int h = checked_hole(shots.Fields(10).to_int16());
    for (int k = 0; k < counts; ++k) {
        stats().Fields(at::hole_h(h)).set(shots.Fields(k).double_or_zero());
        stats().MoveNext();
    }
    const double penalties = sum_of_penalty_rows(h);
    stats().Fields(at::hole_h(h)).set(penalties);
    stats().MoveNext();
    stats()
        .Fields(at::hole_h(h))
        .set(shots.Fields(shot_count).double_or_zero() + shots.Fields(added_penalties).double_or_zero() -
             shots.Fields(mean_par).double_or_zero());
    move_to_row(1);
}

}  // namespace

void open_cleared()
{
    stats().Open();
    for (stats().MoveFirst(); !stats().eof(); stats().MoveNext())
        write_line({});
    move_to_row(1);
}

void write_detail()
{
    Recordset& shots = data_environment().rsStat_rounds;
    for (shots.MoveFirst(); !shots.eof(); shots.MoveNext())
        write_detail_of_hole(shots);
}

void write_round_lines(const round_sums& sums)
{
    write_averages(sums);
    write_penalties(sums);
    write_situation(sums);
    write_over(sums);
    write_strokes(sums);
    write_classes(sums);
    stats().Update();
}

void write_heading(const selection_arguments& chosen)
{
    stats().MoveFirst();
    stats().Fields(at::course_text).set(chosen.course_text);
    stats().Fields(at::weather_text).set(chosen.weather_text);
    stats().Fields(at::from_text).set(Verdane_tools::key_text(chosen.from_key));
    stats().Fields(at::to_text).set(Verdane_tools::key_text(chosen.to_key));
    stats().Fields(at::partner_text).set(chosen.partner_text);
    stats().Update();
}

void write_totals()
{
    int row = 1;
    for (move_to_row(row); !stats().eof(); stats().MoveNext(), ++row) {
        if (row < at::average_par_3_row || row > at::average_par_5_row)
            write_nines(totalled(read_holes()));
    }
}

void write_handicap(const QString& text)
{
    stats().MoveFirst();
    stats().Fields(at::handicap_text).set(text);
}

void write_round_count_and_close(int16 rounds)
{
    stats().MoveLast();
    stats().MoveFirst();
    stats().Fields(at::round_count).set(rounds);
    stats().MoveLast();
    stats().Update();
    stats().UpdateBatch(affect::all);
    stats().Requery();
    stats().Close();
}

}  // namespace verdane::stats_table
