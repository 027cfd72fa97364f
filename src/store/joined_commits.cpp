#include "store/joined_commits.h"

#include "store/Connection1.h"

#include <QSqlQuery>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

bool run(const Connection1& connection, QStringView statement)
{
    return QSqlQuery(connection.database()).exec(statement.toString());
}

}  // namespace

joined_commits::joined_commits(Connection1& connection) : connection_(connection)
{
    connection_.Execute(u"BEGIN"_s);
}

joined_commits::~joined_commits()
{
    // Either may find that the engine has ended the transaction by itself.
    if (!finished_ && !run(connection_, u"COMMIT"))
        run(connection_, u"ROLLBACK");
}

void joined_commits::finish()
{
    finished_ = true;
    try {
        connection_.Execute(u"COMMIT"_s);
    } catch (...) {
        run(connection_, u"ROLLBACK");
        throw;
    }
}

}  // namespace verdane
