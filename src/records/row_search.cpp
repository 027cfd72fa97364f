#include "records/row_search.h"

#include "store/Connection1.h"

namespace verdane::Round_functions {

void find_first(Recordset& rows, QStringView criterion, const QString& value, search_direction direction)
{
    rows.MoveFirst();
    rows.Find(criterion + quoted(value), direction);
}

}  // namespace verdane::Round_functions
