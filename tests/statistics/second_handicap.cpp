#include "tests/statistics/second_handicap.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <numeric>
#include <vector>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

/// An expression for the strokes of a row of `games`.
QString strokes_of_round()
{
    QStringList terms;
    for (int hole = 1; hole <= 18; ++hole) {
        for (const char* count :
             {"long_", "approach_", "putt_", "pen_rule_", "pen_water_", "pen_bounds_", "pen_lost_"})
            terms << u"coalesce(%1%2,0)"_s.arg(QString::fromLatin1(count)).arg(hole);
    }
    return terms.join(u'+');
}

std::vector<double> sorted_differentials(const reader& store, const QString& condition)
{
    std::vector<double> differentials;
    for (const auto& round : store.rows(u"select " + strokes_of_round() +
                                        u", c.rating, c.slope from games g join games2 s on g.date = s.date "
                                        u"join vrd_fields c on c.code = g.CODEF where " +
                                        condition))
        differentials.push_back((round[0].toDouble() - round[1].toDouble()) * 113 / round[2].toDouble());
    std::sort(differentials.begin(), differentials.end());
    return differentials;
}

/// Half of the rounds less one, up to 18 rounds; then one more for each round, up to ten.
std::size_t best_of(std::size_t rounds)
{
    if (rounds < 5)
        return 0;
    return rounds <= 18 ? rounds / 2 - 1 : std::min<std::size_t>(rounds - 10, 10);
}

QString one_decimal(double value)
{
    std::array<char, 400> digits{};
    std::snprintf(digits.data(), digits.size(), "%.1f", value);
    QString text = QString::fromLatin1(digits.data());
    if (text.endsWith(u".0"))
        text.chop(2);
    if (text == u"0" || text == u"-0")
        return u"N/A"_s;
    const qsizetype first_digit = value < 0 ? 1 : 0;
    if (text.mid(first_digit).startsWith(u"0."))
        text.remove(first_digit, 1);
    return value < 0 ? text : u' ' + text;
}

}  // namespace

QString second_handicap(const reader& store, const QString& condition)
{
    const std::vector<double> differentials = sorted_differentials(store, condition);
    const std::size_t best = best_of(differentials.size());
    if (best == 0)
        return u"N/A"_s;
    const auto end = differentials.begin() + static_cast<std::ptrdiff_t>(best);
    const double sum = std::accumulate(differentials.begin(), end, 0.0);
    return one_decimal(best == 1 ? sum : sum / static_cast<double>(best) * 0.96);
}

}  // namespace verdane::testing
