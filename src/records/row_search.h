#pragma once

#include <QString>
#include <QStringView>

#include "store/Connection1.h"
#include "store/Recordset.h"

/// The search for a row by its key.
namespace verdane::Round_functions {

/// The round of a key, in each table of rounds.
inline constexpr QStringView by_key = u"Date =";
/// The course of a code, in `rsvrd_fields`.
inline constexpr QStringView by_code = u"CODE = ";
/// The holes of a course, in `rsfield_info`.
inline constexpr QStringView by_course = u"FIELD_CODE = ";

/// Moves to the first row, then to the row that `Recordset::Find` finds from there by the criterion and the
/// quoted value, or to `eof()` if there is none. Fails with `misuse` on a recordset without rows.
inline void find_first(Recordset& rows, QStringView criterion, const QString& value,
                       search_direction direction = search_direction::forward)
{
    rows.MoveFirst();
    rows.Find(criterion + quoted(value), direction);
}

}  // namespace verdane::Round_functions
