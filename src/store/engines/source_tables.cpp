#include "store/engines/source_tables.h"

#include <algorithm>

#include "base/run_time_failure.h"
#include "store/schema.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

void check_column(const table& declared, qsizetype place, const column& column, const source_column& found)
{
    const QString where = u"%1, %2: "_s.arg(declared.name).arg(place);
    if (found.name.compare(column.name, Qt::CaseInsensitive) != 0)
        throw run_time_failure(
            failure_kind::source_column,
            QString(where + (found.name.isEmpty() ? u"-"_s : found.name) + u" ≠ " + column.name));
    if (!fits(found.content, column.type))
        throw run_time_failure(failure_kind::source_type, QString(where + column.name + u": " + found.type +
                                                                  u" ≠ " + declared_type(column)));
}

void check_columns(const table& declared, const QList<source_column>& found)
{
    qsizetype place = 0;
    for (const column& column : declared.columns) {
        check_column(declared, place + 1, column, found.value(place));
        ++place;
    }
}

}  // namespace

tables_found check_tables(const source_tables& found)
{
    qsizetype present = 0;
    for (const table& declared : schema()) {
        const auto columns = found.constFind(declared.name.toLower());
        if (columns == found.constEnd())
            continue;
        ++present;
        check_columns(declared, *columns);
    }
    if (present == 0)
        return tables_found::none;
    return present == static_cast<qsizetype>(schema().size()) ? tables_found::all : tables_found::some;
}

bool are_first_tables(const source_tables& found)
{
    const auto is_missing = [&found](const table& declared) {
        return !found.contains(declared.name.toLower());
    };
    const auto first_missing = std::find_if(schema().begin(), schema().end(), is_missing);
    return std::all_of(first_missing, schema().end(), is_missing);
}

QStringList missing_tables(const source_tables& found)
{
    QStringList names;
    for (const table& declared : schema()) {
        if (!found.contains(declared.name.toLower()))
            names << declared.name;
    }
    return names;
}

}  // namespace verdane
