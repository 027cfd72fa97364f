#include "tests/support/outside_connection.h"

#include <QRegularExpression>
#include <QSqlError>
#include <QSqlRecord>
#include <QUuid>

#include "store/engines/odbc_rows.h"
#include "tests/support/engine_of_tests.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int time_out_s = 5;

bool open(QSqlDatabase& database, const store_location& store, bool is_server)
{
    database.setDatabaseName(is_server ? store.name : file_of(store));
    if (!is_server)
        database.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=%1"_s.arg(1000 * time_out_s));
    return database.open();
}

bool is_on_server(const store_location& store)
{
    return store.where == store_location::place::source && engine_of_tests() == test_engine::mariadb;
}

/// The differences in the statements with which tests prepare a store.
QString in_words_of_server(QString statement)
{
    static const QRegularExpression row_number(u"\\browid\\b"_s, QRegularExpression::CaseInsensitiveOption);
    // A column of the shots has the name of a reserved word.
    static const QRegularExpression reserved_name(u"\\bbefore\\b(?=\\s*[,=)])"_s);
    return statement.replace(row_number, u"verdane_row"_s).replace(reserved_name, u"`before`"_s);
}

}  // namespace

outside_connection::outside_connection(const store_location& store)
    : name_(QUuid::createUuid().toString()), is_server_(is_on_server(store))
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(is_server_ ? u"QODBC"_s : u"QSQLITE"_s, name_);
        if (!open(database, store, is_server_))
            qFatal("cannot open %s: %s", qUtf8Printable(store.name),
                   qUtf8Printable(database.lastError().text()));
    }
    if (is_server_) {
        run_unchanged(u"set sql_mode = concat(@@sql_mode, ',PIPES_AS_CONCAT,NO_BACKSLASH_ESCAPES'), "
                      "lock_wait_timeout = %1, innodb_lock_wait_timeout = %1"_s.arg(time_out_s));
    }
}

outside_connection::~outside_connection()
{
    QSqlDatabase::removeDatabase(name_);
}

QSqlQuery outside_connection::run(const QString& statement) const
{
    return run_unchanged(is_server_ ? in_words_of_server(statement) : statement);
}

QSqlQuery outside_connection::run_unchanged(const QString& statement) const
{
    QSqlQuery query(QSqlDatabase::database(name_));
    query.setForwardOnly(true);
    if (!query.exec(statement))
        qFatal("%s: %s", qUtf8Printable(statement), qUtf8Printable(query.lastError().text()));
    return query;
}

std::unique_ptr<result_rows> outside_connection::rows_of_server(const QString& statement) const
{
    return std::make_unique<odbc_rows>(QSqlDatabase::database(name_), statement, text_form::bytes,
                                       [statement](const QSqlError& error) -> run_time_failure {
                                           qFatal("%s: %s", qUtf8Printable(statement),
                                                  qUtf8Printable(error.text()));
                                       });
}

std::vector<std::vector<QVariant>> all_rows(QSqlQuery& query)
{
    std::vector<std::vector<QVariant>> rows;
    // Each call of `record` copies the descriptions of all columns.
    const int columns = query.record().count();
    while (query.next()) {
        auto& row = rows.emplace_back();
        for (int i = 0; i < columns; ++i)
            row.push_back(query.value(i));
    }
    return rows;
}

}  // namespace verdane::testing
