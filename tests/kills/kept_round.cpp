#include "tests/kills/kept_round.h"

#include <QStringList>

#include <algorithm>

#include "scoring/shot_words.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int holes_of_a_round = 18;

bool same_figures(const stored_hole& one, const stored_hole& other)
{
    return one.figures == other.figures && one.putts == other.putts;
}

/// What is wrong with the shots of a hole that was being told.
QString trouble_with_shots(const stored_hole& now, const stored_hole& old, const last_words& words)
{
    const bool begun = is_start_of(now.shots, words.telling_shots);
    if (!begun && !is_rest_of(now.shots, old.shots))
        return u"the shots are neither old nor new"_s;
    if (words.shots_told > 0 && (!begun || static_cast<int>(now.shots.size()) <= words.shots_told))
        return u"a shot that was told is lost"_s;
    if (!same_figures(now, old) && now.shots != outcome_of(words.telling_shots).shots)
        return u"the figures are new and the shots are not"_s;
    return {};
}

/// A hole without shots shows a blank one as soon as it is opened.
bool was_only_opened(const stored_hole& now, const stored_hole& old)
{
    stored_hole opened = old;
    opened.shots.push_back({.number = 1, .position = in_the_fairway});
    return old.shots.empty() && now == opened;
}

QString trouble_under_way(const stored_hole& now, const stored_hole& old, const last_words& words)
{
    stored_hole wanted = old;
    if (words.telling != 0)
        wanted = outcome_of(words.telling_shots);
    else
        std::transform(words.typing_figures.begin(), words.typing_figures.end(), wanted.figures.begin(),
                       [](QChar digit) { return digit.digitValue(); });
    if (!same_figures(now, old) && !same_figures(now, wanted))
        return u"the figures are neither the old nor the new ones"_s;
    if (words.telling != 0)
        return trouble_with_shots(now, old, words);
    return now.shots == old.shots ? QString() : u"the quick page changed a shot"_s;
}

}  // namespace

kept_round::kept_round(const reader& store) : store_(store)
{
    for (int number = 1; number <= holes_of_a_round; ++number)
        at(number) = read_hole(store, number);
}

void kept_round::take(const last_words& words)
{
    for (auto typed = words.typed.begin(); typed != words.typed.end(); ++typed)
        std::transform(typed.value().begin(), typed.value().end(), at(typed.key()).figures.begin(),
                       [](QChar digit) { return digit.digitValue(); });
    for (auto told = words.told.begin(); told != words.told.end(); ++told) {
        at(told.key()) = outcome_of(told.value());
        told_[static_cast<std::size_t>(told.key()) - 1] = true;
    }
    if (words.telling != 0)
        told_[static_cast<std::size_t>(words.telling) - 1] = false;
}

QString kept_round::compare(const last_words& words)
{
    take(words);
    const int under_way = words.telling != 0 ? words.telling : words.typing;
    QStringList troubles;
    for (int number = 1; number <= holes_of_a_round; ++number) {
        const stored_hole now = read_hole(store_, number);
        QString trouble;
        if (number == under_way)
            trouble = trouble_under_way(now, hole(number), words);
        else if (now != hole(number) && !was_only_opened(now, hole(number)))
            trouble = u"it is not as it was left"_s;
        if (!trouble.isEmpty())
            troubles << u"hole %1: %2; stored %3, expected %4, told %5 of %6"_s.arg(number)
                            .arg(trouble, described(now), described(hole(number)))
                            .arg(words.shots_told)
                            .arg(word_of(words.telling_shots));
        at(number) = now;
    }
    return troubles.join(u'\n');
}

}  // namespace verdane::testing
