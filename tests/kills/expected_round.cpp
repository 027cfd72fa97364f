#include "tests/kills/expected_round.h"

#include <QStringList>

#include <algorithm>

#include "scoring/words.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int holes_of_a_round = 18;

bool same_figures(const stored_hole& one, const stored_hole& other)
{
    return one.figures == other.figures && one.putts == other.putts;
}

/// The fault of the shots of a hole that were being entered when the program was killed; empty if none.
QString fault_of_shots(const stored_hole& now, const stored_hole& old, const run_log& log)
{
    const bool begun = is_start_of(now.shots, log.entering_shots);
    if (!begun && !is_rest_of(now.shots, old.shots))
        return u"the shots are neither old nor new"_s;
    if (log.shots_entered > 0 && (!begun || static_cast<int>(now.shots.size()) <= log.shots_entered))
        return u"a shot that was entered is lost"_s;
    if (!same_figures(now, old) && now.shots != outcome_of(log.entering_shots).shots)
        return u"the figures are new and the shots are not"_s;
    return {};
}

/// Opening a hole without shots adds a blank one.
bool was_only_opened(const stored_hole& now, const stored_hole& old)
{
    stored_hole opened = old;
    opened.shots.push_back({.number = 1, .position = in_the_fairway});
    return old.shots.empty() && now == opened;
}

QString fault_under_way(const stored_hole& now, const stored_hole& old, const run_log& log)
{
    stored_hole wanted = old;
    if (log.entering != 0)
        wanted = outcome_of(log.entering_shots);
    else
        std::transform(log.typing_figures.begin(), log.typing_figures.end(), wanted.figures.begin(),
                       [](QChar digit) { return digit.digitValue(); });
    if (!same_figures(now, old) && !same_figures(now, wanted))
        return u"the figures are neither the old nor the new ones"_s;
    if (log.entering != 0)
        return fault_of_shots(now, old, log);
    return now.shots == old.shots ? QString() : u"the quick page changed a shot"_s;
}

}  // namespace

expected_round::expected_round(const reader& store) : store_(store)
{
    for (int number = 1; number <= holes_of_a_round; ++number)
        at(number) = read_hole(store, number);
}

void expected_round::apply(const run_log& log)
{
    for (auto typed = log.typed.begin(); typed != log.typed.end(); ++typed)
        std::transform(typed.value().begin(), typed.value().end(), at(typed.key()).figures.begin(),
                       [](QChar digit) { return digit.digitValue(); });
    for (auto entered = log.entered.begin(); entered != log.entered.end(); ++entered) {
        at(entered.key()) = outcome_of(entered.value());
        entered_[static_cast<std::size_t>(entered.key()) - 1] = true;
    }
    if (log.entering != 0)
        entered_[static_cast<std::size_t>(log.entering) - 1] = false;
}

QString expected_round::compare(const run_log& log)
{
    apply(log);
    const int under_way = log.entering != 0 ? log.entering : log.typing;
    QStringList faults;
    for (int number = 1; number <= holes_of_a_round; ++number) {
        const stored_hole now = read_hole(store_, number);
        QString fault;
        if (number == under_way)
            fault = fault_under_way(now, hole(number), log);
        else if (now != hole(number) && !was_only_opened(now, hole(number)))
            fault = u"it is not as it was left"_s;
        if (!fault.isEmpty())
            faults << u"hole %1: %2; stored %3, expected %4, entered %5 of %6"_s.arg(number)
                          .arg(fault, described(now), described(hole(number)))
                          .arg(log.shots_entered)
                          .arg(text_of(log.entering_shots));
        at(number) = now;
    }
    return faults.join(u'\n');
}

}  // namespace verdane::testing
