#include "reports/query/report_tables.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QUrl>
#include <QVariant>

#include "reports/template/page_limits.h"

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

QString read_only_address(const QString& store)
{
    const QUrl file = QUrl::fromLocalFile(QFileInfo(store).absoluteFilePath());
    return QString::fromLatin1(file.toEncoded()) + u"?mode=ro"_s;
}

/// Texts may be of any length in the store, and the layout of a text takes time with the square of its
/// length.
QString cut_column(const QString& column)
{
    return u"iif(length(\"%1\") > %2, substr(\"%1\", 1, %2 - 1) || '…', \"%1\")"_s.arg(column).arg(
        most_text_characters);
}

void copy_table(statement_list& statements, const QString& table)
{
    QStringList columns = statements.texts(u"select name from pragma_table_info(?, 'store')"_s, {table});
    for (QString& column : columns)
        column = cut_column(column);
    // The empty copy takes the types of the columns, which expressions do not have.
    statements.run(u"create table main.%1 as select * from store.%1 limit 0"_s.arg(table));
    statements.run(
        u"insert into main.%1 select %2 from store.%1 order by rowid"_s.arg(table, columns.join(u", "_s)));
}

}  // namespace

const QStringList& readable_tables()
{
    static const QStringList tables{u"stats"_s,  u"s_put1"_s, u"s_put2"_s, u"stat_sticks"_s,
                                    u"r_cost"_s, u"hand"_s,   u"r_card"_s, u"sticknames"_s};
    return tables;
}

QSqlError copy_report_tables(QSqlDatabase& database, const QString& store)
{
    statement_list statements(database);
    statements.run(u"attach ? as store"_s, {read_only_address(store)});
    statements.run(u"begin"_s);
    const QStringList stored =
        statements.texts(u"select name from store.sqlite_master where type = 'table'"_s);
    for (const QString& table : readable_tables())
        if (stored.contains(table, Qt::CaseInsensitive))
            copy_table(statements, table);
    statements.run(u"commit"_s);
    statements.run(u"detach store"_s);
    return statements.error();
}

}  // namespace verdane
