#include "tests/support/refused_change.h"

#include "tests/support/engine_of_tests.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

QString trigger_of_server(const QString& condition)
{
    const QString refusal = u"signal sqlstate '45000' set message_text = 'refused by the test'"_s;
    const QString action = condition.isEmpty() ? refusal : u"if %1 then %2; end if"_s.arg(condition, refusal);
    return u"for each row begin "_s + action + u"; end";
}

QString trigger_of_file(const QString& condition)
{
    const QString when = condition.isEmpty() ? QString() : u"when %1 "_s.arg(condition);
    return when + u"begin select raise(abort, 'refused by the test'); end";
}

}  // namespace

QString refuse(const QString& change, const QString& table, const QString& condition)
{
    const QString action =
        engine_of_tests() == test_engine::mariadb ? trigger_of_server(condition) : trigger_of_file(condition);
    return u"create trigger refuse before %1 on %2 %3"_s.arg(change, table, action);
}

QString refuse_no_more()
{
    return u"drop trigger refuse"_s;
}

}  // namespace verdane::testing
