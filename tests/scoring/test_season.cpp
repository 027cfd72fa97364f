#include <QTest>

#include "scoring/season_holes.h"
#include "scoring/season_rounds.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

played_hole hole_in(int long_shots, int approach, int putts, int par = 4)
{
    played_hole hole;
    hole.long_shots = long_shots;
    hole.approach = approach;
    hole.putts = putts;
    hole.par = par;
    return hole;
}

/// A round with the same hole from the first to hole `last`; the other holes have their par only.
season_round round_of(const QString& key, const played_hole& hole, int last = hole_count,
                      const QString& code = u"ALPHA-0"_s)
{
    season_round round{key, code, code.toLower(), 70, 113, {}};
    for (int h = 1; h <= hole_count; ++h) {
        round.holes[h].par = hole.par;
        if (h <= last)
            round.holes[h] = hole;
    }
    return round;
}

season_figures whole_round(int over)
{
    season_figures figures;
    figures.holes = hole_count;
    figures.over = over;
    return figures;
}

std::vector<season_figures> figures_of(const season_rounds& rounds)
{
    std::vector<season_figures> figures;
    for (const season_round& round : rounds)
        figures.push_back(figures_of_round(round));
    return figures;
}

}  // namespace

class test_season : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_whole_round_has_the_figures_of_its_eighteen_holes()
    {
        played_hole hole = hole_in(1, 1, 2);
        season_round round = round_of(u"1"_s, hole);
        hole.pen_water = 2;
        round.holes[18] = hole;
        const season_figures figures = figures_of_round(round);
        QVERIFY(figures.whole());
        QCOMPARE(figures.gross, 74);
        QCOMPARE(figures.over, 2);
        QCOMPARE(figures.putts, 36);
        QCOMPARE(figures.greens, 17);
        QCOMPARE(figures.penalties, 2);
        QCOMPARE(figures.differential, 4.0);
    }

    void holes_that_were_not_played_count_in_the_differential_only()
    {
        const season_figures figures = figures_of_round(round_of(u"1"_s, hole_in(1, 2, 2), 12));
        QVERIFY(!figures.whole());
        QCOMPARE(figures.holes, 12);
        QCOMPARE(figures.gross, 60);
        QCOMPARE(figures.over, 12);
        QCOMPARE(figures.differential, -10.0);
    }

    void a_hole_with_nothing_but_a_penalty_was_played()
    {
        played_hole hole;
        QVERIFY(!is_played(hole));
        hole.pen_lost = 1;
        QVERIFY(is_played(hole));
    }

    void a_gross_beyond_16_bits_overflows()
    {
        QCOMPARE(failure_of([] { figures_of_round(round_of(u"1"_s, hole_in(0, 0, 2000))); }),
                 std::optional(failure_kind::overflow));
    }

    void rounds_are_sorted_by_time()
    {
        const season_rounds sorted =
            in_order_of_time({round_of(u"20240501080000"_s, {}), round_of(u"20230501080000"_s, {}),
                              round_of(u"20230501070000"_s, {})});
        QCOMPARE(sorted[0].key, u"20230501070000"_s);
        QCOMPARE(sorted[2].key, u"20240501080000"_s);
    }

    void the_window_of_the_moving_mean_grows_with_the_rounds()
    {
        QCOMPARE(window_of_moving_mean(0), 5);
        QCOMPARE(window_of_moving_mean(29), 5);
        QCOMPARE(window_of_moving_mean(30), 10);
        QCOMPARE(window_of_moving_mean(119), 10);
        QCOMPARE(window_of_moving_mean(120), 20);
        QCOMPARE(window_of_moving_mean(366), 20);
    }

    void the_moving_mean_starts_when_its_window_is_full_and_skips_other_rounds()
    {
        season_figures unfinished = whole_round(-50);
        unfinished.holes = 17;
        const auto means =
            moving_mean({whole_round(1), whole_round(2), unfinished, whole_round(6), whole_round(10)}, 3);
        QCOMPARE(means.size(), std::size_t{5});
        QVERIFY(!means[0] && !means[1] && !means[2]);
        QCOMPARE(means[3], std::optional(3.0));
        QCOMPARE(means[4], std::optional(6.0));
    }

    void sums_and_lowest_figures_are_over_whole_rounds()
    {
        season_sums sums;
        QVERIFY(!sums.per_round(sums.over));
        const season_rounds rounds{round_of(u"1"_s, hole_in(1, 1, 2)), round_of(u"2"_s, hole_in(1, 2, 2)),
                                   round_of(u"3"_s, hole_in(1, 1, 1), 9)};
        for (const season_figures& figures : figures_of(rounds))
            sums.add(figures);
        QCOMPARE(sums.rounds, 3);
        QCOMPARE(sums.whole_rounds, 2);
        QCOMPARE(sums.holes, 45);
        QCOMPARE(sums.per_round(sums.gross), std::optional(81.0));
        QCOMPARE(sums.best_gross, std::optional(72));
        QCOMPARE(sums.per_round(sums.greens), std::optional(9.0));
        QCOMPARE(sums.best_differential, std::optional(72.0 - 70));
    }

    void the_course_with_the_most_rounds_comes_first()
    {
        const season_rounds rounds{round_of(u"1"_s, hole_in(1, 1, 2), 18, u"B-0"_s),
                                   round_of(u"2"_s, hole_in(1, 1, 2), 18, u"C-0"_s),
                                   round_of(u"3"_s, hole_in(1, 1, 2), 18, u"C-0"_s),
                                   round_of(u"4"_s, hole_in(1, 1, 2), 18, u"A-0"_s)};
        const auto courses = courses_of_season(rounds, figures_of(rounds));
        QCOMPARE(courses.size(), std::size_t{3});
        QCOMPARE(courses[0].code, u"C-0"_s);
        QCOMPARE(courses[0].sums.rounds, 2);
        QCOMPARE(courses[1].code, u"A-0"_s);
        QCOMPARE(courses[2].code, u"B-0"_s);
    }

    void only_holes_played_three_times_are_ranked()
    {
        season_rounds rounds{round_of(u"1"_s, hole_in(1, 1, 2), 6), round_of(u"2"_s, hole_in(1, 1, 2), 4),
                             round_of(u"3"_s, hole_in(1, 1, 2), 4),
                             round_of(u"4"_s, hole_in(1, 1, 1), 18, u"B-0"_s)};
        rounds[2].holes[2] = hole_in(1, 3, 2);
        rounds[2].holes[3] = hole_in(1, 0, 2);
        const ranked_holes ranked = holes_of_season(rounds);
        QCOMPARE(ranked.least_plays, 3);
        QCOMPARE(ranked.candidates, 4);
        QCOMPARE(ranked.best.size(), std::size_t{2});
        QCOMPARE(ranked.best[0].hole, 3);
        QCOMPARE(ranked.best[0].mean_over, -1.0 / 3);
        QCOMPARE(ranked.best[1].hole, 1);
        QCOMPARE(ranked.worst.size(), std::size_t{2});
        QCOMPARE(ranked.worst[0].hole, 2);
        QCOMPARE(ranked.worst[0].plays, 3);
    }

    void equal_holes_are_in_one_list_only()
    {
        const ranked_holes ranked = holes_of_season({round_of(u"1"_s, hole_in(1, 1, 2), 10)});
        QCOMPARE(ranked.least_plays, 1);
        QCOMPARE(ranked.best.size(), std::size_t{5});
        QCOMPARE(ranked.worst.size(), std::size_t{5});
        for (const season_hole& best : ranked.best)
            for (const season_hole& worst : ranked.worst)
                QVERIFY(best.hole != worst.hole);
    }

    void a_season_without_a_played_hole_ranks_none()
    {
        const ranked_holes ranked = holes_of_season({round_of(u"1"_s, {}, 0)});
        QCOMPARE(ranked.candidates, 0);
        QVERIFY(ranked.best.empty() && ranked.worst.empty());
    }
};

QTEST_APPLESS_MAIN(test_season)
#include "test_season.moc"
