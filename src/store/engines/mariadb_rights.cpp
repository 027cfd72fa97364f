#include "store/engines/mariadb_rights.h"

#include "store/schema.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The server checks the rights of a statement while it prepares it.
QString preparation(const QString& statement)
{
    return u"prepare verdane_rights from '" + statement + u'\'';
}

QString update_of_all(const QString& tables)
{
    QStringList changes;
    for (const table& each : schema()) {
        const QString column = in_back_quotes(each.name) + u'.' + in_back_quotes(each.columns.front().name);
        changes << column + u" = " + column;
    }
    return u"update " + tables + u" set " + changes.join(u", "_s);
}

}  // namespace

QStringList statements_that_need_rights()
{
    QStringList names;
    for (const table& each : schema())
        names << in_back_quotes(each.name);
    const QString tables = names.join(u", "_s);
    QStringList statements{preparation(u"select 1 from " + tables), preparation(update_of_all(tables)),
                           preparation(u"delete " + tables + u" from " + tables)};
    // An insertion has one table.
    for (const QString& name : names)
        statements << preparation(u"insert into " + name + u" () values ()");
    statements << u"deallocate prepare verdane_rights"_s;
    return statements;
}

}  // namespace verdane
