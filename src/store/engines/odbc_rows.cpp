#include "store/engines/odbc_rows.h"

#include <QSqlDriver>
#include <QSqlError>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include "store/engines/odbc_library.h"
#include "store/engines/stored_text.h"

namespace verdane {

using namespace Qt::StringLiterals;

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t), "the driver manager has other wide characters");

namespace {

/// Memory bound to a text. The texts of a diary are names and words; longer ones are read separately.
constexpr SQLLEN bytes_of_text = 512;

SQLHANDLE connection_handle(const QSqlDatabase& database)
{
    const QVariant handle = database.driver()->handle();
    if (!handle.isValid() || handle.metaType().sizeOf() != sizeof(SQLHANDLE))
        throw run_time_failure(failure_kind::store_unreachable,
                               u"%1: no handle of an ODBC connection"_s.arg(database.databaseName()));
    SQLHANDLE connection = nullptr;
    std::memcpy(&connection, handle.constData(), sizeof connection);
    return connection;
}

SQLWCHAR* wide(const QString& text)
{
    return reinterpret_cast<SQLWCHAR*>(
        const_cast<char16_t*>(reinterpret_cast<const char16_t*>(text.utf16())));
}

QString from_wide(const SQLWCHAR* text, qsizetype characters)
{
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(text), characters);
}

/// The last error of a statement, with the text and the number from the driver.
QSqlError error_of(SQLHANDLE statement)
{
    std::array<SQLWCHAR, 6> state{};
    std::array<SQLWCHAR, 1024> text{};
    SQLINTEGER code = 0;
    SQLSMALLINT length = 0;
    if (!SQL_SUCCEEDED(odbc_library::loaded().diagnostic(SQL_HANDLE_STMT, statement, 1, state.data(), &code,
                                                         text.data(), static_cast<SQLSMALLINT>(text.size()),
                                                         &length)))
        return QSqlError({}, {}, QSqlError::UnknownError);
    const auto known = std::min<qsizetype>(length, static_cast<qsizetype>(text.size()) - 1);
    return QSqlError({}, from_wide(text.data(), known), QSqlError::StatementError, QString::number(code));
}

enum class form { whole_number, real, decimal, text };

form form_of(SQLSMALLINT type)
{
    switch (type) {
    case SQL_BIT:
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
        return form::whole_number;
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
        return form::real;
    case SQL_DECIMAL:
    case SQL_NUMERIC:
        return form::decimal;
    default:
        return form::text;
    }
}

}  // namespace

struct odbc_rows::bound_column {
    QString name;
    form kind = form::text;
    SQLSMALLINT type_in_memory = SQL_C_CHAR;
    SQLLEN length = 0;
    SQLBIGINT number = 0;
    SQLDOUBLE real = 0;
    /// The memory bound to a text.
    QByteArray text;
    /// A text that is longer than that memory; null otherwise.
    QByteArray long_text;

    SQLPOINTER memory()
    {
        if (kind == form::whole_number)
            return &number;
        return kind == form::real ? static_cast<SQLPOINTER>(&real) : text.data();
    }
    bool is_number() const { return kind == form::whole_number || kind == form::real; }
    SQLLEN size() const { return is_number() ? static_cast<SQLLEN>(sizeof number) : text.size(); }

    /// A driver ends characters, but not bytes, with a zero byte.
    SQLLEN room() const { return size() - (type_in_memory == SQL_C_CHAR ? 1 : 0); }
    bool is_cut() const { return !is_number() && (length == SQL_NO_TOTAL || length > room()); }
};

odbc_rows::odbc_rows(const QSqlDatabase& database, const QString& statement, text_form texts,
                     failure_of_error failure)
    : failure_(std::move(failure))
{
    const odbc_library& odbc = odbc_library::loaded();
    if (!SQL_SUCCEEDED(odbc.alloc_handle(SQL_HANDLE_STMT, connection_handle(database), &statement_)))
        throw failure_(QSqlError({}, {}, QSqlError::ConnectionError));
    try {
        check(odbc.exec_direct(statement_, wide(statement), static_cast<SQLINTEGER>(statement.size())));
        describe_columns(texts);
        bind_columns();
    } catch (...) {
        odbc.free_handle(SQL_HANDLE_STMT, statement_);
        throw;
    }
}

