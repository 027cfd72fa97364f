#include "row_writer.h"

#include "Connection1.h"

#include <QStringList>

namespace verdane {

namespace {

QString column_name(const row_set& set, int ordinal)
{
    return u'`' + set.columns[static_cast<std::size_t>(ordinal)].name + u'`';
}

const QVariant& cell(const recordset_row& row, int ordinal)
{
    return row.cells[static_cast<std::size_t>(ordinal)];
}

std::vector<int> changed_columns(const recordset_row& row)
{
    std::vector<int> changed;
    for (const auto& [ordinal, before] : row.pending->before) {
        if (cell(row, ordinal) != before)
            changed.push_back(ordinal);
    }
    return changed;
}

std::vector<int> written_columns(const recordset_row& row)
{
    std::vector<int> written;
    for (const auto& [ordinal, before] : row.pending->before)
        written.push_back(ordinal);
    // An insertion names at least one column; its default says the same as leaving it out.
    if (written.empty())
        written.push_back(0);
    return written;
}

void run(QSqlQuery& query, const QString& statement, const std::vector<QVariant>& values,
         const QString& where)
{
    const QString place = where + u" [" + statement + u']';
    if (!query.prepare(statement))
        throw store_failure(query.lastError(), place);
    int at = 0;
    for (const QVariant& value : values)
        query.bindValue(at++, value);
    if (!query.exec())
        throw store_failure(query.lastError(), place);
}

qint64 insert_row(QSqlQuery& query, const row_set& set, const recordset_row& row, const QString& where)
{
    QStringList names;
    QStringList places;
    std::vector<QVariant> values;
    for (const int ordinal : written_columns(row)) {
        names += column_name(set, ordinal);
        places += QStringLiteral("?");
        values.push_back(cell(row, ordinal));
    }
    run(query,
        QString(u"INSERT INTO `" + set.shape.table + u"` (" + names.join(u',') + u") VALUES (" +
                places.join(u',') + u')'),
        values, where);
    return query.lastInsertId().toLongLong();
}

void update_row(QSqlQuery& query, const row_set& set, const recordset_row& row, const QString& where)
{
    QStringList assignments;
    std::vector<QVariant> values;
    for (const int ordinal : changed_columns(row)) {
        assignments += column_name(set, ordinal) + u"=?";
        values.push_back(cell(row, ordinal));
    }
    if (assignments.isEmpty())
        return;
    values.emplace_back(row.number);
    run(query,
        QString(u"UPDATE `" + set.shape.table + u"` SET " + assignments.join(u',') + u" WHERE rowid=?"),
        values, where);
    if (query.numRowsAffected() == 0)
        throw run_time_failure(failure_kind::misuse, QString(where + u": the row is no longer in the store"));
}

}  // namespace

qint64 write_row(const Connection1& connection, const row_set& set, const recordset_row& row,
                 const QString& where)
{
    QSqlQuery query(connection.database());
    if (row.pending->is_new)
        return insert_row(query, set, row, where);
    update_row(query, set, row, where);
    return row.number;
}

void erase_row(const Connection1& connection, const row_set& set, qint64 number, const QString& where)
{
    QSqlQuery query(connection.database());
    run(query, QString(u"DELETE FROM `" + set.shape.table + u"` WHERE rowid=?"), {QVariant(number)}, where);
}

}  // namespace verdane
