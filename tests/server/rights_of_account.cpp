#include "tests/server/rights_of_account.h"

#include <QString>

#include "store/schema.h"
#include "tests/server/own_server.h"
#include "tests/shell/program_run.h"
#include "tests/support/engine_of_tests.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

void change_rights(const QString& statement)
{
    const QString database = file_of(program_run::store_place());
    for (const table& each : schema())
        administer(statement.arg(database, each.name));
}

}  // namespace

void grant_rights_by_table()
{
    change_rights(u"grant select, insert, update, delete on %1.%2 to golfer@localhost"_s);
    administer(u"revoke all on `verdbase%`.* from golfer@localhost"_s);
}

void revoke_right_to_write()
{
    change_rights(u"revoke insert, update, delete on %1.%2 from golfer@localhost"_s);
}

void restore_rights()
{
    administer(u"grant all on `verdbase%`.* to golfer@localhost"_s);
}

}  // namespace verdane::testing
