#include "store/engines/source_tables.h"

#include <algorithm>

#include "base/run_time_failure.h"
#include "store/schema.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

void check_columns(const table& declared, const QStringList& found)
{
    qsizetype place = 0;
    for (const column& column : declared.columns) {
        const QString name = found.value(place++);
        if (name.compare(column.name, Qt::CaseInsensitive) == 0)
            continue;
        throw run_time_failure(failure_kind::source_column,
                               u"%1, %2: %3 ≠ %4"_s.arg(declared.name)
                                   .arg(place)
                                   .arg(name.isEmpty() ? u"-"_s : name, column.name));
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
