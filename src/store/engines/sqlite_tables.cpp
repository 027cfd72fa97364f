#include "store/engines/sqlite_tables.h"

#include <QSqlQuery>
#include <QVariant>

#include "base/run_time_failure.h"
#include "store/schema.h"

namespace verdane {

using namespace Qt::StringLiterals;

QString sqlite_tables::question()
{
    // A column that is the whole primary key and has the type INTEGER is the number of the row. The index of
    // a primary key contains that number in every table that has one. Hidden columns of the kind 1 are not
    // among those of `select *`, the other kinds are computed.
    return u"select m.name, p.name, p.type, p.\"notnull\" and p.pk = 0, p.dflt_value, p.hidden > 1, "
           u"p.pk = 1 and upper(p.type) = 'INTEGER' and "
           u"(select count(*) from pragma_table_info(m.name) where pk > 0) = 1, "
           u"p.cid = 0 and exists (select 1 from pragma_index_list(m.name) l where l.origin = 'pk' and "
           u"not exists (select 1 from pragma_index_xinfo(l.name) x where x.cid = -1)) "
           u"from sqlite_master m join pragma_table_xinfo(m.name) p "
           u"where m.type = 'table' and p.hidden <> 1 order by m.name, p.cid"_s;
}

namespace {

bool is_row_number(const QSqlQuery& row)
{
    return row.value(6).toBool();
}

source_column column_of(const QSqlQuery& row)
{
    const QString type = row.value(2).toString();
    source_column column;
    column.name = row.value(1).toString();
    column.type = is_row_number(row) ? type + u" PRIMARY KEY" : type;
    column.content = is_row_number(row) ? column_content::other : content_in_sqlite(type);
    column.not_null = row.value(3).toBool();
    column.default_value = row.value(4).toString();
    column.computed = row.value(5).toBool();
    return column;
}

}  // namespace

sqlite_tables::sqlite_tables(QSqlQuery& columns)
{
    while (columns.next()) {
        const QString table = columns.value(0).toString().toLower();
        const source_column column = column_of(columns);
        columns_[table] << column;
        if (columns.value(7).toBool())
            without_row_number_[table] = u"WITHOUT ROWID"_s;
        if (column.name.compare(u"rowid", Qt::CaseInsensitive) == 0 && !is_row_number(columns))
            without_row_number_[table] = column.name + u' ' + column.type;
    }
    other_defaults_ = tables_with_other_defaults(columns_);
}

bool sqlite_tables::has_declared_defaults(QStringView table) const
{
    return !other_defaults_.contains(table.toString().toLower());
}

void sqlite_tables::check_row_numbers() const
{
    for (const table& declared : schema()) {
        const QString reason = without_row_number_.value(declared.name.toLower());
        if (!reason.isEmpty())
            throw run_time_failure(failure_kind::source_type, QString(declared.name + u": " + reason));
    }
}

}  // namespace verdane
