#include "statistics/season_round_row.h"

#include "base/text.h"
#include "records/course_rows.h"
#include "store/DataEnvironment1.h"
#include "store/tables/courses.h"
#include "store/tables/games.h"

namespace verdane::Statistics {

using namespace Qt::StringLiterals;

namespace {

QString course_text(QStringView name, QStringView code)
{
    const QString tee = Verdane_tools::tee_name(code.right(1));
    return trimmed_blanks(name) + (tee.isEmpty() ? QString() : u", " + tee);
}

}  // namespace

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

}  // namespace verdane::Statistics
