#include <QTest>

#include "base/counts.h"
#include "tests/support/failures.h"

using namespace verdane;
using testing::failure_of;

class test_counts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_count_has_16_bits()
    {
        int16 count = 32766;
        count = count + 1;
        QCOMPARE(plain(count), 32767);
        count = -32767;
        count = count - 1;
        QCOMPARE(plain(count), -32768);
    }

    void a_count_beyond_16_bits_fails_with_overflow_and_keeps_its_value()
    {
        int16 count = 32767;
        QVERIFY(failure_of([&] { count = count + 1; }) == failure_kind::overflow);
        QCOMPARE(plain(count), 32767);
        count = -32768;
        QVERIFY(failure_of([&] { count = count - 1; }) == failure_kind::overflow);
        QCOMPARE(plain(count), -32768);
        QVERIFY(failure_of([&] { count = 40000; }) == failure_kind::overflow);
    }

    void a_sum_beyond_16_bits_that_is_assigned_to_a_count_fails_with_overflow()
    {
        const int16 a = 20000;
        const int16 b = 20000;
        int16 sum = 0;
        QVERIFY(failure_of([&] { sum = a + b; }) == failure_kind::overflow);
        QCOMPARE(plain(sum), 0);
    }

    void an_amount_has_32_bits()
    {
        int32 amount = 2147483646;
        amount = amount + 1;
        QCOMPARE(plain(amount), 2147483647);
        QVERIFY(failure_of([&] { amount = amount + 1; }) == failure_kind::overflow);
        QCOMPARE(plain(amount), 2147483647);
    }

    void an_amount_too_large_for_a_count_fails_with_overflow()
    {
        const int32 amount = 32768;
        int16 count = 0;
        QVERIFY(failure_of([&] { count = amount; }) == failure_kind::overflow);
    }

    void an_overflow_has_details()
    {
        int16 count = 32767;
        try {
            count = count + 1;
            QFAIL("no failure");
        } catch (const run_time_failure& failure) {
            QVERIFY(!failure.details().isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(test_counts)
#include "test_counts.moc"
