#include <QTest>

#include <limits>

#include "base/numbers.h"
#include "tests/support/failures.h"

using namespace verdane;
using testing::failure_of;

class test_numbers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_number_at_the_start_of_a_text_is_read_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("number");
        QTest::newRow("empty") << "" << 0.0;
        QTest::newRow("blanks only") << "   " << 0.0;
        QTest::newRow("whole") << "72" << 72.0;
        QTest::newRow("leading blanks") << "  72" << 72.0;
        QTest::newRow("tab before") << "\t72" << 72.0;
        QTest::newRow("stops at a letter") << "3a" << 3.0;
        QTest::newRow("stops at a comma") << "70,5" << 70.0;
        QTest::newRow("stops at a blank") << "1 2" << 1.0;
        QTest::newRow("stops at the second point") << "1.5.7" << 1.5;
        QTest::newRow("starts with a letter") << "a3" << 0.0;
        QTest::newRow("decimals") << "70.5" << 70.5;
        QTest::newRow("no digit before the point") << ".5" << 0.5;
        QTest::newRow("minus and no digit before the point") << "-.5" << -0.5;
        QTest::newRow("no digit after the point") << "5." << 5.0;
        QTest::newRow("minus") << "-12" << -12.0;
        QTest::newRow("plus") << "+12" << 12.0;
        QTest::newRow("a sign alone") << "-" << 0.0;
        QTest::newRow("two signs") << "--1" << 0.0;
        QTest::newRow("a point alone") << "." << 0.0;
        QTest::newRow("exponent") << "1e3" << 1000.0;
        QTest::newRow("capital exponent with sign") << "25E-1" << 2.5;
        QTest::newRow("exponent without digits") << "4e" << 4.0;
        QTest::newRow("exponent with a sign only") << "4e+" << 4.0;
        QTest::newRow("an exponent alone") << "e5" << 0.0;
        QTest::newRow("unit after the number") << "20 C" << 20.0;
        QTest::newRow("leading zeros") << "007" << 7.0;
        QTest::newRow("plain number text") << " .5" << 0.5;
        QTest::newRow("digits of other scripts are no digits") << QString::fromUtf8("٣") << 0.0;
        QTest::newRow("nan is not a number") << "nan" << 0.0;
        QTest::newRow("inf is not a number") << "inf" << 0.0;
    }

    void the_number_at_the_start_of_a_text_is_read()
    {
        QFETCH(QString, text);
        QFETCH(double, number);
        QCOMPARE(leading_number(text), number);
    }

    void a_text_is_numeric_if_all_of_it_is_one_number_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("numeric");
        QTest::newRow("whole") << "3" << true;
        QTest::newRow("minus") << "-3" << true;
        QTest::newRow("decimals") << "12.5" << true;
        QTest::newRow("exponent") << "1e3" << true;
        QTest::newRow("blanks around") << " 3 " << true;
        QTest::newRow("no digit before the point") << ".5" << true;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("blanks") << "  " << false;
        QTest::newRow("letter after the number") << "3a" << false;
        QTest::newRow("two numbers") << "1 2" << false;
        QTest::newRow("sign alone") << "-" << false;
        QTest::newRow("point alone") << "." << false;
        QTest::newRow("exponent without digits") << "4e" << false;
        QTest::newRow("two points") << "1.2.3" << false;
        QTest::newRow("comma") << "1,5" << false;
    }

    void a_text_is_numeric_if_all_of_it_is_one_number()
    {
        QFETCH(QString, text);
        QFETCH(bool, numeric);
        QCOMPARE(is_numeric(text), numeric);
    }

    void values_are_rounded_to_the_nearest_and_ties_to_even_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("whole");
        QTest::newRow("0.5") << 0.5 << 0;
        QTest::newRow("1.5") << 1.5 << 2;
        QTest::newRow("2.5") << 2.5 << 2;
        QTest::newRow("3.5") << 3.5 << 4;
        QTest::newRow("-0.5") << -0.5 << 0;
        QTest::newRow("-1.5") << -1.5 << -2;
        QTest::newRow("-2.5") << -2.5 << -2;
        QTest::newRow("2.4") << 2.4 << 2;
        QTest::newRow("2.6") << 2.6 << 3;
        QTest::newRow("-2.6") << -2.6 << -3;
        QTest::newRow("just below a half") << 0.49999999999999994 << 0;
        QTest::newRow("largest") << 32767.4 << 32767;
        QTest::newRow("tie at the lower end") << -32768.5 << -32768;
    }

    void values_are_rounded_to_the_nearest_and_ties_to_even()
    {
        QFETCH(double, value);
        QFETCH(int, whole);
        QCOMPARE(plain(to_int16(value)), whole);
        QCOMPARE(plain(to_int32(value)), whole);
        QCOMPARE(round_half_even(value), static_cast<double>(whole));
    }

    void a_value_that_does_not_fit_fails_with_overflow_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("fits_32_bits");
        QTest::newRow("one above 16 bits") << 32768.0 << true;
        QTest::newRow("tie that is rounded to one above") << 32767.5 << true;
        QTest::newRow("one below 16 bits") << -32769.0 << true;
        QTest::newRow("beyond 32 bits") << 2147483648.0 << false;
        QTest::newRow("far below") << -1e300 << false;
        QTest::newRow("infinity") << std::numeric_limits<double>::infinity() << false;
        QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN() << false;
    }

    void a_value_that_does_not_fit_fails_with_overflow()
    {
        QFETCH(double, value);
        QFETCH(bool, fits_32_bits);
        QVERIFY(failure_of([&] { to_int16(value); }) == failure_kind::overflow);
        QCOMPARE(failure_of([&] { to_int32(value); }) == failure_kind::overflow, !fits_32_bits);
    }

    void a_text_of_a_box_is_converted_to_a_count_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("count");
        QTest::newRow("empty") << "" << 0;
        QTest::newRow("letter after the number") << "3a" << 3;
        QTest::newRow("tie down to even") << "2.5" << 2;
        QTest::newRow("tie up to even") << "3.5" << 4;
        QTest::newRow("minus") << "-4" << -4;
    }

    void a_text_of_a_box_is_converted_to_a_count()
    {
        QFETCH(QString, text);
        QFETCH(int, count);
        QCOMPARE(plain(to_int16(text)), count);
        QCOMPARE(plain(to_int32(text)), count);
    }

    void a_text_of_a_box_with_a_number_too_large_fails_with_overflow()
    {
        QVERIFY(failure_of([] { to_int16(u"99999"); }) == failure_kind::overflow);
        QCOMPARE(plain(to_int32(u"99999")), 99999);
        QVERIFY(failure_of([] { to_int32(u"9999999999"); }) == failure_kind::overflow);
        QVERIFY(failure_of([] { to_int32(u"1e999"); }) == failure_kind::overflow);
    }
};

QTEST_GUILESS_MAIN(test_numbers)
#include "test_numbers.moc"
