#include "store/relaxed_commits.h"

#include "store/Connection1.h"

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
    QSqlQuery(connection_.database()).exec(QStringLiteral("PRAGMA synchronous=FULL"));
}

}  // namespace verdane
