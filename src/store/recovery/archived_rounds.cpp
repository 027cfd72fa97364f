#include "store/recovery/archived_rounds.h"

#include <QFileInfo>
#include <QLockFile>

#include <algorithm>
#include <optional>

#include "base/run_time_failure.h"
#include "scoring/round_key.h"
#include "store/commits.h"
#include "store/engines/engine.h"
#include "store/engines/file_backup.h"
#include "store/recovery/kept_copy.h"
#include "store/recovery/round_selection.h"
#include "store/recovery/whole_files.h"
#include "store/recovery/work_folder.h"
#include "store/store_files.h"
#include "store/tables/courses.h"
#include "store/tables/golf_bag.h"
#include "store/tables/partners.h"
#include "store/tables/settings.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

bool is_named(std::u16string_view name, const table& tested)
{
    return tested.name == QStringView(name);
}

bool is_of_rounds(const table& tested)
{
    return std::any_of(tables_of_rounds.begin(), tables_of_rounds.end(),
                       [&](std::u16string_view name) { return is_named(name, tested); });
}

bool is_of_bag_or_settings(const table& tested)
{
    return is_named(tables::sticks::table.name, tested) || is_named(tables::sticknames::table.name, tested) ||
           is_named(tables::settings::table.name, tested);
}

/// What an archive has of one table of a diary. Nothing of a report table: it is that of a new store.
std::optional<table_rows> rows_of_archive(const Connection1& diary, const table& moved, const text_set& keys,
                                          const references& named)
{
    if (is_of_rounds(moved))
        return rows_of_keys(diary, moved, keys);
    if (is_of_bag_or_settings(moved))
        return all_rows(diary, moved);
    if (is_named(tables::vrd_fields::table.name, moved))
        return rows_of_courses(diary, moved, tables::vrd_fields::code, named.courses);
    if (is_named(tables::field_info::table.name, moved))
        return rows_of_courses(diary, moved, tables::field_info::FIELD_CODE, named.courses);
    if (is_named(tables::partners::table.name, moved))
        return rows_of_partners(diary, moved, named.partners);
    return std::nullopt;
}

void fill_archive(const Connection1& diary, Connection1& archive, const text_set& keys)
{
    const references named = references_of(diary, keys);
    single_commit together(archive);
    for (const table& each : schema()) {
        if (const auto rows = rows_of_archive(diary, each, keys, named))
            fill_table(archive, each, *rows);
    }
    together.finish();
}

text_set set_of(const QStringList& keys)
{
    return {keys.begin(), keys.end()};
}

bool has_rows_of(const Connection1& archive, const Connection1& diary, const text_set& keys)
{
    const references named = references_of(diary, keys);
    return std::all_of(schema().begin(), schema().end(), [&](const table& each) {
        const auto rows = rows_of_archive(diary, each, keys, named);
        return !rows || equal_rows(all_rows(archive, each), *rows);
    });
}

/// Writes a new file. Another program that does not use the lock may write one at the same time, which is
/// not replaced.
void write_archive(const Connection1& diary, const QStringList& keys, const QString& path)
{
    check_store_files(path);
    const work_folder work(path);
    write_closed_store(work.new_store(),
                       [&](Connection1& archive) { fill_archive(diary, archive, set_of(keys)); });
    (void)rename_without_replacing(work.new_store(), path);
}

/// Opens a file that is no store, or a damaged one, as one without tables.
bool open_archive(Connection1& archive, const QString& path)
{
    try {
        return archive.OpenExisting(store_location::file(path));
    } catch (const run_time_failure& failure) {
        if (failure.kind() != failure_kind::store_damaged)
            throw;
        return false;
    }
}

/// True if a file has exactly these rounds, and all that belongs to them. It is read from a copy, because
/// opening a store may change its file.
bool is_archive_of(const Connection1& diary, const QStringList& keys, const QString& path)
{
    need_sole_use(path);
    const work_folder work(path);
    if (!QFileInfo(path).isFile())
        return false;
    copy_store_files(path, work.read_store());
    Connection1 archive;
    return open_archive(archive, work.read_store()) && has_rows_of(archive, diary, set_of(keys));
}

QString condition_for(const QStringList& keys)
{
    QStringList values;
    for (const QString& key : keys)
        values << quoted(key);
    return u" WHERE date IN ("_s + values.join(u',') + u')';
}

/// Removes the rows of some rounds. Fails with `store_other` unless exactly these rows are removed: on a
/// server the statement would also delete rows that were committed after the transaction began, which it does
/// not read. The caller commits.
void remove_archived(Connection1& store, const QStringList& keys)
{
    const text_set removed = set_of(keys);
    for (const std::u16string_view name : tables_of_rounds) {
        const table& changed = *find_table(name);
        const std::size_t archived = rows_of_keys(store, changed, removed).size();
        const table_rows kept = rows_of_other_keys(store, changed, removed);
        const statement_with_values deletion{
            u"DELETE FROM " + in_back_quotes(changed.name) + condition_for(keys), {}};
        const int deleted = store.engine().change(deletion, changed.name);
        if (static_cast<std::size_t>(deleted) != archived || !equal_rows(all_rows(store, changed), kept))
            throw run_time_failure(failure_kind::store_other,
                                   QString(changed.name + u": other rows would be removed, too"));
    }
}

}  // namespace

QStringList round_keys_before(const Connection1& store, QDate day)
{
    const QString limit = day.toString(u"yyyyMMdd"_s);
    QStringList keys;
    for (const std::vector<QVariant>& row : all_rows(store, *find_table(tables::games::table.name))) {
        const QString key = row[tables::games::date].toString();
        if (Verdane_tools::is_round_key(key) && key < limit)
            keys << key;
    }
    keys.removeDuplicates();
    return keys;
}

std::optional<blank_in_key> find_blank_in_key(const Connection1& store, const QStringList& keys)
{
    const text_set moved = set_of(keys);
    std::optional<blank_in_key> found;
    for (const std::u16string_view name : tables_of_rounds) {
        const table& tested = *find_table(name);
        read_rows(store, tested, [&](const std::vector<QVariant>& row) {
            const QString key = row.front().toString();
            if (!found && key.trimmed() != key && moved.contains(key.trimmed()))
                found = {tested.name, key.trimmed()};
        });
    }
    return found;
}

bool move_to_archive(Connection1& diary, const QStringList& keys, const QString& path)
{
    make_folder_of(path);
    const auto lock = take_store_lock(path);
    // From the first row that is read to the last one that is removed, no other program writes to the diary.
    single_commit together(diary);
    if (!QFileInfo::exists(path))
        write_archive(diary, keys, path);
    if (!is_archive_of(diary, keys, path))
        return false;
    remove_archived(diary, keys);
    together.finish();
    return true;
}

}  // namespace verdane
