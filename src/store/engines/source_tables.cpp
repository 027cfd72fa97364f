#include "store/engines/source_tables.h"

#include <algorithm>

#include "base/run_time_failure.h"
#include "store/schema.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// Places count from 1.
QString place_of(const table& declared, qsizetype place)
{
    return u"%1, %2: "_s.arg(declared.name).arg(place);
}

void check_column(const QString& where, const column& column, const source_column& found)
{
    if (found.name.compare(column.name, Qt::CaseInsensitive) != 0)
        throw run_time_failure(
            failure_kind::source_column,
            QString(where + (found.name.isEmpty() ? u"-"_s : found.name) + u" ≠ " + column.name));
    if (!fits(found.content, column.type))
        throw run_time_failure(failure_kind::source_type, QString(where + column.name + u": " + found.type +
                                                                  u" ≠ " + declared_type(column)));
}

/// `needed` is the type that the column should have.
void check_null(const QString& where, const source_column& found, bool is_null_in_new_rows,
                const QString& needed)
{
    if (found.not_null && (is_null_in_new_rows || !found.has_default))
        throw run_time_failure(failure_kind::source_type,
                               QString(where + found.name + u": " + found.type + u" NOT NULL ≠ " + needed));
}

void check_columns(const table& declared, const QList<source_column>& found)
{
    qsizetype place = 0;
    for (const column& column : declared.columns) {
        const source_column present = found.value(place);
        const QString where = place_of(declared, ++place);
        check_column(where, column, present);
        check_null(where, present, column.default_value.isNull(), declared_type(column));
    }
    for (; place < found.size(); ++place)
        check_null(place_of(declared, place + 1), found[place], false, found[place].type);
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
