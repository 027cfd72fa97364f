#include <QLocale>
#include <QTest>

#include <cmath>
#include <limits>

#include "base/numbers.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;

class test_number_texts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numbers_are_written_for_report_tables_and_for_boxes_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("plain_text");
        QTest::addColumn<QString>("box_text");
        QTest::newRow("zero") << 0.0 << " 0"
                              << "0";
        QTest::newRow("zero with a sign") << -0.0 << " 0"
                                          << "0";
        QTest::newRow("whole") << 72.0 << " 72"
                               << "72";
        QTest::newRow("trailing zeros before the point") << 1200.0 << " 1200"
                                                         << "1200";
        QTest::newRow("negative whole") << -10.0 << "-10"
                                        << "-10";
        QTest::newRow("a half") << 0.5 << " .5"
                                << "0.5";
        QTest::newRow("minus a half") << -0.5 << "-.5"
                                      << "-0.5";
        QTest::newRow("zeros after the point") << 0.05 << " .05"
                                               << "0.05";
        QTest::newRow("decimals") << 16.95 << " 16.95"
                                  << "16.95";
        QTest::newRow("negative decimals") << -1.2 << "-1.2"
                                           << "-1.2";
        QTest::newRow("15 digits of a third") << 1.0 / 3 << " .333333333333333"
                                              << "0.333333333333333";
        QTest::newRow("15 digits of two thirds") << 200.0 / 3 << " 66.6666666666667"
                                                 << "66.6666666666667";
        QTest::newRow("the rounding error of a sum is not shown") << 0.1 + 0.2 << " .3"
                                                                  << "0.3";
        QTest::newRow("rounding carries to a new digit") << 9.9999999999999999 << " 10"
                                                         << "10";
        QTest::newRow("just below one") << 0.99999999999999989 << " 1"
                                        << "1";
        QTest::newRow("large without an exponent") << 1e20 << " 100000000000000000000"
                                                   << "100000000000000000000";
        QTest::newRow("more than 15 digits") << 123456789012345678.0 << " 123456789012346000"
                                             << "123456789012346000";
        QTest::newRow("small without an exponent") << 1e-7 << " .0000001"
                                                   << "0.0000001";
        QTest::newRow("largest count") << 32767.0 << " 32767"
                                       << "32767";
    }

    void numbers_are_written_for_report_tables_and_for_boxes()
    {
        QFETCH(double, value);
        QFETCH(QString, plain_text);
        QFETCH(QString, box_text);
        QCOMPARE(plain_number_text(value), plain_text);
        QCOMPARE(number_text(value), box_text);
    }

    void reading_either_text_gives_the_number_data()
    {
        QTest::addColumn<double>("value");
        for (const double value : {0.0, 0.5, -0.5, 16.95, -10.0, 366.0, 1e20, 1e-7})
            QTest::addRow("%g", value) << value;
    }

    void reading_either_text_gives_the_number()
    {
        QFETCH(double, value);
        QCOMPARE(leading_number(plain_number_text(value)), value);
        QCOMPARE(leading_number(number_text(value)), value);
    }

    void the_locale_changes_neither_reading_nor_writing()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
        QCOMPARE(plain_number_text(1234.5), u" 1234.5"_s);
        QCOMPARE(leading_number(u"1234.5"), 1234.5);
        QCOMPARE(leading_number(u"1234,5"), 1234.0);
        QLocale::setDefault(before);
    }

    void infinity_and_nan_fail_with_overflow()
    {
        QVERIFY(failure_of([] { plain_number_text(std::numeric_limits<double>::infinity()); }) ==
                failure_kind::overflow);
        QVERIFY(failure_of([] { number_text(std::nan("")); }) == failure_kind::overflow);
    }
};

QTEST_GUILESS_MAIN(test_number_texts)
#include "test_number_texts.moc"
