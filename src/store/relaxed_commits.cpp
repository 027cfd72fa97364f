#include "store/relaxed_commits.h"

#include "store/Connection1.h"

#include <QSqlQuery>

namespace verdane {

using namespace Qt::StringLiterals;

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
    QSqlQuery(connection_.database()).exec(u"PRAGMA synchronous=FULL"_s);
}

}  // namespace verdane
