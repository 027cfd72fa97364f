#include "tests/reports/invented_season.h"

#include <QDate>

#include <algorithm>
#include <random>

#include "statistics/season_tables.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<int, 18> pars{4, 5, 4, 3, 4, 4, 3, 4, 5, 4, 3, 5, 4, 4, 4, 3, 4, 5};

const QStringList& names()
{
    static const QStringList list{u"LE BLAINVILLIER, Blanc"_s,
                                  u"Pebble Beach, Gold"_s,
                                  u"Old Course, Bleu"_s,
                                  u"Carnoustie, Jaune"_s,
                                  u"Val-des-Lacs, Rouge"_s,
                                  u"Northern Highlands, Bronze"_s,
                                  u"Links, Noir"_s,
                                  u"Île-aux-Noix, Vert"_s,
                                  u"Muirfield, Blanc"_s,
                                  u"Sainte-Marguerite-du-Lac, Bronze"_s};
    return list;
}

class season_maker {
public:
    explicit season_maker(const season_size& size) : size_(size) {}

    season_round round(int place)
    {
        const int course = pick(0, size_.courses - 1);
        season_round made;
        made.key = QDate(2022, 4, 2).addDays(place * 7 / 2).toString(u"yyyyMMdd"_s) + u"093000";
        made.course = names().at(course % names().size());
        if (course >= names().size())
            made.course.prepend(QString::number(course) + u' ');
        made.course_code = u"C%1-0"_s.arg(course);
        made.rating = 69.3 + 0.4 * course;
        made.slope = 113 + 3 * course;
        for (int h = 1; h <= holes_of(place); ++h)
            made.holes[h] = hole(h, course, place);
        for (int h = holes_of(place) + 1; h <= hole_count; ++h)
            made.holes[h].par = pars.at(static_cast<std::size_t>(h - 1));
        return made;
    }

private:
    int pick(int first, int last) { return first + static_cast<int>(engine_() % (last - first + 1U)); }

    int holes_of(int place) const
    {
        int holes = hole_count;
        if (size_.has_unfinished_rounds && place == 6)
            holes = 0;
        else if (size_.has_unfinished_rounds && place % 9 == 8)
            holes = 12;
        return std::min(holes, size_.most_holes);
    }

    played_hole hole(int h, int course, int place)
    {
        const int par = pars.at(static_cast<std::size_t>(h - 1));
        const int lost_greens = pick(0, 99) < 55 - 20 * place / size_.rounds + (h * 7 + course) % 20 ? 1 : 0;
        played_hole made;
        made.par = par;
        made.putts = pick(0, 9) < 2 ? 1 : pick(0, 9) < 8 ? 2 : 3;
        made.long_shots = par - 2 > 1 ? par - 3 : 1;
        made.approach = (par - 2 > 1 ? 1 : 0) + lost_greens;
        made.pen_water = pick(0, 29) == 0 ? 1 : 0;
        made.pen_lost = pick(0, 39) == 0 ? 1 : 0;
        return made;
    }

    season_size size_;
    // A fixed seed: the rounds are the same on every machine.
    std::mt19937 engine_{20220402};
};

}  // namespace

season_rounds invented_season(const season_size& size)
{
    season_maker maker(size);
    season_rounds rounds;
    for (int place = 0; place < size.rounds; ++place)
        rounds.push_back(maker.round(place));
    return rounds;
}

passed_rows tables_of(const season_rounds& rounds)
{
    return Statistics::season_tables(rounds);
}

passed_rows invented_season_tables(const season_size& size)
{
    return tables_of(invented_season(size));
}

}  // namespace verdane::testing
