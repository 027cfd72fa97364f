#include "store/engines/sqlite_rows.h"

#include <QSqlError>
#include <QSqlResult>

#include <sqlite3.h>

#include <cstring>
#include <utility>

#include "store/engines/stored_text.h"

namespace verdane {

namespace {

QSqlError error_of(sqlite3* engine)
{
    return {QString(), QString::fromUtf8(sqlite3_errmsg(engine)), QSqlError::StatementError,
            QString::number(sqlite3_extended_errcode(engine))};
}

QVariant text_in(sqlite3_stmt* statement, int column)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return text_or_bytes({text, sqlite3_column_bytes(statement, column)});
}

/// True if a text of the current row has the character with which bytes that are no text were replaced.
bool has_replacement(sqlite3_stmt* statement)
{
    for (int column = 0; column < sqlite3_column_count(statement); ++column) {
        if (sqlite3_column_type(statement, column) == SQLITE_TEXT &&
            text_in(statement, column).toString().contains(QChar::ReplacementCharacter))
            return true;
    }
    return false;
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
    const bool found = started_ ? step() : first();
    started_ = true;
    on_row_ = found ? statement() : nullptr;
    return on_row_ != nullptr;
}

bool sqlite_rows::first()
{
    // The toolkit moved to the first row when it ran the statement.
    if (!query_rows::next())
        return false;
    on_row_ = statement();
    // It has converted the texts of that row, so they are read again if the conversion may have changed one.
    if (on_row_ == nullptr || !has_replacement(on_row_))
        return true;
    sqlite3_reset(on_row_);
    return step();
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
