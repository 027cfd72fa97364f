#include "statistics/stats_table.h"

#include "scoring/round_key.h"
#include "store/DataEnvironment1.h"
#include "store/tables/stats.h"

namespace verdane::stats_table {

namespace {

using namespace tables::stats;

Recordset& stats()
{
    return data_environment().rsstats;
}

by_hole<double> read_holes()
{
    by_hole<double> holes;
    for (int h = 1; h <= hole_count; ++h)
        holes[h] = stats().Fields(hole_h(h)).to_double();
    return holes;
}

}  // namespace

void open_cleared()
{
    stats().Open();
    for (stats().MoveFirst(); !stats().eof(); stats().MoveNext())
        write_line({});
    move_to_row(1);
}

void move_to_row(int row)
{
    stats().MoveFirst();
    stats().Move(row);
}

void write_line(const stats_line& line)
{
    for (int h = 1; h <= hole_count; ++h)
        stats().Fields(hole_h(h)).set(line.holes[h]);
    write_nines(line);
}

void write_nines(const stats_line& line)
{
    stats().Fields(front_nine).set(line.front_nine);
    stats().Fields(back_nine).set(line.back_nine);
    stats().Fields(all_holes).set(line.all_holes);
}

void write_heading(const selection_arguments& chosen)
{
    stats().MoveFirst();
    stats().Fields(course_text).set(chosen.course_text);
    stats().Fields(weather_text).set(chosen.weather_text);
    stats().Fields(from_text).set(Verdane_tools::key_text(chosen.from_key));
    stats().Fields(to_text).set(Verdane_tools::key_text(chosen.to_key));
    stats().Fields(partner_text).set(chosen.partner_text);
    stats().Update();
}

void write_totals()
{
    int current = 1;
    for (move_to_row(current); !stats().eof(); stats().MoveNext(), ++current) {
        if (current < row::average_par_3 || current > row::average_par_5)
            write_nines(totalled(read_holes()));
    }
}

void write_handicap(const QString& text)
{
    stats().MoveFirst();
    stats().Fields(handicap_text).set(text);
}

void write_round_count_and_close(int16 rounds)
{
    stats().MoveLast();
    stats().MoveFirst();
    stats().Fields(round_count).set(rounds);
    stats().MoveLast();
    stats().Update();
    stats().UpdateBatch(affect::all);
    stats().Requery();
    stats().Close();
}

}  // namespace verdane::stats_table
