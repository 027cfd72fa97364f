#include "records/round_list.h"

#include "base/failure_subject.h"
#include "base/text.h"
#include "records/round_rows.h"
#include "records/round_subject.h"
#include "scoring/round_key.h"
#include "store/DataEnvironment1.h"
#include "store/tables/games.h"

namespace verdane::Round_functions {

namespace {

namespace games = tables::games;

/// What a line of the list shows: key, course, and whether the last hole has strokes.
const first_columns shown_columns{{games::date, games::field, games::long_h(hole_count),
                                   games::approach_h(hole_count), games::putt_h(hole_count)}};

QString line_of_current_row(Recordset& games, course_names names)
{
    const QString course = games.Fields(tables::games::field).text_or_empty();
    return Verdane_tools::round_entry(games.Fields(tables::games::date).text_or_empty(),
                                      names == course_names::in_capitals ? in_capitals(course) : course,
                                      round_incomplete());
}

}  // namespace

void open_rounds_in_time_order()
{
    Recordset& games = data_environment().rsgames;
    games.set_Source(games.settings().source);
    games.Open(shown_columns);
}

QStringList round_list_lines(course_names names)
{
    Recordset& games = data_environment().rsgames;
    QStringList lines;
    if (games.eof())
        return lines;
    for (games.MoveFirst(); !games.eof(); games.MoveNext())
        concerning(subject_of_current_round, [&] { lines << line_of_current_row(games, names); });
    return lines;
}

}  // namespace verdane::Round_functions
