#include "statistics/selected_rounds.h"

#include "base/failure_subject.h"
#include "base/numbers.h"
#include "controls/boxes.h"
#include "records/round_rows.h"
#include "records/round_subject.h"
#include "records/row_search.h"
#include "store/DataEnvironment1.h"
#include "store/tables/games.h"
#include "store/tables/games2.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

bool found(Recordset& rows, QStringView criterion, const QString& value)
{
    if (rows.empty())
        return false;
    Round_functions::find_first(rows, criterion, value);
    return !rows.bof() && !rows.eof();
}

missing_row locate_rows_of_round()
{
    DataEnvironment1& store = data_environment();
    const QString course = store.rsgames.Fields(tables::games::CODEF).text_or_empty();
    if (!found(store.rsvrd_fields, Round_functions::by_code, course))
        return missing_row::course;
    if (!found(store.rsfield_info, Round_functions::by_course, course))
        return missing_row::holes;
    const QString key = store.rsgames.Fields(tables::games::date).text_or_empty();
    return found(store.rsgames2, Round_functions::by_key, key) ? missing_row::none : missing_row::games2;
}

/// Null matches no weather, as in the clauses of the statements.
bool has_weather(const QString& wanted)
{
    const Field weather = data_environment().rsgames2.Fields(tables::games2::conditionM);
    return !weather.is_null() && weather.to_int16() == to_int16(wanted);
}

bool passes_filters(const selection_arguments& chosen)
{
    if (!chosen.weather_value.isEmpty() && !has_weather(chosen.weather_value))
        return false;
    return chosen.partner_number.isEmpty() || Round_functions::partner_in_round(chosen.partner_number) > 0;
}

}  // namespace

QString selected_rounds_statement(const selection_arguments& chosen)
{
    QString statement = u" select * from games where ( date>= " + quoted(chosen.from_key) + u" AND date <=" +
                        quoted(chosen.to_key) + u")";
    if (chosen.course_code.size() > 1)
        statement += u" AND CODEF=" + quoted(chosen.course_code);
    return statement;
}

void open_situations(const std::vector<int>& further)
{
    namespace games2 = tables::games2;
    first_columns columns{{games2::date, games2::conditionM, games2::PARTNERS}};
    columns.ordinals.insert(columns.ordinals.end(), further.begin(), further.end());
    data_environment().rsgames2.Open(columns);
}

missing_row walk_selected_rounds(const selection_arguments& chosen, const std::function<void()>& take)
{
    Recordset& games = data_environment().rsgames;
    if (!games.eof())
        games.MoveFirst();
    for (; !games.eof(); games.MoveNext()) {
        const missing_row missing = locate_rows_of_round();
        if (missing != missing_row::none)
            return missing;
        if (passes_filters(chosen))
            concerning(Round_functions::subject_of_current_round, take);
    }
    return missing_row::none;
}

void report_missing_row(missing_row row)
{
    // English in both languages.
    show_information(u"Fatal Error : %1 "_s.arg(static_cast<int>(row)), QMessageBox::Critical, QString());
}

}  // namespace verdane
