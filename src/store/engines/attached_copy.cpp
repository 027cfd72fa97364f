#include "store/engines/attached_copy.h"

#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QUrl>
#include <QVariant>

#include <sqlite3.h>

#include "base/run_time_failure.h"
#include "store/engines/sqlite.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// Runs statements up to the first that fails.
class statement_list {
public:
    explicit statement_list(const QSqlDatabase& database) : query_(database) {}

    void run(const QString& statement, const QVariantList& values = {})
    {
        if (error_.isValid())
            return;
        bool well = query_.prepare(statement);
        for (const QVariant& value : values)
            query_.addBindValue(value);
        well = well && query_.exec();
        if (!well)
            error_ = query_.lastError();
    }

    QStringList texts(const QString& statement, const QVariantList& values = {})
    {
        QStringList result;
        run(statement, values);
        while (!error_.isValid() && query_.next())
            result.append(query_.value(0).toString());
        if (!error_.isValid() && query_.lastError().isValid())
            error_ = query_.lastError();
        query_.finish();
        return result;
    }

    const QSqlError& error() const { return error_; }

private:
    QSqlQuery query_;
    QSqlError error_;
};

failure_kind kind_of(const QSqlError& error)
{
    switch (error.nativeErrorCode().toInt() & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return failure_kind::store_locked;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return failure_kind::store_damaged;
    default:
        return failure_kind::store_unreachable;
    }
}

QString read_only_address(const QString& store)
{
    const QUrl file = QUrl::fromLocalFile(QFileInfo(store).absoluteFilePath());
    return QString::fromLatin1(file.toEncoded()) + u"?mode=ro"_s;
}

QString cut_column(const QString& column, int most)
{
    return u"iif(length(\"%1\") > %2, substr(\"%1\", 1, %2 - 1) || '…', \"%1\")"_s.arg(column).arg(most);
}

void copy_table(statement_list& statements, const QString& table, int most)
{
    QStringList columns = statements.texts(u"select name from pragma_table_info(?, 'store')"_s, {table});
    for (QString& column : columns)
        column = cut_column(column, most);
    // The empty copy takes the types of the columns, which expressions do not have.
    statements.run(u"create table main.%1 as select * from store.%1 limit 0"_s.arg(table));
    statements.run(
        u"insert into main.%1 select %2 from store.%1 order by rowid"_s.arg(table, columns.join(u", "_s)));
}

QSqlError copied(const QString& path, const copied_tables& tables, const QSqlDatabase& target)
{
    statement_list statements(target);
    statements.run(u"attach ? as store"_s, {read_only_address(path)});
    statements.run(u"begin"_s);
    const QStringList stored =
        statements.texts(u"select name from store.sqlite_master where type = 'table'"_s);
    for (const QString& table : tables.names)
        if (stored.contains(table, Qt::CaseInsensitive))
            copy_table(statements, table, tables.most_characters);
    statements.run(u"commit"_s);
    statements.run(u"detach store"_s);
    return statements.error();
}

}  // namespace

void copy_attached(const QString& path, const copied_tables& tables, QSqlDatabase& target,
                   const lock_notice_maker& notice)
{
    lock_wait waiting;
    waiting.set_notice_maker(notice);
    waiting.attach(engine_handle(target));
    const lock_wait::limit limit(waiting, lock_wait::default_time_out_s);
    const QSqlError error = copied(path, tables, target);
    sqlite3_busy_handler(engine_handle(target), nullptr, nullptr);
    if (error.isValid())
        throw run_time_failure(kind_of(error), error.text());
}

}  // namespace verdane
