#include "store/recovery/archived_rounds.h"

#include <QRegularExpression>

#include <algorithm>

#include "base/run_time_failure.h"
#include "store/commits.h"
#include "store/engines/file_backup.h"
#include "store/recovery/kept_copy.h"
#include "store/recovery/round_selection.h"
#include "store/recovery/whole_files.h"
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

/// Writes the rows of one table that belong to the rounds. The report tables are those of a new store.
void archive_table(const Connection1& from, Connection1& to, const table& moved, const text_set& keys,
                   const references& named)
{
    if (is_of_rounds(moved))
        replace_rows(to, moved, rows_of_keys(from, moved, keys));
    else if (is_of_bag_or_settings(moved))
        replace_rows(to, moved, all_rows(from, moved));
    else if (is_named(tables::vrd_fields::table.name, moved))
        replace_rows(to, moved, rows_of_courses(from, moved, tables::vrd_fields::code, named.courses));
    else if (is_named(tables::field_info::table.name, moved))
        replace_rows(to, moved, rows_of_courses(from, moved, tables::field_info::FIELD_CODE, named.courses));
    else if (is_named(tables::partners::table.name, moved))
        replace_rows(to, moved, rows_of_partners(from, moved, named.partners));
}

void fill_archive(const Connection1& from, Connection1& to, const text_set& keys)
{
    const references named = references_of(from, keys);
    single_commit together(to);
    for (const table& each : schema())
        archive_table(from, to, each, keys, named);
    together.finish();
}

text_set set_of(const QStringList& keys)
{
    return {keys.begin(), keys.end()};
}

bool has_rows_of(const Connection1& archive, const Connection1& store, const text_set& keys)
{
    const text_set courses = references_of(store, keys).courses;
    const table& course = *find_table(tables::vrd_fields::table.name);
    const table& holes = *find_table(tables::field_info::table.name);
    return std::all_of(tables_of_rounds.begin(), tables_of_rounds.end(),
                       [&](std::u16string_view name) {
                           const table& compared = *find_table(name);
                           return equal_rows(all_rows(archive, compared),
                                             rows_of_keys(store, compared, keys));
                       }) &&
           equal_rows(all_rows(archive, course),
                      rows_of_courses(store, course, tables::vrd_fields::code, courses)) &&
           equal_rows(all_rows(archive, holes),
                      rows_of_courses(store, holes, tables::field_info::FIELD_CODE, courses));
}

QString condition_for(const QStringList& keys)
{
    QStringList values;
    for (const QString& key : keys)
        values << quoted(key);
    return u" WHERE date IN ("_s + values.join(u',') + u')';
}

}  // namespace

QStringList round_keys_before(const Connection1& store, QDate day)
{
    static const QRegularExpression is_key(u"^[0-9]{14}$"_s);
    const QString limit = day.toString(u"yyyyMMdd"_s);
    QStringList keys;
    for (const std::vector<QVariant>& row : all_rows(store, *find_table(tables::games::table.name))) {
        const QString key = row[tables::games::date].toString();
        if (is_key.match(key).hasMatch() && key < limit)
            keys << key;
    }
    keys.removeDuplicates();
    return keys;
}

void write_archive(const Connection1& store, const QStringList& keys, const QString& path)
{
    check_store_files(path);
    const QString unfinished = path + u".unfinished";
    write_closed_store(unfinished, [&](Connection1& archive) { fill_archive(store, archive, set_of(keys)); });
    replace_file(unfinished, path);
}

bool is_archive_of(const Connection1& store, const QStringList& keys, const QString& path)
{
    need_sole_use(path);
    Connection1 archive;
    return archive.OpenExisting(store_location::file(path)) && has_rows_of(archive, store, set_of(keys));
}

void remove_archived(Connection1& store, const QStringList& keys)
{
    const text_set removed = set_of(keys);
    single_commit together(store);
    for (const std::u16string_view name : tables_of_rounds) {
        const table& changed = *find_table(name);
        const table_rows kept = rows_of_other_keys(store, changed, removed);
        store.Execute(u"DELETE FROM " + in_back_quotes(changed.name) + condition_for(keys));
        if (!equal_rows(all_rows(store, changed), kept))
            throw run_time_failure(failure_kind::store_other,
                                   QString(changed.name + u": other rows would be removed, too"));
    }
    together.finish();
}

}  // namespace verdane
