#include <QTest>

#include "records/Round_functions.h"
#include "scoring/hole_classes.h"
#include "store/tables/courses.h"
#include "store/tables/games.h"
#include "tests/records/round_in_store.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace verdane::Round_functions;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::round_in_store;

namespace {

/// The figures in seven boxes with the texts that a user typed.
hole_figures typed_boxes(const QStringList& texts)
{
    const auto box = [&texts](int i) { return figure_of_box(texts.value(i)); };
    return {{box(0), box(1), box(2)}, {box(3), box(4), box(5), box(6)}};
}

}  // namespace

class test_round_functions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { round_ = std::make_unique<round_in_store>(); }

    void cleanup() { round_.reset(); }

    void every_figure_comes_from_the_source_that_is_passed()
    {
        store_strokes(2, {1, 2, 3});
        store_penalties(2, {4, 5, 6, 7});
        expect_figures(from_row, {1, 2, 3, 4, 5, 6, 7});
        const hole_figures boxes =
            typed_boxes({u"11"_s, u"12"_s, u"13"_s, u"14"_s, u"15"_s, u"16"_s, u"17"_s});
        expect_figures(boxes, {11, 12, 13, 14, 15, 16, 17});
        expect_figures(from_row, {1, 2, 3, 4, 5, 6, 7});
    }

    void both_sources_give_the_same_cells()
    {
        store_strokes(4, {2, 1, 1});
        const hole_figures boxes = typed_boxes({u"2"_s, u"1a"_s, u" 1"_s});
        for (int place = 1; place <= class_count; ++place) {
            const int selector = summary_selector(place);
            QCOMPARE(hole_cell(selector, 4, from_row), hole_cell(selector, 4, boxes));
        }
        QCOMPARE(hole_cell(7, 4, boxes), u"1"_s);
        QCOMPARE(hole_cell(10, 4, from_row), u"1"_s);
        QCOMPARE(hole_cell(2, 4, from_row), QString());
    }

    void the_boxes_take_only_the_par_from_the_hole()
    {
        const hole_figures boxes = typed_boxes({u"1"_s, u"0"_s, u"2"_s});
        QCOMPARE(in_regulation(3, boxes), 1);
        QCOMPARE(in_regulation(4, boxes), 0);
        QVERIFY(!not_in_regulation(3, boxes));
        QVERIFY(not_in_regulation(4, boxes));
        QCOMPARE(hole_cell(1, 3, boxes), u"1"_s);
        QCOMPARE(hole_cell(21, 4, boxes), u"1"_s);
    }

    void a_hole_without_strokes_has_no_gross_and_no_class()
    {
        QCOMPARE(plain(hole_gross(1, from_row)), 0);
        QCOMPARE(plain(hole_penalties(1, from_row)), 0);
        QCOMPARE(hole_cell(1, 1, from_row), u" "_s);
        QVERIFY(!not_in_regulation(1, from_row));
    }

    void a_null_penalty_fails_where_it_is_needed()
    {
        round_->store.rsgames.Fields(tables::games::pen_water_h(6)).set(QVariant());
        QVERIFY(failure_of([] { hole_gross(6, from_row); }) == failure_kind::invalid_null);
        QVERIFY(failure_of([] { hole_cell(1, 6, from_row); }) == failure_kind::invalid_null);
        QVERIFY(failure_of([] { hole_pen_water(6, from_row); }) == failure_kind::invalid_null);
        QCOMPARE(plain(hole_long(6, from_row)), 0);
    }

    void a_null_par_fails()
    {
        round_->store.rsfield_info.Fields(tables::field_info::par_h(6)).set(QVariant());
        QVERIFY(failure_of([] { in_regulation(6, from_row); }) == failure_kind::invalid_null);
        QVERIFY(failure_of([] { round_score(from_row); }) == failure_kind::invalid_null);
    }

    void a_round_adds_up_its_eighteen_holes()
    {
        fill_round();
        const round_figures score = round_score(from_row);
        QCOMPARE(plain(score.totals.gross), 90);
        QCOMPARE(plain(score.totals.par), 72);
        QCOMPARE(score.differential, 16.95);
        const round_labels labels = labels_of(score);
        QCOMPARE(labels.l_hand, u"16.95"_s);
        QCOMPARE(labels.l_brut, u"90"_s);
        QCOMPARE(labels.l_net, u"74"_s);
        QCOMPARE(labels.l_plus, u"18"_s);
    }

    void only_the_last_hole_may_come_from_the_boxes()
    {
        fill_round();
        const hole_figures boxes = typed_boxes({u"3"_s, u"3"_s, u"3"_s, u"1"_s});
        QCOMPARE(plain(round_score(boxes).totals.gross), 90 - 5 + 10);
        QCOMPARE(plain(round_score(from_row).totals.gross), 90);
    }

    void penalties_count_in_the_gross_of_a_round()
    {
        fill_round();
        store_penalties(9, {1, 1, 1, 1});
        QCOMPARE(plain(round_score(from_row).totals.gross), 94);
    }

    void a_course_without_slope_gives_no_differential_data()
    {
        QTest::addColumn<QVariant>("slope");
        QTest::newRow("0") << QVariant(0);
        QTest::newRow("empty") << QVariant(QString());
        QTest::newRow("none") << QVariant();
    }

    void a_course_without_slope_gives_no_differential()
    {
        QFETCH(QVariant, slope);
        fill_round();
        round_->store.rsvrd_fields.Fields(tables::vrd_fields::slope).set(slope);
        const round_labels labels = labels_of(round_score(from_row));
        QCOMPARE(labels.l_hand, u"0"_s);
        QCOMPARE(labels.l_net, labels.l_brut);
    }

    void a_rating_is_read_up_to_what_is_no_number()
    {
        fill_round();
        round_->store.rsvrd_fields.Fields(tables::vrd_fields::rating).set(u"70.5.1"_s);
        QCOMPARE(round_score(from_row).differential, 16.95);
        round_->store.rsvrd_fields.Fields(tables::vrd_fields::rating).set(QString());
        QCOMPARE(round_score(from_row).differential, 90 * 113 / 130.0);
    }

    void a_round_beyond_16_bits_is_an_overflow()
    {
        store_strokes(1, {20000, 0, 0});
        store_strokes(2, {20000, 0, 0});
        QVERIFY(failure_of([] { round_score(from_row); }) == failure_kind::overflow);
    }

    void computing_the_score_changes_no_row()
    {
        round_score(from_row);
        hole_cell(1, 1, from_row);
        QVERIFY(!round_->store.rsgames.pending());
        QVERIFY(!round_->store.rsvrd_fields.pending());
    }

private:
    /// Five strokes on every hole: 90 on a par 72.
    void fill_round()
    {
        for (int hole = 1; hole <= 18; ++hole)
            round_->set_strokes(hole, 2, 1, 2);
    }

    static void expect_figures(const figure_source& source, const hole_figures& f)
    {
        QCOMPARE(plain(hole_long(2, source)), plain(f.long_shots));
        QCOMPARE(plain(hole_approach(2, source)), plain(f.approach));
        QCOMPARE(plain(hole_putts(2, source)), plain(f.putts));
        QCOMPARE(plain(hole_pen_rule(2, source)), plain(f.pen_rule));
        QCOMPARE(plain(hole_pen_water(2, source)), plain(f.pen_water));
        QCOMPARE(plain(hole_pen_bounds(2, source)), plain(f.pen_bounds));
        QCOMPARE(plain(hole_pen_lost(2, source)), plain(f.pen_lost));
        QCOMPARE(plain(hole_penalties(2, source)), plain(verdane::hole_penalties(f)));
        QCOMPARE(plain(hole_gross(2, source)), plain(verdane::hole_gross(f)));
    }

    std::unique_ptr<round_in_store> round_;
};

QTEST_GUILESS_MAIN(test_round_functions)
#include "test_round_functions.moc"
