#include <QTest>

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

#include "base/numbers.h"

using namespace verdane;

namespace {

/// The rule in whole-number arithmetic, for 2^-5 <= |value| < 2^45: the 53 bits of the double are multiplied
/// by 10 and divided by a power of two, and the remainder is compared with one half.
double tenth_in_whole_numbers(double value)
{
    int exponent = 0;
    const double fraction = std::frexp(std::fabs(value), &exponent);
    const auto tenfold = static_cast<quint64>(std::ldexp(fraction, 53)) * 10;
    const int shift = 53 - exponent;
    const quint64 half = quint64{1} << (shift - 1);
    const quint64 rest = tenfold & (2 * half - 1);
    quint64 tenths = tenfold >> shift;
    if (rest > half || (rest == half && tenths % 2 == 1))
        ++tenths;
    return std::copysign(static_cast<double>(tenths) / 10, value);
}

/// The result of the C library, which rounds the exact value of the double, too.
double tenth_in_digits(double value)
{
    std::array<char, 400> digits{};
    const int length = std::snprintf(digits.data(), digits.size(), "%.1f", value);
    return QByteArrayView(digits.data(), length).toDouble();
}

}  // namespace

class test_tenths : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_double_is_rounded_by_its_exact_value_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("rounded");
        const auto row = [](const char* name, double value, double rounded) {
            QTest::newRow(name) << value << rounded;
        };
        row("an exact tie is rounded down to even", 12.25, 12.2);
        row("an exact tie is rounded up to even", 12.75, 12.8);
        row("a negative tie is rounded towards 0 to even", -12.25, -12.2);
        row("a negative tie is rounded away from 0 to even", -12.75, -12.8);
        row("the double of 5.65 is above the tie", 5.65, 5.7);
        row("the double of -5.65 is below the tie", -5.65, -5.7);
        row("the double of 16.95 is below the tie", 16.95, 16.9);
        row("the double of -16.95 is above the tie", -16.95, -16.9);
        row("the double of 0.05 is above the tie", 0.05, 0.1);
        row("the double of 0.15 is below the tie", 0.15, 0.1);
        row("the double of 0.35 is below the tie", 0.35, 0.3);
        row("the double of 1.05 is above the tie", 1.05, 1.1);
        row("the double of 1.15 is below the tie", 1.15, 1.1);
        row("a quarter is a tie", 0.25, 0.2);
        row("the double after a tie", std::nextafter(12.25, 13), 12.3);
        row("the double before a tie", std::nextafter(12.75, 12), 12.7);
        row("below", 10.44, 10.4);
        row("above", 10.56, 10.6);
        row("a tenth stays", 16.9, 16.9);
        row("a whole number stays", -17, -17);
        row("0", 0, 0);
        row("the smallest double", std::numeric_limits<double>::denorm_min(), 0);
        row("the double before that of 0.05 is below the tie", std::nextafter(0.05, 0), 0);
        row("the last tie among the large doubles", 0x1p50 + 0.25, 0x1p50 + 0.2);
        row("a double without tenths", 9007199254740993.0, 9007199254740993.0);
        row("the largest double", std::numeric_limits<double>::max(), std::numeric_limits<double>::max());
        row("the lowest double", std::numeric_limits<double>::lowest(),
            std::numeric_limits<double>::lowest());
        row("infinity", std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity());
    }
    void a_double_is_rounded_by_its_exact_value()
    {
        QFETCH(double, value);
        QFETCH(double, rounded);
        // QCOMPARE would accept a neighbouring double.
        QVERIFY2(round_to_tenth(value) == rounded, qPrintable(plain_text(round_to_tenth(value))));
    }

    void values_that_round_to_0_give_0_with_either_sign()
    {
        for (const double value : {-0.0, -0.04, -std::numeric_limits<double>::denorm_min()})
            QVERIFY(round_to_tenth(value) == 0);
    }

    void nan_stays_nan() { QVERIFY(std::isnan(round_to_tenth(std::numeric_limits<double>::quiet_NaN()))); }

    void doubles_of_every_size_agree_with_whole_number_arithmetic()
    {
        std::mt19937_64 engine(5651695);
        for (int i = 0; i < 200000; ++i) {
            const double value = std::ldexp(1.0 + std::ldexp(static_cast<double>(engine() >> 12), -52),
                                            static_cast<int>(engine() % 50) - 5) *
                                 (engine() % 2 == 0 ? 1 : -1);
            const double expected = tenth_in_whole_numbers(value);
            QVERIFY2(round_to_tenth(value) == expected, qPrintable(plain_text(value)));
        }
    }

    void ties_and_their_neighbours_agree_with_whole_number_arithmetic()
    {
        // Every decimal half way between two tenths, up to 1000. Only x.25 and x.75 are exact as doubles.
        for (int hundredths = 5; hundredths < 100000; hundredths += 10) {
            for (const double tie : {hundredths / 100.0, -hundredths / 100.0}) {
                for (const double value : {std::nextafter(tie, -2000), tie, std::nextafter(tie, 2000)})
                    QVERIFY2(round_to_tenth(value) == tenth_in_whole_numbers(value),
                             qPrintable(plain_text(value)));
            }
        }
    }

    void random_doubles_agree_with_the_c_library()
    {
        std::mt19937_64 engine(1225);
        for (int i = 0; i < 50000; ++i) {
            const auto value = std::bit_cast<double>(engine());
            if (std::isfinite(value))
                QVERIFY2(round_to_tenth(value) == tenth_in_digits(value), qPrintable(plain_text(value)));
        }
    }

private:
    static QString plain_text(double value) { return QString::number(value, 'g', 17); }
};

QTEST_APPLESS_MAIN(test_tenths)
#include "test_tenths.moc"
