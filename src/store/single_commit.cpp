#include "store/single_commit.h"

#include "store/Connection1.h"

#include <QSqlQuery>

namespace verdane {

using namespace Qt::StringLiterals;

single_commit::single_commit(Connection1& connection) : connection_(connection)
{
    connection_.Execute(u"BEGIN IMMEDIATE"_s);
}

single_commit::~single_commit()
{
    // The engine may have ended the transaction by itself; that it is over is all that counts.
    if (!done_)
        QSqlQuery(connection_.database()).exec(u"ROLLBACK"_s);
}

void single_commit::finish()
{
    connection_.Execute(u"COMMIT"_s);
    done_ = true;
}

}  // namespace verdane
