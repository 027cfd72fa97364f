#include "records/round_subject.h"

#include "base/text.h"
#include "scoring/round_key.h"
#include "store/DataEnvironment1.h"
#include "store/tables/games.h"

namespace verdane::Round_functions {

using namespace Qt::StringLiterals;

namespace {

QString course_of_round(QStringView key)
{
    Recordset round(
        data_environment().connection,
        {u"round of a failure"_s, u"select field from games where date = "_s + quoted(key.toString())});
    round.Open();
    constexpr int only_column = 0;
    return round.eof() ? QString() : round.Fields(only_column).trimmed();
}

}  // namespace

failure_subject subject_of_round(QStringView key, int hole)
{
    const QStringView trimmed = trimmed_blanks(key);
    if (trimmed.isEmpty())
        return {};
    return {.round = Verdane_tools::key_text(trimmed), .course = course_of_round(trimmed), .hole = hole};
}

failure_subject subject_of_current_round()
{
    Recordset& games = data_environment().rsgames;
    const QString key = games.Fields(tables::games::date).trimmed();
    if (key.isEmpty())
        return {};
    return {.round = Verdane_tools::key_text(key), .course = games.Fields(tables::games::field).trimmed()};
}

}  // namespace verdane::Round_functions
