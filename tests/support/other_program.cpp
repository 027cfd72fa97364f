#include "tests/support/other_program.h"

#include <QStringList>

#include "tests/support/outside_connection.h"
#include "tests/support/server_tables.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

/// As a program does that backs up all tables.
QString lock_of_all_tables(const outside_connection& server, kept_from what)
{
    const QString lock = what == kept_from::writing ? u" read"_s : u" write"_s;
    QStringList tables;
    for (const QString& table : tables_of(server))
        tables << u'`' + table + u'`' + lock;
    return u"lock tables " + tables.join(u", "_s);
}

QString lock_of_file(kept_from what)
{
    return what == kept_from::writing ? u"BEGIN IMMEDIATE"_s : u"BEGIN EXCLUSIVE"_s;
}

}  // namespace

other_program::other_program(const store_location& store, kept_from what)
    : connection_(std::make_unique<outside_connection>(store))
{
    connection_->run_unchanged(connection_->is_server() ? lock_of_all_tables(*connection_, what)
                                                        : lock_of_file(what));
}

other_program::~other_program()
{
    release();
}

void other_program::release()
{
    if (connection_ == nullptr)
        return;
    connection_->run_unchanged(connection_->is_server() ? u"unlock tables"_s : u"ROLLBACK"_s);
    connection_.reset();
}

}  // namespace verdane::testing
