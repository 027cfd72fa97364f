#include <QTest>

#include "scoring/course_checks.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(verdane::hole_refusal)

class test_hole_checks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_length_must_be_numeric_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<hole_refusal>("expected");
        QTest::newRow("whole number") << u"410"_s << hole_refusal::none;
        QTest::newRow("0") << u"0"_s << hole_refusal::none;
        QTest::newRow("negative") << u"-3"_s << hole_refusal::none;
        QTest::newRow("letters") << u"yd"_s << hole_refusal::not_numeric;
        QTest::newRow("empty") << QString() << hole_refusal::not_numeric;
    }
    void a_length_must_be_numeric()
    {
        QFETCH(QString, text);
        QTEST(check_yards(text), "expected");
    }

    void a_stroke_index_must_be_unique_and_under_19_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("others");
        QTest::addColumn<hole_refusal>("expected");
        const QStringList others{u"0"_s, u"5"_s, u"16.6"_s, u"20"_s};
        QTest::newRow("free") << u"7"_s << others << hole_refusal::none;
        QTest::newRow("highest") << u"18"_s << others << hole_refusal::none;
        QTest::newRow("0 of several holes") << u"0"_s << others << hole_refusal::none;
        QTest::newRow("stored as 0") << u"0.5"_s << others << hole_refusal::none;
        QTest::newRow("negative") << u"-1"_s << others << hole_refusal::none;
        QTest::newRow("of another hole") << u"5"_s << others << hole_refusal::index_of_other_hole;
        QTest::newRow("rounded to another") << u"4.7"_s << others << hole_refusal::index_of_other_hole;
        QTest::newRow("the other is rounded") << u"17"_s << others << hole_refusal::index_of_other_hole;
        QTest::newRow("duplicate before limit") << u"20"_s << others << hole_refusal::index_of_other_hole;
        QTest::newRow("too high") << u"19"_s << others << hole_refusal::index_too_high;
        QTest::newRow("stored as 19") << u"18.6"_s << others << hole_refusal::index_too_high;
        QTest::newRow("letters") << u"x"_s << others << hole_refusal::not_numeric;
    }
    void a_stroke_index_must_be_unique_and_under_19()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, others);
        QTEST(check_stroke_index(text, others), "expected");
    }

    void another_stroke_index_beyond_16_bits_is_a_failure()
    {
        QVERIFY(failure_of([] { check_stroke_index(u"1"_s, {u"40000"_s}); }) == failure_kind::overflow);
    }

    void a_par_must_be_0_or_3_to_5_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<hole_refusal>("expected");
        for (const char* par : {"0", "3", "4", "5", "3.5"})
            QTest::newRow(par) << QString::fromLatin1(par) << hole_refusal::none;
        for (const char* par : {"1", "2", "2.9", "5.1", "6", "0.4", "-4"})
            QTest::newRow(par) << QString::fromLatin1(par) << hole_refusal::no_par;
        QTest::newRow("letters") << u"four"_s << hole_refusal::not_numeric;
    }
    void a_par_must_be_0_or_3_to_5()
    {
        QFETCH(QString, text);
        QTEST(check_par(text), "expected");
    }
};

QTEST_MAIN(test_hole_checks)
#include "test_hole_checks.moc"
