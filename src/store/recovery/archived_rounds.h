#pragma once

#include <QDate>
#include <QStringList>

#include "store/Connection1.h"

/// Rounds that are moved from a diary to a file of their own.
namespace verdane {

/// The keys of the rounds before a day, in the order of the diary. A key that is not 14 digits is left out.
QStringList round_keys_before(const Connection1& store, QDate day);

/// Writes a new file with the rows of some rounds, the courses and partners that they name, and the golf bag.
/// The path has the whole file or none, also if the process is killed, and every row was compared. There is
/// no file at the path. Fails with `store_damaged` if there is a log with content next to it, like
/// `write_closed_store` and `replace_file`.
void write_archive(const Connection1& store, const QStringList& keys, const QString& path);

/// True if a file has exactly these rounds, with the same rows as the diary, and the rows of their courses.
/// Both are open while they are compared, and another file than that of the diary is required: fails with
/// `store_locked` if the file is open on any connection, by whatever name.
bool is_archive_of(const Connection1& store, const QStringList& keys, const QString& path);

/// Removes the rows of some rounds from the diary in one commit. Fails with `store_other`, and changes
/// nothing, unless exactly these rows are removed.
void remove_archived(Connection1& store, const QStringList& keys);

}  // namespace verdane
