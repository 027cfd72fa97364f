#include <QTest>

#include "records/round_rows.h"
#include "store/tables/courses.h"
#include "store/tables/games.h"
#include "store/tables/games2.h"
#include "tests/records/round_in_store.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace verdane::Round_functions;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::round_in_store;

class test_round_rows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stored_strokes_are_in_their_columns_and_are_read_back()
    {
        store_strokes(18, {3, 2, 1});
        const stroke_counts read = read_strokes(18);
        QCOMPARE(plain(read.long_shots), 3);
        QCOMPARE(plain(read.approach), 2);
        QCOMPARE(plain(read.putts), 1);
        round_->commit();
        QCOMPARE(round_->stored(games_, u"long_18"_s).toInt(), 3);
        QCOMPARE(round_->stored(games_, u"approach_18"_s).toInt(), 2);
        QCOMPARE(round_->stored(games_, u"putt_18"_s).toInt(), 1);
        QVERIFY(round_->stored(games_, u"putt_17"_s).isNull());
    }

    void strokes_without_a_value_are_read_as_0()
    {
        const stroke_counts read = read_strokes(7);
        QCOMPARE(plain(read.long_shots), 0);
        QCOMPARE(plain(read.approach), 0);
        QCOMPARE(plain(read.putts), 0);
    }

    void stored_penalties_are_in_their_columns_and_are_read_back()
    {
        store_penalties(1, {1, 2, 3, 4});
        const penalty_counts read = read_penalties(1);
        QCOMPARE(plain(read.pen_rule), 1);
        QCOMPARE(plain(read.pen_water), 2);
        QCOMPARE(plain(read.pen_bounds), 3);
        QCOMPARE(plain(read.pen_lost), 4);
        round_->commit();
        QCOMPARE(round_->stored(games_, u"pen_rule_1"_s).toInt(), 1);
        QCOMPARE(round_->stored(games_, u"pen_water_1"_s).toInt(), 2);
        QCOMPARE(round_->stored(games_, u"pen_bounds_1"_s).toInt(), 3);
        QCOMPARE(round_->stored(games_, u"pen_lost_1"_s).toInt(), 4);
    }

    void a_new_row_has_no_penalties_and_no_situations()
    {
        for (int hole = 1; hole <= 18; ++hole) {
            const hole_counts read = read_hole(hole);
            QVERIFY(read.pen_rule == 0 && read.pen_water == 0 && read.pen_bounds == 0 && read.pen_lost == 0);
            QVERIFY(read.sand == 0 && read.missed == 0 && read.fairway == 0 && read.recovery == 0);
        }
    }

    void the_texts_of_the_situation_are_converted_by_the_store()
    {
        store_situation(9, {u"2"_s, u"3a"_s, u"2.5"_s, QString()});
        round_->commit();
        const situation_counts read = read_situation(9);
        QCOMPARE(plain(read.fairway), 2);
        QCOMPARE(plain(read.sand), 3);
        QCOMPARE(plain(read.missed), 2);
        QCOMPARE(plain(read_hole(9).recovery), 0);
        QCOMPARE(round_->stored(games2_, u"fairway_9"_s).toInt(), 2);
        QCOMPARE(round_->stored(games2_, u"sand_9"_s).toInt(), 3);
        QCOMPARE(round_->stored(games_, u"missed_9"_s).toInt(), 2);
        QCOMPARE(round_->stored(games2_, u"recovery_9"_s).toInt(), 0);
    }

    void a_penalty_without_a_value_is_an_invalid_null()
    {
        round_->store.rsgames.Fields(tables::games::pen_lost_h(4)).set(QVariant());
        QVERIFY(failure_of([] { read_penalties(4); }) == failure_kind::invalid_null);
        QVERIFY(failure_of([] { figures_from_row(4); }) == failure_kind::invalid_null);
        QCOMPARE(plain(read_penalties(5).pen_lost), 0);
    }

    void a_situation_without_a_value_is_an_invalid_null()
    {
        round_->store.rsgames2.Fields(tables::games2::sand_h(4)).set(QVariant());
        round_->store.rsgames.Fields(tables::games::missed_h(5)).set(QVariant());
        round_->store.rsgames2.Fields(tables::games2::fairway_h(6)).set(QVariant());
        round_->store.rsgames2.Fields(tables::games2::recovery_h(7)).set(QVariant());
        for (const int hole : {4, 5, 6})
            QVERIFY(failure_of([=] { read_situation(hole); }) == failure_kind::invalid_null);
        QVERIFY(failure_of([] { read_hole(7); }) == failure_kind::invalid_null);
        QVERIFY(!failure_of([] { read_situation(7); }));
    }

    void a_par_without_a_value_is_an_invalid_null()
    {
        QCOMPARE(plain(hole_par(3)), 3);
        round_->store.rsfield_info.Fields(tables::field_info::par_h(3)).set(QVariant());
        QVERIFY(failure_of([] { hole_par(3); }) == failure_kind::invalid_null);
    }

    void the_card_of_a_hole_has_yards_handicap_and_par()
    {
        const hole_card card = read_hole_card(5);
        QCOMPARE(plain(card.yards), 305);
        QCOMPARE(plain(card.handicap), 14);
        QCOMPARE(plain(card.par), 5);
    }

    void a_number_that_is_no_hole_is_a_misuse_and_changes_nothing_data()
    {
        QTest::addColumn<int>("hole");
        QTest::newRow("none chosen") << 0;
        QTest::newRow("after the last") << 19;
        QTest::newRow("negative") << -1;
    }

    void a_number_that_is_no_hole_is_a_misuse_and_changes_nothing()
    {
        QFETCH(int, hole);
        QVERIFY(failure_of([=] { store_strokes(hole, {1, 1, 1}); }) == failure_kind::misuse);
        QVERIFY(failure_of([=] { store_penalties(hole, {}); }) == failure_kind::misuse);
        QVERIFY(failure_of([=] { store_situation(hole, {}); }) == failure_kind::misuse);
        QVERIFY(failure_of([=] { hole_par(hole); }) == failure_kind::misuse);
        QVERIFY(!round_->store.rsgames.pending());
        QVERIFY(!round_->store.rsgames2.pending());
    }

    void a_round_is_incomplete_when_hole_18_has_no_strokes()
    {
        QVERIFY(round_incomplete());
        round_->set_strokes(17, 1, 1, 2);
        QVERIFY(round_incomplete());
        round_->set_strokes(18, 0, 0, 0);
        QVERIFY(round_incomplete());
        for (const auto& [l, a, p] : {std::tuple(1, 0, 0), std::tuple(0, 1, 0), std::tuple(0, 0, 1)}) {
            round_->set_strokes(18, l, a, p);
            QVERIFY(!round_incomplete());
        }
    }

    void a_partner_is_looked_up_by_a_plain_text_search_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<int>("position");
        QTest::newRow("first") << "12" << 1;
        QTest::newRow("second") << "7" << 4;
        QTest::newRow("the head of another number") << "1" << 1;
        QTest::newRow("the tail of another number") << "2" << 2;
        QTest::newRow("absent") << "3" << 0;
        QTest::newRow("longer than what is there") << "127" << 0;
    }

    void a_partner_is_looked_up_by_a_plain_text_search()
    {
        QFETCH(QString, number);
        round_->store.rsgames2.Fields(tables::games2::PARTNERS).set(u"12-7-"_s);
        QTEST(plain(partner_in_round(number)), "position");
    }

    void a_round_without_partners_has_none()
    {
        QVERIFY(round_->store.rsgames2.Fields(tables::games2::PARTNERS).is_null());
        QCOMPARE(plain(partner_in_round(u"1")), 0);
        QCOMPARE(plain(partner_in_round(u"")), 0);
        round_->store.rsgames2.Fields(tables::games2::PARTNERS).set(QString());
        QCOMPARE(plain(partner_in_round(u"")), 0);
    }

    void every_partner_ends_in_a_dash()
    {
        QCOMPARE(partners_text({u"12"_s, u"7"_s}), u"12-7-"_s);
        QCOMPARE(partners_text({u"-5"_s}), u"-5-"_s);
        QCOMPARE(partners_text({}), QString());
    }

    void a_course_is_found_by_its_place_and_stays_current()
    {
        QCOMPARE(course_code_at(0), u"AUTRE-0"_s);
        QCOMPARE(course_code_at(1), u"LES PINS-1"_s);
        QCOMPARE(round_->store.rsvrd_fields.Fields(tables::vrd_fields::name).text(), u"Les Pins"_s);
        QVERIFY(failure_of([] { course_code_at(2); }) == failure_kind::misuse);
    }

    void the_amounts_of_a_round_add_up_in_16_bits()
    {
        Recordset& cost = round_->store.rscost;
        QCOMPARE(plain(cost_total()), 0);
        for (int ordinal = 1; ordinal <= 12; ++ordinal)
            cost.Fields(ordinal).set(ordinal);
        QCOMPARE(plain(cost_total()), 78);
        for (int ordinal = 1; ordinal <= 4; ++ordinal)
            cost.Fields(ordinal).set(9999);
        QVERIFY(failure_of([] { cost_total(); }) == failure_kind::overflow);
    }

    void an_amount_without_a_value_is_an_invalid_null()
    {
        round_->store.rscost.Fields(5).set(QVariant());
        QVERIFY(failure_of([] { cost_total(); }) == failure_kind::invalid_null);
    }

    void init() { round_ = std::make_unique<round_in_store>(); }
    void cleanup() { round_.reset(); }

private:
    const QString games_ = u"games"_s;
    const QString games2_ = u"games2"_s;
    std::unique_ptr<round_in_store> round_;
};

QTEST_GUILESS_MAIN(test_round_rows)
#include "test_round_rows.moc"
