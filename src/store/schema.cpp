#include "store/schema.h"

#include "store/schema_parts.h"

#include <algorithm>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

std::vector<table> all_tables()
{
    std::vector<table> tables;
    for (const auto& part : {round_tables(), reference_tables(), report_tables()})
        tables.insert(tables.end(), part.begin(), part.end());
    return tables;
}

}  // namespace

const std::vector<table>& schema()
{
    static const std::vector<table> tables = all_tables();
    return tables;
}

const table* find_table(QStringView name)
{
    const auto& tables = schema();
    const auto found = std::find_if(tables.begin(), tables.end(), [name](const table& candidate) {
        return candidate.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == tables.end() ? nullptr : &*found;
}

const QStringList& fresh_club_names()
{
    // Woods, irons and wedges as both languages abbreviate them; the last slot is always the putter.
    static const QStringList names = u"1W 3W 5W 3I 4I 5I 6I 7I 8I 9I PW SW LW Pu"_s.split(u' ');
    return names;
}

}  // namespace verdane
