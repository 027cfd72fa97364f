#include "relaxed_commits.h"

#include "Connection1.h"

#include <QSqlQuery>

namespace verdane {

relaxed_commits::relaxed_commits(Connection1& connection) : connection_(connection)
{
    if (connection_.relaxations_ == 0)
        connection_.Execute(QStringLiteral("PRAGMA synchronous=NORMAL"));
    ++connection_.relaxations_;
}

relaxed_commits::~relaxed_commits()
{
    if (--connection_.relaxations_ > 0 || !connection_.is_open())
        return;
    // A failure here costs nothing but time: the next commit, which is a full one again, brings the
    // earlier ones to the disk with it.
    QSqlQuery query(connection_.database());
    query.exec(QStringLiteral("PRAGMA synchronous=FULL"));
    query.exec(QStringLiteral("PRAGMA wal_checkpoint(PASSIVE)"));
}

}  // namespace verdane
