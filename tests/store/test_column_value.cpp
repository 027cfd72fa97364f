#include "store/column_value.h"

#include <QTest>

#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;

class test_column_value : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_value_is_converted_to_the_type_of_its_column_data()
    {
        QTest::addColumn<QVariant>("written");
        QTest::addColumn<column_type>("type");
        QTest::addColumn<QVariant>("stored");
        const auto row = [](const char* name, const QVariant& written, column_type type,
                            const QVariant& stored) { QTest::newRow(name) << written << type << stored; };
        const auto text = [](const char* t) { return QVariant(QString::fromUtf8(t)); };
        row("text to count", text("4"), column_type::count, 4);
        row("leading number", text("3a"), column_type::count, 3);
        row("empty text to count", text(""), column_type::count, 0);
        row("blanks before", text("  7"), column_type::count, 7);
        row("tie to even, down", text("2.5"), column_type::count, 2);
        row("tie to even, up", 3.5, column_type::count, 4);
        row("smallest count", -32768, column_type::count, -32768);
        row("greatest count", 32767, column_type::count, 32767);
        row("yes as count", true, column_type::count, 1);
        row("amount", text("70000"), column_type::amount, 70000);
        row("greatest amount", 2147483647, column_type::amount, 2147483647);
        row("text to real", text("120m"), column_type::real, 120.0);
        row("whole to real", 7, column_type::real, 7.0);
        row("number to yes", 1, column_type::yes_no, true);
        row("minus one to yes", -1, column_type::yes_no, true);
        row("zero to no", 0, column_type::yes_no, false);
        row("word to yes", text("True"), column_type::yes_no, true);
        row("text stays as it is", text(" TOUTES"), column_type::text, text(" TOUTES"));
        row("accents stay", text("Dans l'allé"), column_type::text, text("Dans l'allé"));
        row("number to text", 12, column_type::text, text("12"));
        row("decimals to text", 0.5, column_type::text, text("0.5"));
        row("null stays null", QVariant(), column_type::count, QVariant());
        row("null text column", QVariant(), column_type::text, QVariant());
    }

    void a_value_is_converted_to_the_type_of_its_column()
    {
        QFETCH(QVariant, written);
        QFETCH(column_type, type);
        QFETCH(QVariant, stored);
        const QVariant result = converted(written, type);
        QCOMPARE(result.typeId(), stored.typeId());
        QCOMPARE(result, stored);
    }

    void a_number_that_does_not_fit_its_column_is_an_overflow_data()
    {
        QTest::addColumn<QVariant>("written");
        QTest::addColumn<column_type>("type");
        QTest::newRow("count, above") << QVariant(32768) << column_type::count;
        QTest::newRow("count, below") << QVariant(u"-32769"_s) << column_type::count;
        QTest::newRow("count, rounds up") << QVariant(32767.5) << column_type::count;
        QTest::newRow("amount, above") << QVariant(2147483648.0) << column_type::amount;
    }

    void a_number_that_does_not_fit_its_column_is_an_overflow()
    {
        QFETCH(QVariant, written);
        QFETCH(column_type, type);
        QVERIFY(failure_of([&] { converted(written, type); }) == failure_kind::overflow);
    }

    void a_null_text_is_converted_to_the_empty_text()
    {
        const QVariant stored = converted(QVariant(QString()), column_type::text);
        QVERIFY(!stored.isNull());
        QVERIFY(!stored.toString().isNull());
    }
};

QTEST_GUILESS_MAIN(test_column_value)
#include "test_column_value.moc"
