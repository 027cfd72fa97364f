#include <QTest>

#include "base/numbers.h"
#include "scoring/hole_classes.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;

namespace {

constexpr int last_class = hole_class::green_hit_three_putts;

/// A hole whose penalties are all of one kind.
hole_figures played(int long_shots, int approach, int putts, int penalties = 0)
{
    return {long_shots, approach, putts, 0, penalties, 0, 0};
}

/// The classes whose cell is "1", as "1 6 14".
QString members(const hole_figures& f, int16 par)
{
    QStringList found;
    for (int selector = 1; selector <= last_class; ++selector) {
        if (hole_cell(selector, f, par) == u"1"_s)
            found += QString::number(selector);
    }
    return found.join(u' ');
}

}  // namespace

class test_hole_classes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_hole_belongs_to_its_classes_data()
    {
        QTest::addColumn<int>("par");
        QTest::addColumn<int>("long_shots");
        QTest::addColumn<int>("approach");
        QTest::addColumn<int>("putts");
        QTest::addColumn<int>("penalties");
        QTest::addColumn<QString>("classes");
        QTest::newRow("par 4 in regulation, two putts") << 4 << 1 << 1 << 2 << 0 << "1 13 25 27";
        QTest::newRow("par 4, a drive to the green") << 4 << 1 << 0 << 2 << 0 << "6 8 21";
        QTest::newRow("par 4, two long and a penalty") << 4 << 2 << 0 << 2 << 1 << "6 8 22";
        QTest::newRow("par 3, hole in one") << 3 << 1 << 0 << 0 << 0 << "11 15 18 20 25";
        QTest::newRow("par 4, hole in one") << 4 << 1 << 0 << 0 << 0 << "6 11 16 18 19";
        QTest::newRow("par 5, five with one putt") << 5 << 3 << 1 << 1 << 0 << "1 6 7 10 14";
        QTest::newRow("par 5, eagle") << 5 << 1 << 1 << 1 << 0 << "6 7 20";
        QTest::newRow("par 4, up and down") << 4 << 2 << 1 << 1 << 0 << "1 6 7 10 13";
        QTest::newRow("par 4, a water penalty, no putt") << 4 << 1 << 1 << 0 << 1 << "6 11 21";
        QTest::newRow("par 4, birdie") << 4 << 1 << 1 << 1 << 0 << "21 25 26";
        QTest::newRow("par 3, two putts") << 3 << 1 << 0 << 2 << 0 << "1 12 25 27";
        QTest::newRow("par 5, double") << 5 << 3 << 1 << 3 << 0 << "6 9 23";
        QTest::newRow("par 4, three putts in regulation") << 4 << 1 << 1 << 3 << 0 << "22 25 28";
        QTest::newRow("par 4, four putts in regulation") << 4 << 1 << 1 << 4 << 0 << "23 25 28";
        QTest::newRow("par 4, triple") << 4 << 2 << 2 << 3 << 0 << "6 9 24";
        QTest::newRow("par 3, far above") << 3 << 5 << 2 << 3 << 2 << "6 9 24";
        QTest::newRow("par made with three putts") << 4 << 1 << 0 << 3 << 0 << "1 6 9 10 13";
        QTest::newRow("penalties alone") << 4 << 0 << 0 << 0 << 2 << "20 25";
        QTest::newRow("not played, par 4") << 4 << 0 << 0 << 0 << 0 << "";
        QTest::newRow("not played, par 0") << 0 << 0 << 0 << 0 << 0 << "1";
        QTest::newRow("not played, par 2") << 2 << 0 << 0 << 0 << 0 << "25";
        QTest::newRow("par 0, one putt") << 0 << 0 << 0 << 1 << 0 << "6 7 18 22";
    }

    void a_hole_belongs_to_its_classes()
    {
        QFETCH(int, par);
        QFETCH(int, long_shots);
        QFETCH(int, approach);
        QFETCH(int, putts);
        QFETCH(int, penalties);
        QTEST(members(played(long_shots, approach, putts, penalties), par), "classes");
    }

    void a_class_that_the_hole_does_not_belong_to_is_one_blank()
    {
        const hole_figures unplayed = played(0, 0, 0);
        for (int place = 1; place <= class_count; ++place)
            QCOMPARE(hole_cell(summary_selector(place), unplayed, 4), u" "_s);
    }

    void the_par_3_cell_is_empty_below_par_3()
    {
        for (const int par : {0, 1, 2})
            QCOMPARE(hole_cell(12, played(1, 0, 2), par), QString());
        QCOMPARE(hole_cell(12, played(1, 0, 2), 3), u"1"_s);
        QCOMPARE(hole_cell(12, played(1, 0, 1), 3), u" "_s);
        QCOMPARE(hole_cell(12, played(1, 0, 2), 4), u" "_s);
        QCOMPARE(hole_cell(13, played(1, 0, 2), 2), u" "_s);
    }

    void a_class_that_does_not_exist_is_empty_data()
    {
        QTest::addColumn<int>("selector");
        for (const int selector : {-1, 0, 2, 3, 4, 5, 29, 100})
            QTest::addRow("%d", selector) << selector;
    }

    void a_class_that_does_not_exist_is_empty()
    {
        QFETCH(int, selector);
        QCOMPARE(hole_cell(selector, played(1, 1, 2), 4), QString());
        QCOMPARE(plain(hole_cell_value(selector, played(1, 1, 2), 4)), 0);
    }

    void an_average_is_the_gross_on_holes_of_its_par_data()
    {
        QTest::addColumn<int>("par");
        QTest::addColumn<int>("gross");
        QTest::addColumn<QString>("par3");
        QTest::addColumn<QString>("par4");
        QTest::addColumn<QString>("par5");
        QTest::newRow("par 3") << 3 << 4 << "4"
                               << " "
                               << " ";
        QTest::newRow("par 4") << 4 << 12 << " "
                               << "12"
                               << " ";
        QTest::newRow("par 5") << 5 << 1 << " "
                               << " "
                               << "1";
        QTest::newRow("par 6") << 6 << 6 << " "
                               << " "
                               << " ";
        QTest::newRow("not played") << 4 << 0 << " "
                                    << " "
                                    << " ";
    }

    void an_average_is_the_gross_on_holes_of_its_par()
    {
        QFETCH(int, par);
        QFETCH(int, gross);
        const hole_figures f = played(gross, 0, 0);
        QTEST(hole_cell(15, f, par), "par3");
        QTEST(hole_cell(16, f, par), "par4");
        QTEST(hole_cell(17, f, par), "par5");
    }

    void a_hole_with_a_gross_of_0_is_classified_by_its_putts_alone()
    {
        // Strokes that cancel out: the gross is 0.
        const hole_figures cancelled = played(-1, 0, 1);
        QCOMPARE(hole_cell(26, cancelled, 4), u"1"_s);
        QCOMPARE(hole_cell(27, cancelled, 4), u" "_s);
    }

    void the_rows_of_the_statistics_have_the_greens_hit_after_the_pars()
    {
        const QList<int> order = {1,  25, 26, 27, 28, 6,  7,  8,  9,  10, 11, 12,
                                  13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24};
        for (int i = 1; i <= class_count; ++i)
            QCOMPARE(summary_selector(i), order[i - 1]);
        QVERIFY(failure_of([] { summary_selector(0); }) == failure_kind::subscript);
        QVERIFY(failure_of([] { summary_selector(25); }) == failure_kind::subscript);
    }

    void an_overflow_in_a_cell_is_a_failure()
    {
        QVERIFY(failure_of([] { hole_cell(1, played(32767, 1, 0), 4); }) == failure_kind::overflow);
        QVERIFY(failure_of([] { hole_cell(11, played(32767, 1, 0), 4); }) == failure_kind::overflow);
        QVERIFY(failure_of([] { hole_cell_value(15, played(32767, 0, 1), 3); }) == failure_kind::overflow);
    }
};

QTEST_GUILESS_MAIN(test_hole_classes)
#include "test_hole_classes.moc"
