#include <QTest>

#include "scoring/hole_arithmetic.h"
#include "tests/support/failures.h"

using namespace verdane;
using testing::failure_of;

class test_hole_arithmetic : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_gross_is_the_sum_of_penalties_and_strokes()
    {
        const hole_figures f{1, 20, 300, 4, 50, 600, 7};
        QCOMPARE(plain(hole_shots(f)), 21);
        QCOMPARE(plain(hole_penalties(f)), 661);
        QCOMPARE(plain(hole_gross(f)), 982);
        QCOMPARE(plain(hole_gross({})), 0);
    }

    void a_green_is_in_regulation_at_par_less_two_exactly_data()
    {
        QTest::addColumn<int>("long_shots");
        QTest::addColumn<int>("approach");
        QTest::addColumn<int>("putts");
        QTest::addColumn<int>("water");
        QTest::addColumn<int>("par");
        QTest::addColumn<bool>("in");
        QTest::addColumn<bool>("not_in");
        QTest::newRow("par 4, long and approach") << 1 << 1 << 2 << 0 << 4 << true << false;
        QTest::newRow("par 4, a drive to the green") << 1 << 0 << 2 << 0 << 4 << false << true;
        QTest::newRow("par 4, a penalty counts") << 1 << 1 << 0 << 1 << 4 << false << true;
        QTest::newRow("par 4, two long and a penalty") << 2 << 0 << 2 << 1 << 4 << false << true;
        QTest::newRow("par 4, a penalty fills up") << 1 << 0 << 2 << 1 << 4 << true << false;
        QTest::newRow("par 4, two long, one approach") << 2 << 1 << 1 << 0 << 4 << false << true;
        QTest::newRow("par 3, one stroke to the green") << 1 << 0 << 2 << 0 << 3 << true << false;
        QTest::newRow("par 5, three to the green") << 2 << 1 << 1 << 0 << 5 << true << false;
        QTest::newRow("not played, par 3") << 0 << 0 << 0 << 0 << 3 << false << false;
        QTest::newRow("not played, par 4") << 0 << 0 << 0 << 0 << 4 << false << false;
        QTest::newRow("not played, par 5") << 0 << 0 << 0 << 0 << 5 << false << false;
        QTest::newRow("not played, par 2") << 0 << 0 << 0 << 0 << 2 << true << false;
        QTest::newRow("putts only, par 2") << 0 << 0 << 2 << 0 << 2 << true << false;
        QTest::newRow("putts only, par 0") << 0 << 0 << 2 << 0 << 0 << false << true;
    }

    void a_green_is_in_regulation_at_par_less_two_exactly()
    {
        QFETCH(int, long_shots);
        QFETCH(int, approach);
        QFETCH(int, putts);
        QFETCH(int, water);
        QFETCH(int, par);
        const hole_figures f{long_shots, approach, putts, 0, water, 0, 0};
        QTEST(verdane::in_regulation(f, par) == 1, "in");
        QTEST(verdane::not_in_regulation(f, par), "not_in");
    }

    void every_kind_of_penalty_counts_against_regulation()
    {
        const int16 par = 4;
        QCOMPARE(in_regulation({1, 1, 2, 1, 0, 0, 0}, par), 0);
        QCOMPARE(in_regulation({1, 1, 2, 0, 1, 0, 0}, par), 0);
        QCOMPARE(in_regulation({1, 1, 2, 0, 0, 1, 0}, par), 0);
        QCOMPARE(in_regulation({1, 1, 2, 0, 0, 0, 1}, par), 0);
    }

    void a_sum_beyond_16_bits_is_an_overflow()
    {
        const hole_figures shots{32767, 1, 0, 0, 0, 0, 0};
        const hole_figures penalties{0, 0, 0, 32767, 0, 0, 1};
        QVERIFY(failure_of([&] { hole_gross(shots); }) == failure_kind::overflow);
        QVERIFY(failure_of([&] { hole_shots(shots); }) == failure_kind::overflow);
        QVERIFY(failure_of([&] { in_regulation(shots, 4); }) == failure_kind::overflow);
        QVERIFY(failure_of([&] { hole_penalties(penalties); }) == failure_kind::overflow);
        QVERIFY(failure_of([&] { not_in_regulation(penalties, 4); }) == failure_kind::overflow);
    }

    void a_box_is_read_as_a_count_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("figure");
        QTest::newRow("empty") << "" << 0;
        QTest::newRow("digit") << "4" << 4;
        QTest::newRow("letter after it") << "3a" << 3;
        QTest::newRow("letter first") << "a3" << 0;
        QTest::newRow("tie to even") << "2.5" << 2;
        QTest::newRow("blank before") << " 7" << 7;
    }

    void a_box_is_read_as_a_count()
    {
        QFETCH(QString, text);
        QFETCH(int, figure);
        QCOMPARE(plain(figure_of_box(text)), figure);
    }

    void a_box_beyond_16_bits_is_an_overflow()
    {
        QVERIFY(failure_of([] { figure_of_box(u"32768"); }) == failure_kind::overflow);
    }

    void boxes_of_totals_add_as_decimals()
    {
        const auto text = [](const char* t) { return QString::fromLatin1(t); };
        QCOMPARE(sum_of_boxes({text("2"), text("1"), text("2")}), text("5"));
        QCOMPARE(sum_of_boxes({text("2.5"), text(""), text("1a")}), text("3.5"));
        QCOMPARE(sum_of_boxes({text("30000"), text("30000"), text("1")}), text("60001"));
        QCOMPARE(sum_of_boxes({}), text("0"));
    }
};

QTEST_GUILESS_MAIN(test_hole_arithmetic)
#include "test_hole_arithmetic.moc"
