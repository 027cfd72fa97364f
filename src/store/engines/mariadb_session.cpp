#include "store/engines/mariadb_session.h"

#include "store/schema.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// How long the server keeps a connection on which nothing is sent, in seconds; its default is 8 hours. The
/// longest time that a server on every system accepts, some 24 days.
constexpr int idle_time_out_s = 2'147'483;

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

QStringList session_settings(int lock_time_out_s)
{
    return {
        // In another character set, characters that it does not have arrive as question marks. The driver
        // refuses `set names`.
        u"set session character_set_client = utf8mb4, session character_set_results = utf8mb4, "
        u"session character_set_connection = utf8mb4"_s,
        // A backslash in a text is a backslash; a value that does not fit is an error.
        u"set session sql_mode = 'STRICT_ALL_TABLES,NO_ENGINE_SUBSTITUTION,NO_BACKSLASH_ESCAPES', "
        u"session innodb_lock_wait_timeout = %1, session lock_wait_timeout = %1, session wait_timeout = %2"_s
            .arg(lock_time_out_s)
            .arg(idle_time_out_s),
        // The text of some errors names the reason by its number, after an English word.
        u"set session lc_messages = 'en_US'"_s,
        // A commit begins no new transaction, in which later changes would be lost. A change is accepted
        // if its condition has no key.
        u"set session completion_type = 'NO_CHAIN', session sql_safe_updates = 0"_s,
        // A query returns all its rows, however many rows it reads. Texts are sorted by more than their first
        // characters.
        u"set session sql_select_limit = 18446744073709551615, session sql_big_selects = 1, "
        u"session max_sort_length = 1024"_s,
        // All reads of a report use one snapshot.
        u"set session transaction isolation level repeatable read"_s};
}

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
