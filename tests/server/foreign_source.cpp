#include "tests/server/foreign_source.h"

#include "store/schema.h"
#include "tests/server/own_server.h"
#include "tests/support/outside_connection.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

void foreign_source::reopen()
{
    connection.Close();
    open();
}

int foreign_source::number(const QString& question) const
{
    const outside_connection server(place);
    QSqlQuery query = server.run_unchanged(question);
    return all_rows(query)[0][0].toInt();
}

QStringList foreign_source::stored(const QString& question) const
{
    const outside_connection server(place);
    QSqlQuery query = server.run_unchanged(question);
    QStringList values;
    for (const auto& row : all_rows(query))
        values << row[0].toString();
    return values;
}

void foreign_source::change(const QString& statement) const
{
    administer(statement.arg(database()));
}

void remove_row_columns(const foreign_source& from)
{
    for (const table& each : schema())
        administer(u"alter table %1.%2 drop column verdane_row"_s.arg(from.database(), each.name));
}

std::unique_ptr<Recordset> opened(foreign_source& from, const QString& statement, lock_type lock)
{
    recordset_settings settings;
    settings.lock = lock;
    settings.name = u"rstest"_s;
    settings.source = statement;
    auto rows = std::make_unique<Recordset>(from.connection, settings);
    rows->Open();
    return rows;
}

recordset_settings partners_settings(lock_type lock)
{
    recordset_settings settings;
    settings.name = u"rspartners"_s;
    settings.source = u"select * from partners order by name"_s;
    settings.lock = lock;
    return settings;
}

void add_partner(Recordset& partners, const QString& name, const QVariant& code)
{
    partners.AddNew();
    partners.Fields(u"NAME").set(name);
    partners.Fields(u"code").set(code);
    partners.Update();
}

QString stored_partners(const foreign_source& from)
{
    QStringList rows;
    for (const auto& row : from.outside().rows(u"select NAME, code, TEL from partners order by 1, 2, 3"_s))
        rows << row[0].toString() + u':' + row[1].toString() + u':' +
                    (row[2].isNull() ? u"null"_s : row[2].toString());
    return rows.join(u' ');
}

}  // namespace verdane::testing
