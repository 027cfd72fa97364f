#include "store/commits.h"

#include <QSqlQuery>

#include "store/Connection1.h"
#include "store/engines/engine.h"

namespace verdane {

namespace {

/// False if the statement fails.
bool run(const Connection1& connection, const QString& statement)
{
    return QSqlQuery(connection.database()).exec(statement);
}

/// The statements of the engine of an open connection.
const commit_statements& statements_of(const Connection1& connection)
{
    return connection.engine().commits();
}

void roll_back(const Connection1& connection)
{
    if (connection.is_open())
        run(connection, statements_of(connection).undo);
}

}  // namespace

single_commit::single_commit(Connection1& connection) : connection_(connection)
{
    connection_.Execute(statements_of(connection_).begin_locked);
}

single_commit::~single_commit()
{
    // Fails if the engine has ended the transaction by itself, which has the same result.
    if (!done_)
        roll_back(connection_);
}

void single_commit::finish()
{
    connection_.Execute(statements_of(connection_).finish);
    done_ = true;
}

joined_commits::joined_commits(Connection1& connection) : connection_(connection)
{
    connection_.Execute(statements_of(connection_).begin);
}

joined_commits::~joined_commits()
{
    // Both fail if the engine has ended the transaction by itself.
    if (!finished_ && connection_.is_open() && !run(connection_, statements_of(connection_).finish))
        roll_back(connection_);
}

void joined_commits::finish()
{
    finished_ = true;
    try {
        connection_.Execute(statements_of(connection_).finish);
    } catch (...) {
        roll_back(connection_);
        throw;
    }
}

relaxed_commits::relaxed_commits(Connection1& connection) : connection_(connection)
{
    const QString& relax = statements_of(connection_).relax;
    if (connection_.relaxations_ == 0 && !relax.isEmpty())
        connection_.Execute(relax);
    ++connection_.relaxations_;
}

relaxed_commits::~relaxed_commits()
{
    if (--connection_.relaxations_ > 0 || !connection_.is_open())
        return;
    const QString& restore = statements_of(connection_).restore;
    if (!restore.isEmpty())
        run(connection_, restore);
}

}  // namespace verdane
