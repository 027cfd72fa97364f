#include "store/single_commit.h"

#include "store/Connection1.h"

#include <QSqlQuery>

namespace verdane {

single_commit::single_commit(Connection1& connection) : connection_(connection)
{
    connection_.Execute(QStringLiteral("BEGIN IMMEDIATE"));
}

single_commit::~single_commit()
{
    // The engine may have ended the transaction by itself; that it is over is all that counts.
    if (!done_)
        QSqlQuery(connection_.database()).exec(QStringLiteral("ROLLBACK"));
}

void single_commit::finish()
{
    connection_.Execute(QStringLiteral("COMMIT"));
    done_ = true;
}

}  // namespace verdane
