#pragma once

#include "store/recovery/diary_copy.h"
#include "transfer/csv_file.h"
#include "transfer/table_list.h"

namespace verdane {

/// The rows of a table from its file in a folder, with the list of the same folder. A file that has the
/// checksum of the list is as it was exported and can have every value that a store can have. In any other
/// file each value must fit into its column, a round has a key of its own, there are `most_rounds` rounds at
/// most, and a table of fixed size has its rows. The number of rows must be that of the list, and the last
/// line must have its end.
///
/// Wrong lines are added to `faults`, at most one fault of a value for each line. The name of a file with
/// another checksum is added to `edited`.
table_rows read_table(const table& read, const QString& folder, const table_list& list, bad_lines& faults,
                      QStringList& edited);

}  // namespace verdane
