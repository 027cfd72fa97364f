#include "selection_clauses.h"

#include "Connection1.h"

namespace verdane {

namespace {

QString clause_unless_off(const QString& value, const QString& clause)
{
    return value.isEmpty() ? QStringLiteral(" ") : clause;
}

}  // namespace

QString and_weather(const QString& value)
{
    return clause_unless_off(value, u" AND (games2.conditionM = " + value + u")");
}

QString and_partner(const QString& number)
{
    return clause_unless_off(number, u" AND INSTR(GAMES2.PARTNERS," + quoted(number) + u")");
}

QString and_course(const QString& code)
{
    return clause_unless_off(code, u" AND GAMES2.FC = " + quoted(code));
}

}  // namespace verdane
