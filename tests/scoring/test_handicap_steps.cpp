#include <QTest>

#include <numeric>

#include "scoring/handicap.h"
#include "scoring/handicap_steps.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

/// `count` differentials 20, 19, 18 and so on.
std::vector<double> falling(int count)
{
    std::vector<double> differentials;
    for (int i = 0; i < count; ++i)
        differentials.push_back(20 - i);
    return differentials;
}

}  // namespace

class test_handicap_steps : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void four_rounds_have_no_handicap_and_no_ranks()
    {
        const handicap_steps steps = steps_of_handicap(falling(4));
        QCOMPARE(steps.take, 0);
        QCOMPARE(steps.ranks, std::vector<int>(4, 0));
        QCOMPARE(steps.sum, 0.0);
        QCOMPARE(steps.mean, 0.0);
        QCOMPARE(steps.text, u"N/A"_s);
    }

    void of_five_differentials_the_best_counts_without_the_factor()
    {
        const handicap_steps steps = steps_of_handicap({12, 10.44, 11, 10.45, 30});
        QCOMPARE(steps.take, 1);
        QCOMPARE(steps.ranks, (std::vector<int>{0, 1, 0, 0, 0}));
        QCOMPARE(steps.factor, 1.0);
        QCOMPARE(steps.product, 10.44);
        QCOMPARE(steps.text, u" 10.4"_s);
    }

    void the_mean_of_several_differentials_is_multiplied_and_rounded()
    {
        const handicap_steps steps = steps_of_handicap({30, 12, 25, 10, 26, 40});
        QCOMPARE(steps.take, 2);
        QCOMPARE(steps.ranks, (std::vector<int>{0, 2, 0, 1, 0, 0}));
        QCOMPARE(steps.sum, 22.0);
        QCOMPARE(steps.mean, 11.0);
        QCOMPARE(steps.factor, 0.96);
        QCOMPARE(steps.product, 10.56);
        QCOMPARE(steps.text, u" 10.6"_s);
    }

    void the_earlier_one_of_two_equal_differentials_counts()
    {
        QCOMPARE(steps_of_handicap({9, 7, 7, 7, 7}).ranks, (std::vector<int>{0, 1, 0, 0, 0}));
        QCOMPARE(steps_of_handicap({9, 7, 7, 6, 7, 8}).ranks, (std::vector<int>{0, 2, 0, 1, 0, 0}));
    }

    void as_many_ranks_are_given_as_differentials_count()
    {
        for (const int rounds : {0, 5, 17, 18, 19, 20, 21, 50, 366}) {
            const handicap_steps steps = steps_of_handicap(falling(rounds));
            QCOMPARE(steps.take, plain(handicap_take(rounds)));
            QCOMPARE(std::accumulate(steps.ranks.begin(), steps.ranks.end(), 0),
                     steps.take * (steps.take + 1) / 2);
        }
    }

    void the_handicap_after_a_round_is_that_of_the_rounds_so_far()
    {
        const std::vector<double> differentials{21, 14.4, 30, 18.2, 16, 13.1, 25, 12, 11.7, 40, 9};
        const auto handicaps = handicaps_over_time(differentials);
        QCOMPARE(handicaps.size(), differentials.size());
        for (std::size_t rounds = 1; rounds <= differentials.size(); ++rounds) {
            const std::vector<double> so_far(differentials.begin(),
                                             differentials.begin() + static_cast<std::ptrdiff_t>(rounds));
            const handicap_steps steps = steps_of_handicap(so_far);
            QCOMPARE(handicaps[rounds - 1], handicap_figure(steps.take, steps.sum));
        }
        QVERIFY(!handicaps[3]);
        QCOMPARE(handicaps[4], std::optional(14.4));
    }

    void a_handicap_of_exactly_zero_has_no_figure()
    {
        QVERIFY(!handicap_figure(1, 0.04));
        QCOMPARE(handicap_figure(1, -0.06), std::optional(-0.1));
        QVERIFY(!handicaps_over_time({0, 0, 0, 0, 0})[4]);
    }

    void the_ladder_covers_every_number_of_rounds_once()
    {
        const std::vector<ladder_step> ladder = handicap_ladder();
        QCOMPARE(ladder.size(), std::size_t{11});
        QCOMPARE(ladder.front().first, 0);
        QCOMPARE(ladder.back().last, 366);
        for (std::size_t i = 0; i < ladder.size(); ++i) {
            QCOMPARE(ladder[i].take, static_cast<int>(i));
            if (i > 0)
                QCOMPARE(ladder[i].first, ladder[i - 1].last + 1);
        }
        QCOMPARE(ladder.back().first, 20);
        QCOMPARE(least_rounds_of_handicap(), 5);
    }
};

QTEST_APPLESS_MAIN(test_handicap_steps)
#include "test_handicap_steps.moc"
