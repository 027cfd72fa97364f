#include "store/commits.h"

#include <QSqlQuery>

#include "store/Connection1.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// False if the statement fails.
bool run(const Connection1& connection, const QString& statement)
{
    return QSqlQuery(connection.database()).exec(statement);
}

}  // namespace

single_commit::single_commit(Connection1& connection) : connection_(connection)
{
    connection_.Execute(u"BEGIN IMMEDIATE"_s);
}

single_commit::~single_commit()
{
    // Fails if the engine has ended the transaction by itself, which has the same result.
    if (!done_)
        run(connection_, u"ROLLBACK"_s);
}

void single_commit::finish()
{
    connection_.Execute(u"COMMIT"_s);
    done_ = true;
}

joined_commits::joined_commits(Connection1& connection) : connection_(connection)
{
    connection_.Execute(u"BEGIN"_s);
}

joined_commits::~joined_commits()
{
    // Both fail if the engine has ended the transaction by itself.
    if (!finished_ && !run(connection_, u"COMMIT"_s))
        run(connection_, u"ROLLBACK"_s);
}

void joined_commits::finish()
{
    finished_ = true;
    try {
        connection_.Execute(u"COMMIT"_s);
    } catch (...) {
        run(connection_, u"ROLLBACK"_s);
        throw;
    }
}

relaxed_commits::relaxed_commits(Connection1& connection) : connection_(connection)
{
    if (connection_.relaxations_ == 0)
        connection_.Execute(u"PRAGMA synchronous=NORMAL"_s);
    ++connection_.relaxations_;
}

relaxed_commits::~relaxed_commits()
{
    if (--connection_.relaxations_ > 0 || !connection_.is_open())
        return;
    run(connection_, u"PRAGMA synchronous=FULL"_s);
}

}  // namespace verdane
