#include "single_commit.h"

#include "Connection1.h"
#include "failure_guard.h"

namespace verdane {

single_commit::single_commit(Connection1& connection) : connection_(connection)
{
    connection_.Execute(QStringLiteral("BEGIN IMMEDIATE"));
}

single_commit::~single_commit()
{
    // The engine may have ended the transaction by itself; that it is over is all that counts.
    if (open_)
        finishes_without_failure([this] { connection_.Execute(QStringLiteral("ROLLBACK")); });
}

void single_commit::finish()
{
    connection_.Execute(QStringLiteral("COMMIT"));
    open_ = false;
}

}  // namespace verdane
