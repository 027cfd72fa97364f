#include <QTest>

#include <functional>

#include "statistics/round_statistics.h"
#include "store/DataEnvironment1.h"
#include "store/tables/games.h"
#include "tests/statistics/putt_rounds.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

qint64 values_read()
{
    return data_environment().connection.traffic().values;
}

/// Fills the tables from the rounds of the first days. False if there is nothing to print.
using fill_days = std::function<bool(int days)>;

/// The values that a statistic reads for each further round of the selection.
qint64 values_per_round(const fill_days& fill)
{
    const auto read_for = [&fill](int count) {
        const stored_rounds rounds(count, true);
        rounds.putts(1, 1, {9});
        put_shot(rounds.book.store, key_of_day(1), 1, u"shot_type_value"_s, u"1"_s);
        const qint64 before = values_read();
        return fill(count) ? values_read() - before : -1;
    };
    constexpr int few = 2;
    constexpr int many = 7;
    const qint64 of_few = read_for(few);
    const qint64 of_many = read_for(many);
    return of_few < 0 || of_many < 0 ? -1 : (of_many - of_few) / (many - few);
}

bool fill_putts(int count)
{
    return fill_grids(days(1, count));
}

bool fill_rounds(int count)
{
    run_progress no_bar;
    return Statistics::rounds_in_stats(open_selection(key_of_day(1), key_of_day(count)), no_bar).has_value();
}

}  // namespace

/// What the statistics read from the store.
class test_statistic_reads : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_putt_statistic_reads_the_key_and_the_lengths_of_a_round()
    {
        constexpr int key = 1;
        constexpr int lengths = 18 * 6;
        constexpr int after_the_lengths = 1;
        QCOMPARE(values_per_round(fill_putts), key + lengths + after_the_lengths);
    }

    /// The figures and the handicap are read one after the other.
    void the_round_statistic_reads_the_situations_once()
    {
        constexpr int strokes = tables::games::columns.size();
        constexpr int key_weather_partners = 3;
        constexpr int sand_and_fairway = 2 * 18;
        constexpr int differential = 1;
        QCOMPARE(values_per_round(fill_rounds), (strokes + key_weather_partners + sand_and_fairway) +
                                                    (strokes + key_weather_partners) + differential);
    }
};

QTEST_MAIN(test_statistic_reads)
#include "test_statistic_reads.moc"
