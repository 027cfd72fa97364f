#include "store/table_copy.h"

#include <QSqlError>
#include <QSqlQuery>

#include "store/commits.h"
#include "store/Connection1.h"
#include "store/DataEnvironment1.h"
#include "store/engines/engine.h"
#include "store/engines/sqlite.h"
#include "store/schema.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString cut(const QString& text, int most)
{
    // A character has one or two units of 16 bits.
    if (text.size() <= most)
        return text;
    const QList<uint> characters = text.toUcs4();
    if (characters.size() <= most)
        return text;
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()), most - 1) + u'…';
}

/// The type that SQLite gives a column of a table which is made from a query.
QString type_in_memory(column_type type)
{
    switch (type) {
    case column_type::count:
    case column_type::amount:
        return u"INT"_s;
    case column_type::real:
        return u"REAL"_s;
    case column_type::yes_no:
        return u"NUM"_s;
    default:
        return u"TEXT"_s;
    }
}

void run(QSqlQuery& query)
{
    if (!query.exec())
        throw run_time_failure(failure_kind::store_other, query.lastError().text());
}

void run(const QSqlDatabase& target, const QString& statement)
{
    QSqlQuery query(target);
    query.prepare(statement);
    run(query);
}

void create_in(const QSqlDatabase& target, const table& copied)
{
    QStringList columns;
    for (const column& each : copied.columns)
        columns += u"\"%1\" %2"_s.arg(each.name, type_in_memory(each.type));
    run(target, u"create table \"%1\" (%2)"_s.arg(copied.name, columns.join(u", "_s)));
}

QString selection_of(const store_engine& engine, const table& copied)
{
    QStringList columns;
    for (const column& each : copied.columns)
        columns += in_back_quotes(each.name);
    const QString identity = engine.identity_column(copied.name);
    return u"select %1 from %2"_s.arg(columns.join(u", "_s), in_back_quotes(copied.name)) +
           (identity.isEmpty() ? QString() : u" order by " + identity);
}

void copy_rows(const store_engine& engine, const table& copied, const QSqlDatabase& target, int most)
{
    const QString selection = selection_of(engine, copied);
    const auto rows = engine.select(selection, selection);
    const QStringList places(static_cast<qsizetype>(copied.columns.size()), u"?"_s);
    QSqlQuery insertion(target);
    insertion.prepare(u"insert into \"%1\" values (%2)"_s.arg(copied.name, places.join(u',')));
    while (rows->next()) {
        for (int column = 0; column < rows->column_count(); ++column) {
            const QVariant value = rows->value(column);
            insertion.bindValue(
                column, value.typeId() == QMetaType::QString ? QVariant(cut(value.toString(), most)) : value);
        }
        run(insertion);
    }
}

/// All reads are in one transaction, so that they use one snapshot.
void copy_from(Connection1& connection, const copied_tables& tables, const QSqlDatabase& target)
{
    const store_engine& engine = connection.engine();
    const lock_wait::limit wait(connection.waiting(), lock_wait::default_time_out_s);
    joined_commits one_moment(connection);
    // SQLite makes the table of this function at its first use, which the query of a template may not do.
    run(target, u"select count(*) from pragma_table_info('none')"_s);
    run(target, u"begin"_s);
    for (const QString& name : tables.names) {
        const table* copied = find_table(name);
        if (copied == nullptr)
            continue;
        create_in(target, *copied);
        copy_rows(engine, *copied, target, tables.most_characters);
    }
    run(target, u"commit"_s);
    one_moment.finish();
}

}  // namespace

void copy_tables(const store_location& store, const copied_tables& tables, QSqlDatabase& target,
                 const lock_notice_maker& notice)
{
    if (store.where == store_location::place::file)
        return copy_attached(store.name, tables, target, notice);
    Connection1& of_program = data_environment().connection;
    if (of_program.is_open() && of_program.location() == store)
        return copy_from(of_program, tables, target);
    Connection1 own;
    own.waiting().set_notice_maker(notice);
    own.Open(store);
    copy_from(own, tables, target);
}

sqlite3* handle_of_copy(const QSqlDatabase& target)
{
    return engine_handle(target);
}

}  // namespace verdane
