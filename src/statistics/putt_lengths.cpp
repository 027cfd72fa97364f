#include "statistics/putt_lengths.h"

#include "base/failure_subject.h"
#include "records/round_subject.h"
#include "scoring/limits.h"
#include "store/DataEnvironment1.h"
#include "store/scoped_source.h"
#include "store/tables/games2.h"

namespace verdane::Statistics {

using namespace Qt::StringLiterals;

namespace {

constexpr int first_length = tables::games2::putt_len(1, 1);
// After six lengths above 0 on the last hole, the column after them is read as a length, too.
constexpr int last_length = tables::games2::putt_len(hole_count, putt_lengths_kept) + 1;

/// The key and the lengths of all holes, which are adjacent columns.
first_columns columns_read()
{
    first_columns columns{{tables::games2::date}};
    for (int ordinal = first_length; ordinal <= last_length; ++ordinal)
        columns.ordinals.push_back(ordinal);
    return columns;
}

/// False if no round of the result is in the range.
bool find_first_round(const selection_arguments& chosen)
{
    Recordset& games2 = data_environment().rsgames2;
    if (chosen.from_key > chosen.to_key || games2.eof())
        return false;
    games2.MoveFirst();
    games2.Find(u"Date >=" + quoted(chosen.from_key));
    return !games2.eof();
}

failure_subject subject_of_current_row()
{
    return Round_functions::subject_of_round(
        data_environment().rsgames2.Fields(tables::games2::date).trimmed());
}

/// Starts at the current row. The key of the last round is the only upper limit.
gathered_putts walk_rounds(const QString& to_key, run_progress& bar)
{
    Recordset& games2 = data_environment().rsgames2;
    gathered_putts gathered;
    bool more = true;
    while (!games2.eof() && more) {
        gathered.rounds = gathered.rounds + 1;
        more = games2.Fields(tables::games2::date).trimmed() != to_key;
        concerning(subject_of_current_row, [&] {
            const putt_counts round = putts_of_current_round();
            bar.pass_through(10);
            gathered.counts.add(round);
            bar.pass_through(20);
        });
        games2.MoveNext();
    }
    return gathered;
}

}  // namespace

QString putt_select(const selection_arguments& chosen)
{
    return u"select * from games2 where " + chosen.weather_clause + u" AND " + chosen.partner_clause +
           u" AND " + chosen.course_clause + u" order by date ";
}

putt_counts putts_of_current_round()
{
    Recordset& games2 = data_environment().rsgames2;
    return scan_round_putts([&games2](int place) { return games2.Fields(first_length + place).to_int16(); });
}

std::optional<gathered_putts> gather_putts(const selection_arguments& chosen, run_progress& bar)
{
    Recordset& games2 = data_environment().rsgames2;
    const scoped_source selection(games2, putt_select(chosen), tables::games2::source_after_run.toString());
    games2.Open(columns_read());
    std::optional<gathered_putts> gathered;
    if (find_first_round(chosen))
        gathered = walk_rounds(chosen.to_key, bar);
    games2.Close();
    return gathered;
}

}  // namespace verdane::Statistics
