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

[[noreturn]] void refuse_type(const QString& where, const QString& found, const column& column)
{
    throw run_time_failure(failure_kind::source_type,
                           QString(where + column.name + u": " + found + u" ≠ " + declared_type(column)));
}

void check_column(const QString& where, const column& column, const source_column& found)
{
    if (found.name.compare(column.name, Qt::CaseInsensitive) != 0)
        throw run_time_failure(
            failure_kind::source_column,
            QString(where + (found.name.isEmpty() ? u"-"_s : found.name) + u" ≠ " + column.name));
    if (found.computed)
        refuse_type(where, found.type + u" GENERATED", column);
    if (!fits(found.content, column.type) || (found.characters > 0 && found.characters < column.characters))
        refuse_type(where, found.type, column);
}

/// Engines describe a column whose default is Null by the word or by no value.
bool has_default(const source_column& found)
{
    return !found.default_value.isEmpty() && found.default_value.compare(u"NULL", Qt::CaseInsensitive) != 0;
}

bool is_declared_default(const column& declared, const source_column& found)
{
    if (declared.default_value.isNull() || !has_default(found))
        return declared.default_value.isNull() && !has_default(found);
    return found.default_value == QString::number(declared.default_value.toInt());
}

bool has_other_default(const table& declared, const QList<source_column>& found)
{
    qsizetype place = 0;
    return std::any_of(declared.columns.begin(), declared.columns.end(),
                       [&](const column& each) { return !is_declared_default(each, found.value(place++)); });
}

/// `needed` is the type that the column should have.
void check_null(const QString& where, const source_column& found, bool is_null_in_new_rows,
                const QString& needed)
{
    const bool has_value = has_default(found) || found.computed;
    if (found.not_null && (is_null_in_new_rows || !has_value))
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

QStringList tables_with_other_defaults(const source_tables& found)
{
    QStringList names;
    for (const table& declared : schema()) {
        const QString name = declared.name.toLower();
        if (found.contains(name) && has_other_default(declared, found[name]))
            names << name;
    }
    return names;
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
