#include "statistics/selection.h"

#include <array>

#include "store/Connection1.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

struct clause_words {
    QStringView before;
    QStringView after;
    bool value_is_text = true;
    QStringView off_alone;
};

/// In the order of the filters.
constexpr std::array<clause_words, 3> words{{
    {u" (games2.conditionM = ", u")", false, u" true "},
    {u" INSTR(GAMES2.PARTNERS,", u")", true, u" true"},
    {u" GAMES2.FC = ", u"", true, u"true"},
}};

}  // namespace

QString clause_of(filter which, clause_form form, const QString& value)
{
    const clause_words& clause = words.at(static_cast<std::size_t>(which));
    if (value.isEmpty())
        return form == clause_form::appended ? u" "_s : clause.off_alone.toString();
    const QString alone = clause.before + (clause.value_is_text ? quoted(value) : value) + clause.after;
    return form == clause_form::appended ? QString(u" AND" + alone) : alone;
}

}  // namespace verdane
