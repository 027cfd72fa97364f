#include "store/engines/sqlite.h"

#include <QSqlDriver>
#include <QVariant>

#include <cstring>

#include "store/engines/commit_statements.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

// The documented result codes of the engine. The lower eight bits of a code are its class.
namespace engine_code {
constexpr int permission = 3;
constexpr int busy = 5;
constexpr int table_locked = 6;
constexpr int read_only = 8;
constexpr int input_output = 10;
constexpr int corrupt = 11;
constexpr int full = 13;
constexpr int cannot_open = 14;
constexpr int no_database = 26;
constexpr int short_read = 10 | (2 << 8);
constexpr int failed_write = 10 | (3 << 8);
constexpr int failed_truncate = 10 | (6 << 8);
constexpr int failed_memory_size = 10 | (19 << 8);
constexpr int failed_memory_map = 10 | (21 << 8);
constexpr int corrupt_file_system = 10 | (33 << 8);
}  // namespace engine_code

bool names_missing_part(const QString& text)
{
    return text.contains(u"no such table") || text.contains(u"no such column") ||
           text.contains(u"has no column named");
}

/// The meaning of errors of the file. On a disk that works, a write fails because of a quota or a limit on
/// the size of files, which is the same for the user as a full disk.
failure_kind file_failure(int code)
{
    switch (code) {
    case engine_code::failed_write:
    case engine_code::failed_truncate:
    case engine_code::failed_memory_size:
    case engine_code::failed_memory_map:
        return failure_kind::store_full;
    case engine_code::short_read:
    case engine_code::corrupt_file_system:
        return failure_kind::store_damaged;
    default:
        return failure_kind::store_unreachable;
    }
}

failure_kind kind_of(int code, const QString& text)
{
    switch (code & 0xff) {
    case engine_code::busy:
    case engine_code::table_locked:
        return failure_kind::store_locked;
    case engine_code::permission:
    case engine_code::read_only:
        return failure_kind::store_read_only;
    case engine_code::corrupt:
    case engine_code::no_database:
        return failure_kind::store_damaged;
    case engine_code::full:
        return failure_kind::store_full;
    case engine_code::cannot_open:
        return failure_kind::store_unreachable;
    case engine_code::input_output:
        return file_failure(code);
    default:
        return names_missing_part(text) ? failure_kind::missing_table : failure_kind::store_other;
    }
}

}  // namespace

sqlite3* engine_handle(const QSqlDatabase& database)
{
    const QVariant handle = database.driver()->handle();
    if (!handle.isValid() || std::strcmp(handle.typeName(), "sqlite3*") != 0)
        throw run_time_failure(failure_kind::store_unreachable,
                               u"%1: no handle of the embedded engine"_s.arg(database.databaseName()));
    return *static_cast<sqlite3* const*>(handle.constData());
}

const commit_statements& sqlite_commits()
{
    static const commit_statements statements{
        u"BEGIN"_s,    u"BEGIN IMMEDIATE"_s,           u"COMMIT"_s,
        u"ROLLBACK"_s, u"PRAGMA synchronous=NORMAL"_s, u"PRAGMA synchronous=FULL"_s};
    return statements;
}

run_time_failure store_failure(const QSqlError& error, const QString& where)
{
    const QString code = error.nativeErrorCode();
    const QString text = error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
    return {kind_of(code.toInt(), text), QString(where + u": " + text + u" (" + code + u')')};
}

}  // namespace verdane
