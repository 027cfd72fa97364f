#include "store/row_insertion.h"

#include <algorithm>

#include "store/engines/engine.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// Far below the number of parameters that an engine allows, and the size of a statement that a server
/// allows.
constexpr int most_values = 4000;

}  // namespace

row_insertion::row_insertion(store_engine& to, const table& filled)
    : to_(to), filled_(filled), most_rows_(std::max(1, most_values / static_cast<int>(filled.columns.size())))
{
}

void row_insertion::add(const std::vector<QVariant>& values)
{
    if (rows_ == 0)
        statement_.text =
            u"INSERT INTO %1 (%2) VALUES "_s.arg(in_back_quotes(filled_.name), columns_of(filled_));
    QStringView before = rows_ == 0 ? u"(" : u",(";
    for (const QVariant& value : values) {
        statement_.text += before;
        to_.add_value(statement_, value);
        before = u",";
    }
    statement_.text += u')';
    if (++rows_ == most_rows_)
        finish();
}

void row_insertion::finish()
{
    if (rows_ > 0)
        to_.change(statement_, filled_.name);
    statement_ = {};
    rows_ = 0;
}

std::vector<QVariant> new_row(const table& filled)
{
    std::vector<QVariant> values;
    for (const column& each : filled.columns)
        values.push_back(each.default_value);
    return values;
}

}  // namespace verdane
