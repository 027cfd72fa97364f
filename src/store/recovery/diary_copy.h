#pragma once

#include <QString>

#include <functional>
#include <vector>

#include "store/Connection1.h"

/// Copying a whole diary from one store to another, on any engines.
namespace verdane {

/// A table and the number of its rows.
struct counted_table {
    QString name;
    int rows = 0;
};

/// Called before the rows of a table are copied.
using table_notice = std::function<void(const counted_table& table)>;

/// The tables that hold a row which a new store does not have. Of the tables of fixed size only those of the
/// golf bag are compared: the first start sets the language, and reports rewrite the others.
std::vector<counted_table> tables_in_use(const Connection1& store);

/// Copies every row of every table, in their order, into a store without rows of its own, compares the rows
/// of both stores value by value, and commits all of it together. After a failure, or if the process ends
/// before, the target is as it was. Returns the tables with the numbers of their rows.
///
/// Both connections are open. Fails with `misuse` if the target has rows (`tables_in_use`), with
/// `store_other` if a row differs after it was copied, and with the kind that fits the engine's error.
std::vector<counted_table> copy_diary(Connection1& from, Connection1& to, const table_notice& notice);

}  // namespace verdane
