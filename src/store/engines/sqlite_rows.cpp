#include "store/engines/sqlite_rows.h"

#include <QSqlError>
#include <QSqlResult>

#include <sqlite3.h>

#include <cstring>
#include <utility>

namespace verdane {

namespace {

QSqlError error_of(sqlite3* engine)
{
    return {QString(), QString::fromUtf8(sqlite3_errmsg(engine)), QSqlError::StatementError,
            QString::number(sqlite3_extended_errcode(engine))};
}

QString text_in(sqlite3_stmt* statement, int column)
{
    const auto* text = static_cast<const char16_t*>(sqlite3_column_text16(statement, column));
    const auto length =
        static_cast<std::size_t>(sqlite3_column_bytes16(statement, column)) / sizeof(char16_t);
    return QStringView(text, static_cast<qsizetype>(length)).toString();
}

QByteArray bytes_in(sqlite3_stmt* statement, int column)
{
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
    return {bytes, sqlite3_column_bytes(statement, column)};
}

}  // namespace

sqlite3_stmt* sqlite_rows::statement() const
{
    const QVariant handle = query().result()->handle();
    if (!handle.isValid() || std::strcmp(handle.typeName(), "sqlite3_stmt*") != 0)
        return nullptr;
    return *static_cast<sqlite3_stmt* const*>(handle.constData());
}

bool sqlite_rows::next()
{
    // The toolkit moved to the first row when it ran the statement.
    const bool found = started_ ? step() : query_rows::next();
    started_ = true;
    on_row_ = found ? statement() : nullptr;
    return on_row_ != nullptr;
}

bool sqlite_rows::step()
{
    const bool on_row = std::exchange(on_row_, nullptr) != nullptr;
    sqlite3_stmt* const running = on_row ? statement() : nullptr;
    if (running == nullptr)
        return false;
    const int result = sqlite3_step(running);
    if (result == SQLITE_ROW)
        return true;
    sqlite3* const engine = sqlite3_db_handle(running);
    const QSqlError error = error_of(engine);
    // Releases the lock for reading.
    sqlite3_reset(running);
    if (result != SQLITE_DONE)
        throw failure_of(error);
    return false;
}

QVariant sqlite_rows::value(int column) const
{
    switch (sqlite3_column_type(on_row_, column)) {
    case SQLITE_INTEGER:
        return static_cast<qlonglong>(sqlite3_column_int64(on_row_, column));
    case SQLITE_FLOAT:
        return sqlite3_column_double(on_row_, column);
    case SQLITE_NULL:
        return {};
    case SQLITE_BLOB:
        return bytes_in(on_row_, column);
    default:
        return text_in(on_row_, column);
    }
}

}  // namespace verdane
