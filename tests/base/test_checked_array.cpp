#include <QTest>

#include "base/checked_array.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;

class test_checked_array : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_new_array_has_initial_values()
    {
        checked_array<int, 3> list;
        for (int index = list.first_index; index <= list.last_index; ++index)
            QCOMPARE(list[index], 0);
    }

    void the_first_and_the_last_item_can_be_written_and_read()
    {
        checked_array<int, 18, 1> holes;
        QCOMPARE(holes.first_index, 1);
        QCOMPARE(holes.last_index, 18);
        holes[1] = 7;
        holes[18] = 9;
        QCOMPARE(holes[1], 7);
        QCOMPARE(std::as_const(holes)[18], 9);
    }

    void an_index_outside_the_bounds_fails_with_subscript_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("one before the first") << 0;
        QTest::newRow("one after the last") << 19;
        QTest::newRow("negative") << -1;
    }

    void an_index_outside_the_bounds_fails_with_subscript()
    {
        QFETCH(int, index);
        checked_array<int, 18, 1> holes;
        QVERIFY(failure_of([&] { holes[index] = 1; }) == failure_kind::subscript);
        QVERIFY(failure_of([&] { (void)std::as_const(holes)[index]; }) == failure_kind::subscript);
    }

    void the_failure_names_the_index_and_the_bounds()
    {
        checked_array<int, 18, 1> holes;
        try {
            holes[19] = 1;
            QFAIL("no failure");
        } catch (const run_time_failure& failure) {
            QVERIFY(failure.details().contains(u"19"));
            QVERIFY(failure.details().contains(u"1 to 18"));
            QCOMPARE(QString::fromUtf8(failure.what()), failure.details());
        }
    }

    void clear_sets_every_item_to_its_initial_value()
    {
        checked_array<QString, 2> list;
        list[1] = u"x"_s;
        list.clear();
        QCOMPARE(list[1], QString());
    }
};

QTEST_GUILESS_MAIN(test_checked_array)
#include "test_checked_array.moc"
