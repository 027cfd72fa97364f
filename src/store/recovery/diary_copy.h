#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <vector>

#include "store/Connection1.h"
#include "store/schema.h"

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

/// The tables that would not return copied rows in their order. Only tables that the program did not make
/// and that have a key of their own are among them; `Connection1::identity_script` corrects most of
/// them.
QStringList tables_without_order(const Connection1& store);

/// Called for each row of a table with the values of its columns, in their order.
using row_step = std::function<void(const std::vector<QVariant>& values)>;

using table_rows = std::vector<std::vector<QVariant>>;

/// Reads every row of a table in the order in which the rows were inserted. Null is an invalid value. Fails
/// with the kind that fits the engine's error.
void read_rows(const Connection1& store, const table& read, const row_step& step);

/// True if two tables have the same values in the same order; numbers are compared by value.
bool equal_rows(const table_rows& left, const table_rows& right);

/// Fails with `misuse` if a store has rows of its own (`tables_in_use`).
void need_empty(const Connection1& store);

/// Writes the rows of a table of an empty store, replacing its fixed rows only, and compares the stored rows
/// with the given ones. The caller commits. Fails with `store_other` if a stored row differs, as after a row
/// of another program, and with the kind that fits the engine's error.
void fill_table(Connection1& store, const table& replaced, const table_rows& rows);

/// Copies every row of every table, in their order, into a store without rows of its own, compares the rows
/// of both stores value by value, and commits all of it together. After a failure, or if the process ends
/// before, the target is as it was. No row is deleted but those of the tables of fixed size. Returns the
/// tables with the numbers of their rows.
///
/// Both connections are open. If other programs can write to the source, the caller has begun a transaction
/// on it, so that all tables are read as of one moment. Fails with `misuse` if the target has rows
/// (`tables_in_use`), with `store_other` if a row differs after it was copied, as in a table without order,
/// or if the engine does not return all rows of a table, and with the kind that fits the engine's error.
std::vector<counted_table> copy_diary(Connection1& from, Connection1& to, const table_notice& notice);

}  // namespace verdane
