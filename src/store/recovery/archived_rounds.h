#pragma once

#include <QDate>
#include <QStringList>

#include <optional>

#include "store/Connection1.h"

/// Rounds that are moved from a diary to a file of their own.
namespace verdane {

/// The keys of the rounds before a day, in the order of the diary. A key that is not 14 digits is left out.
QStringList round_keys_before(const Connection1& store, QDate day);

/// A row that belongs to a round and has a key that begins or ends with a blank.
struct blank_in_key {
    QString table;
    /// The key of the round.
    QString key;
};

/// The first such row of some rounds. The windows show it with its round, but it would not be moved.
std::optional<blank_in_key> find_blank_in_key(const Connection1& store, const QStringList& keys);

/// Moves some rounds to a file of their own, with the courses and partners that they name, the golf bag and
/// the settings. If the process is killed, the file has all of it or does not exist, and the next run uses a
/// complete file. The rounds are removed from the diary, in one commit, after the file was read and every row
/// compared.
///
/// False if the file exists with other content; nothing is changed then. Fails like `work_folder` and
/// `write_closed_store`, with `store_locked` if another program has the file open, by whatever name, with
/// `store_damaged` if there is a log with content without its file, and with `store_other` if other rows
/// would be removed, too. No round is removed then.
[[nodiscard]] bool move_to_archive(Connection1& diary, const QStringList& keys, const QString& path);

}  // namespace verdane
