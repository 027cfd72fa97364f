#include "store/engines/engine.h"

#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>

#include <utility>

#include "store/schema.h"

namespace verdane {

using namespace Qt::StringLiterals;

store_engine::store_engine(QString name, store_location where)
    : name_(std::move(name)), where_(std::move(where))
{
}

store_engine::~store_engine() = default;

void store_engine::close()
{
    if (!QSqlDatabase::contains(name_))
        return;
    database().close();
    QSqlDatabase::removeDatabase(name_);
}

bool store_engine::is_open() const
{
    return QSqlDatabase::contains(name_) && database().isOpen();
}

QStringList store_engine::damaged_indexes()
{
    static const QRegularExpression difference(
        u"^(?:row -?\\d+ missing from|wrong # of entries in|row -?\\d+ values differ from|"
        u"rowid not at end-of-record for row -?\\d+ of) index (.+)$"_s);
    QStringList names;
    for (const QString& verdict : first_values(u"PRAGMA integrity_check"_s)) {
        const auto found = difference.match(verdict);
        if (found.hasMatch())
            names << found.captured(1);
        else if (verdict != u"ok")
            throw run_time_failure(failure_kind::store_damaged, QString(where_.name + u": " + verdict));
    }
    names.removeDuplicates();
    return names;
}

void store_engine::rebuild_indexes()
{
    run(commits().begin_locked);
    try {
        run(u"REINDEX"_s);
        check_soundness();
        run(commits().finish);
    } catch (...) {
        QSqlQuery(database()).exec(commits().undo);
        throw;
    }
}

QString store_engine::table_ending(const table&) const
{
    return u")"_s;
}

QStringList store_engine::index_names() const
{
    return first_values(u"select name from sqlite_master where type = 'index'"_s);
}

QString store_engine::select_with_identity(const QString& statement, const select_statement& shape,
                                           const QString& identity) const
{
    return with_row_number(statement, shape, identity);
}

void store_engine::add_comparison(statement_with_values& statement, const QString& column,
                                  const QVariant& value) const
{
    statement.text += in_back_quotes(column) + u" IS ";
    add_value(statement, value);
}

int store_engine::change_one(const statement_with_values& statement, const statement_with_values&, int,
                             const QString& where)
{
    throw run_time_failure(failure_kind::misuse, QString(where + u" [" + statement.text +
                                                         u"]: the table has no column that "
                                                         u"identifies a row"));
}

QSqlDatabase store_engine::database() const
{
    return QSqlDatabase::database(name_, false);
}

void store_engine::run(const QString& statement) const
{
    QSqlQuery query(database());
    if (!query.exec(statement))
        throw failure(query.lastError(), statement);
}

QString store_engine::first_value(const QString& question) const
{
    QSqlQuery query(database());
    query.setForwardOnly(true);
    if (!query.exec(question) || !query.next())
        throw failure(query.lastError(), question);
    return query.value(0).toString();
}

QStringList store_engine::first_values(const QString& question) const
{
    QSqlQuery query(database());
    query.setForwardOnly(true);
    if (!query.exec(question))
        throw failure(query.lastError(), question);
    QStringList values;
    while (query.next())
        values << query.value(0).toString();
    if (query.lastError().isValid())
        throw failure(query.lastError(), question);
    return values;
}

}  // namespace verdane
