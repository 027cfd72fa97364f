#include <QTest>

#include "records/round_list.h"
#include "round/f_new_round.h"
#include "store/DataEnvironment1.h"
#include "tests/round/round_windows.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// The window does not close with a shot that has no club.
void add_shot(const round_store& store, int hole)
{
    store.store.write(
        u"insert into Stat_rounds (date, hole, shot, stick, stickval, shot_type, shot_type_value) "
        u"values ('%1', %2, 1, '1W', 1, 'Long', 1)"_s.arg(key_of_day(1))
            .arg(hole));
}

/// A store with rounds on consecutive days.
struct full_store {
    explicit full_store(int rounds)
    {
        store.add_two_courses();
        for (int day = 1; day <= rounds; ++day)
            store.add_round(key_of_day(day));
    }

    round_store store;
};

store_traffic difference(const store_traffic& to, const store_traffic& from)
{
    return {to.statements - from.statements, to.rows - from.rows, to.values - from.values};
}

store_traffic traffic_now()
{
    return data_environment().connection.traffic();
}

/// What the list and opening the round of the first day read until the window of the round is shown.
store_traffic read_by_opening(const full_store&)
{
    const store_traffic before = traffic_now();
    store_traffic read;
    in_stored_round(key_of_day(1), [&](hand& user) {
        user.look([&] { read = difference(traffic_now(), before); });
        discard(user);
    });
    return read;
}

qint64 rows_read_by_new_round(const full_store&)
{
    const store_traffic before = traffic_now();
    in_keyed_round([](hand& user) { discard(user); });
    return difference(traffic_now(), before).rows;
}

}  // namespace

/// What the round window reads from the store and sends to it.
class test_round_reads : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Of every other round, the list needs five values, and `games2` and `cost` are searched for the key.
    void opening_a_round_reads_no_figure_of_another_round()
    {
        constexpr int few = 3;
        constexpr int many = 23;
        const store_traffic of_few = read_by_opening(full_store(few));
        const store_traffic of_many = read_by_opening(full_store(many));
        QCOMPARE(of_many.values - of_few.values, (5 + 1 + 1) * (many - few));
        QCOMPARE(of_many.statements, of_few.statements);
    }

    void opening_a_round_reads_no_shot_of_another_hole()
    {
        const qint64 without = read_by_opening(full_store(1)).rows;
        const full_store detailed(1);
        for (const int hole : {2, 3, 18})
            add_shot(detailed.store, hole);
        QCOMPARE(read_by_opening(detailed).rows, without);
    }

    void the_list_of_rounds_reads_five_values_of_each()
    {
        constexpr int rounds = 4;
        const full_store store(rounds);
        const store_traffic before = traffic_now();
        Round_functions::open_rounds_in_time_order();
        QCOMPARE(Round_functions::round_list_lines().size(), rounds);
        QCOMPARE(difference(traffic_now(), before).values, 5 * rounds);
        data_environment().rsgames.Close();
    }

    void a_new_round_reads_no_shot()
    {
        const qint64 without = rows_read_by_new_round(full_store(1));
        const full_store detailed(1);
        add_shot(detailed.store, 1);
        QCOMPARE(rows_read_by_new_round(detailed), without);
    }

    /// Two statements for the two rows and two for their commit.
    void leaving_a_hole_sends_four_statements_and_reads_nothing()
    {
        const full_store store(2);
        store_traffic sent;
        in_stored_round(key_of_day(1), [&](hand& user) {
            user.type(u"12345678123"_s);
            user.look([&] { sent = traffic_now(); });
            user.click_tab(u"TabStrip1"_s, 2);
            user.look([&] { sent = difference(traffic_now(), sent); });
            discard(user);
        });
        QCOMPARE(sent.statements, 4);
        QCOMPARE(sent.rows, 0);
    }
};

QTEST_MAIN(test_round_reads)
#include "test_round_reads.moc"