odbc_rows::~odbc_rows()
{
    odbc_library::loaded().free_handle(SQL_HANDLE_STMT, statement_);
}

void odbc_rows::describe_columns(text_form texts)
{
    const odbc_library& odbc = odbc_library::loaded();
    SQLSMALLINT count = 0;
    check(odbc.num_result_columns(statement_, &count));
    columns_.resize(static_cast<std::size_t>(count));
    SQLUSMALLINT number = 0;
    for (bound_column& column : columns_) {
        std::array<SQLWCHAR, 128> name{};
        SQLSMALLINT letters = 0;
        SQLSMALLINT type = 0;
        SQLULEN size = 0;
        SQLSMALLINT digits = 0;
        SQLSMALLINT nullable = 0;
        check(odbc.describe_column(statement_, ++number, name.data(), static_cast<SQLSMALLINT>(name.size()),
                                   &letters, &type, &size, &digits, &nullable));
        // The driver returns the length of the whole name. A longer name than the memory is cut.
        const auto known = std::min<qsizetype>(letters, static_cast<qsizetype>(name.size()) - 1);
        column.name = from_wide(name.data(), known);
        column.kind = form_of(type);
        if (column.is_number()) {
            column.type_in_memory = column.kind == form::real ? SQL_C_DOUBLE : SQL_C_SBIGINT;
        } else {
            const bool as_bytes = column.kind == form::text && texts == text_form::bytes;
            column.type_in_memory = as_bytes ? SQL_C_BINARY : SQL_C_CHAR;
            column.text.resize(bytes_of_text);
        }
    }
}

void odbc_rows::bind_columns()
{
    SQLUSMALLINT number = 0;
    for (bound_column& column : columns_)
        check(odbc_library::loaded().bind_column(statement_, ++number, column.type_in_memory, column.memory(),
                                                 column.size(), &column.length));
}

bool odbc_rows::next()
{
    const SQLRETURN result = odbc_library::loaded().fetch(statement_);
    if (result == SQL_NO_DATA)
        return false;
    check(result);
    SQLUSMALLINT number = 0;
    for (bound_column& column : columns_) {
        ++number;
        column.long_text = column.is_cut() ? whole_text(number, column.type_in_memory) : QByteArray();
    }
    return true;
}

QByteArray odbc_rows::whole_text(unsigned short number, short type) const
{
    constexpr SQLLEN bytes_of_part = 65536;
    const SQLLEN room = bytes_of_part - (type == SQL_C_CHAR ? 1 : 0);
    QByteArray part(bytes_of_part, '\0');
    QByteArray whole;
    SQLRETURN result = SQL_SUCCESS_WITH_INFO;
    while (result == SQL_SUCCESS_WITH_INFO) {
        SQLLEN left = 0;
        result = odbc_library::loaded().get_data(statement_, number, type, part.data(), bytes_of_part, &left);
        if (result == SQL_NO_DATA)
            break;
        check(result);
        whole.append(part.constData(), left == SQL_NO_TOTAL || left > room ? room : left);
    }
    return whole;
}

QVariant odbc_rows::value(int column) const
{
    const bound_column& read = columns_[static_cast<std::size_t>(column)];
    if (read.length == SQL_NULL_DATA)
        return {};
    switch (read.kind) {
    case form::whole_number:
        return static_cast<qlonglong>(read.number);
    case form::real:
        return read.real;
    case form::decimal:
        // A driver that converts it to a number reads the decimal point of the current locale.
        return read.text.left(read.length).toDouble();
    case form::text:
        break;
    }
    if (!read.long_text.isNull())
        return text_or_bytes(read.long_text);
    return text_or_bytes(QByteArrayView(read.text.constData(), read.length));
}

void odbc_rows::check(short result) const
{
    if (!SQL_SUCCEEDED(result))
        throw failure_(error_of(statement_));
}

int odbc_rows::column_count() const
{
    return static_cast<int>(columns_.size());
}

QString odbc_rows::column_name(int column) const
{
    return columns_[static_cast<std::size_t>(column)].name;
}

}  // namespace verdane
