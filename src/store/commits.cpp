#include "store/commits.h"

#include <QSqlQuery>

#include "base/run_time_failure.h"

#include "store/Connection1.h"
#include "store/engines/engine.h"

namespace verdane {

using namespace Qt::StringLiterals;

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

/// Begins a transaction. Fails with `store_other` within another: some engines would commit that one.
void begin(Connection1& connection, bool& open, const QString& statement)
{
    if (open)
        throw run_time_failure(failure_kind::store_other, u"a transaction within another"_s);
    connection.Execute(statement);
    open = true;
}

}  // namespace

single_commit::single_commit(Connection1& connection) : connection_(connection)
{
    begin(connection_, connection_.in_transaction_, statements_of(connection_).begin_locked);
}

single_commit::~single_commit()
{
    // Fails if the engine has ended the transaction by itself, which has the same result.
    if (!done_)
        roll_back(connection_);
    connection_.in_transaction_ = false;
}

void single_commit::finish()
{
    connection_.Execute(statements_of(connection_).finish);
    done_ = true;
}

joined_commits::joined_commits(Connection1& connection) : connection_(connection)
{
    begin(connection_, connection_.in_transaction_, statements_of(connection_).begin);
}

joined_commits::~joined_commits()
{
    // Both fail if the engine has ended the transaction by itself.
    if (!finished_ && connection_.is_open() && !run(connection_, statements_of(connection_).finish))
        roll_back(connection_);
    connection_.in_transaction_ = false;
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
    if (connection_.relaxations_ == 0)
        connection_.Execute(statements_of(connection_).relax);
    ++connection_.relaxations_;
}

relaxed_commits::~relaxed_commits()
{
    if (!finished_ && leave() && !run(connection_, statements_of(connection_).restore))
        connection_.Close();
}

void relaxed_commits::finish()
{
    finished_ = true;
    if (!leave())
        return;
    try {
        connection_.Execute(statements_of(connection_).restore);
    } catch (...) {
        connection_.Close();
        throw;
    }
}

bool relaxed_commits::leave()
{
    return --connection_.relaxations_ == 0 && connection_.is_open();
}

}  // namespace verdane
