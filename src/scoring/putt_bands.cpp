#include "scoring/putt_bands.h"

#include <array>

namespace verdane {

namespace {

/// The shortest length, in feet, of bands 1 to 6; shorter lengths are band 7.
using band_floors = std::array<int, putt_band_count - 1>;
constexpr band_floors start_floors{50, 40, 30, 20, 10, 5};
constexpr band_floors stop_floors{25, 20, 15, 10, 5, 2};

int band_of(int16 length, const band_floors& floors)
{
    int band = 1;
    for (const int floor : floors) {
        if (length >= floor)
            return band;
        ++band;
    }
    return band;
}

using grades = std::array<int, putt_band_count>;

/// A line for each band in which the putt stopped, a column for each band in which it started. No formula
/// gives these values.
constexpr std::array<grades, putt_band_count> grade_table{{
    {8, 9, 10, 10, 10, 10, 10},
    {7, 8, 9, 10, 10, 10, 10},
    {5, 6, 8, 9, 10, 10, 10},
    {4, 5, 6, 7, 8, 9, 10},
    {3, 4, 5, 6, 7, 8, 9},
    {1, 2, 2, 3, 5, 5, 6},
    {1, 1, 1, 1, 1, 1, 1},
}};

struct rating_step {
    double below;
    text_pair words;
};

constexpr std::array<rating_step, 5> rating_scale{{
    {1.5, {u"EXCELLENT", u"EXCELLENT"}},
    {2.0, {u"BON", u"Good"}},
    {2.5, {u"MOYEN", u"Average"}},
    {3.0, {u"PASSABLE", u"Acceptable"}},
    {3.7, {u"MÉDIOCRE", u"MEDIOCRE"}},
}};

}  // namespace

int first_putt_band(int16 length)
{
    return band_of(length, start_floors);
}

int after_putt_band(int16 length)
{
    return band_of(length, stop_floors);
}

int putt_grade(int start_band, int stop_band)
{
    return grade_table.at(static_cast<std::size_t>(stop_band - 1))
        .at(static_cast<std::size_t>(start_band - 1));
}

text_pair putt_rating(double score, int16 putt_count)
{
    if (putt_count < 1)
        return {u"N/A", u"N/A"};
    for (const rating_step& step : rating_scale) {
        if (score < step.below)
            return step.words;
    }
    // Above the last limit, excluding the limit itself.
    if (score > rating_scale.back().below)
        return {u"ONT RÉELLEMENT BESOIN D'ÊTRE PRATIQUÉS", u"You really need to practice"};
    return {u"", u""};
}

}  // namespace verdane
