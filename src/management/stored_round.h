#pragma once

#include <QString>

namespace verdane {

/// Opens what the round window works on and puts every recordset on the rows of the stored round with
/// that key; `rsgames` and `rsfield_info` are open. A round without its row of `cost` gets one, which
/// the round window commits.
void open_rows_of_round(const QString& key);

}  // namespace verdane
