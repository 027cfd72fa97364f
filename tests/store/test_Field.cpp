#include <QTest>

#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::store_fixture;

class test_Field : public QObject {
    Q_OBJECT

private:
    store_fixture store_;

    /// The one field of `select EXPRESSION`.
    std::unique_ptr<Recordset> field_of(const char* expression)
    {
        return store_.opened(u"select " + QString::fromUtf8(expression));
    }

private Q_SLOTS:
    void a_field_is_read_as_a_count_an_amount_or_a_decimal_data()
    {
        QTest::addColumn<QByteArray>("expression");
        QTest::addColumn<int>("count");
        QTest::addColumn<double>("decimal");
        QTest::newRow("number") << QByteArray("42") << 42 << 42.0;
        QTest::newRow("negative") << QByteArray("-3") << -3 << -3.0;
        QTest::newRow("decimal, tie to even") << QByteArray("2.5") << 2 << 2.5;
        QTest::newRow("text") << QByteArray("'17'") << 17 << 17.0;
        QTest::newRow("text with a tail") << QByteArray("'71.3 m'") << 71 << 71.3;
        QTest::newRow("empty text") << QByteArray("''") << 0 << 0.0;
        QTest::newRow("no number") << QByteArray("'abc'") << 0 << 0.0;
    }

    void a_field_is_read_as_a_count_an_amount_or_a_decimal()
    {
        QFETCH(QByteArray, expression);
        QFETCH(int, count);
        QFETCH(double, decimal);
        const auto recordset = field_of(expression.constData());
        const Field field = recordset->Fields(0);
        QCOMPARE(plain(field.to_int16()), count);
        QCOMPARE(plain(field.int16_or_zero()), count);
        QCOMPARE(plain(field.to_int32()), count);
        QCOMPARE(plain(field.int32_or_zero()), count);
        QCOMPARE(field.to_double(), decimal);
        QCOMPARE(field.double_or_zero(), decimal);
    }

    void a_number_outside_its_bits_is_an_overflow()
    {
        QVERIFY(failure_of([&] { field_of("32768")->Fields(0).to_int16(); }) == failure_kind::overflow);
        QVERIFY(failure_of([&] { field_of("-32769")->Fields(0).int16_or_zero(); }) == failure_kind::overflow);
        QVERIFY(failure_of([&] { field_of("'40000'")->Fields(0).to_int16(); }) == failure_kind::overflow);
        QVERIFY(failure_of([&] { field_of("3000000000")->Fields(0).to_int32(); }) == failure_kind::overflow);
        QVERIFY(failure_of([&] { field_of("1e300")->Fields(0).int32_or_zero(); }) == failure_kind::overflow);
        QCOMPARE(plain(field_of("32768")->Fields(0).to_int32()), 32768);
    }

    void null_is_a_failure_unless_the_caller_allows_it()
    {
        const auto recordset = field_of("NULL");
        const Field field = recordset->Fields(0);
        QVERIFY(field.is_null());
        QVERIFY(!field.value().isValid());
        QVERIFY(failure_of([&] { field.text(); }) == failure_kind::invalid_null);
        QVERIFY(failure_of([&] { field.to_int16(); }) == failure_kind::invalid_null);
        QVERIFY(failure_of([&] { field.to_int32(); }) == failure_kind::invalid_null);
        QVERIFY(failure_of([&] { field.to_double(); }) == failure_kind::invalid_null);
        QCOMPARE(field.text_or_empty(), QString());
        QCOMPARE(field.trimmed(), QString());
        QCOMPARE(plain(field.int16_or_zero()), 0);
        QCOMPARE(plain(field.int32_or_zero()), 0);
        QCOMPARE(field.double_or_zero(), 0.0);
        QVERIFY(!field.yes());
    }

    void text_keeps_its_blanks_and_trimmed_removes_them()
    {
        const auto recordset = field_of("'  TOUTES '");
        QCOMPARE(recordset->Fields(0).text(), u"  TOUTES "_s);
        QCOMPARE(recordset->Fields(0).text_or_empty(), u"  TOUTES "_s);
        QCOMPARE(recordset->Fields(0).trimmed(), u"TOUTES"_s);
    }

    void trimming_removes_blanks_only()
    {
        const auto recordset = field_of("' \tTOUTES\n '");
        QCOMPARE(recordset->Fields(0).trimmed(), u"\tTOUTES\n"_s);
    }

    void a_number_is_read_as_text_without_a_leading_blank()
    {
        QCOMPARE(field_of("42")->Fields(0).text(), u"42"_s);
        QCOMPARE(field_of("0.5")->Fields(0).text(), u"0.5"_s);
    }

    void yes_is_any_number_but_zero()
    {
        QVERIFY(field_of("1")->Fields(0).yes());
        QVERIFY(field_of("-1")->Fields(0).yes());
        QVERIFY(!field_of("0")->Fields(0).yes());
    }

    void every_kind_of_value_can_be_set_and_read_back()
    {
        const auto shots = store_.opened(u"select * from Stat_rounds"_s);
        shots->AddNew();
        shots->Fields(u"hole").set(int16(18));
        shots->Fields(u"after").set(u"35"_s);
        shots->Fields(u"before").set(149.6);
        shots->Fields(u"ts").set(true);
        shots->Fields(u"dz").set(0);
        shots->Fields(u"stick").set(u"Pu"_s);
        shots->Fields(u"unit").set(QVariant());
        shots->Update();
        shots->Requery();
        QCOMPARE(plain(shots->Fields(u"hole").to_int16()), 18);
        QCOMPARE(plain(shots->Fields(u"after").to_int16()), 35);
        QCOMPARE(plain(shots->Fields(u"before").to_int16()), 150);
        QCOMPARE(shots->Fields(u"ts").value(), QVariant(true));
        QCOMPARE(shots->Fields(u"dz").value(), QVariant(false));
        QCOMPARE(shots->Fields(u"stick").text(), u"Pu"_s);
        QVERIFY(shots->Fields(u"unit").is_null());
        const auto cost = store_.opened(u"select * from cost"_s);
        cost->AddNew();
        cost->Fields(u"fg").set(int32(99999));
        cost->Update();
        QCOMPARE(plain(cost->Fields(u"fg").to_int32()), 99999);
    }

    void rating_and_slope_are_the_text_of_their_boxes()
    {
        const auto courses = store_.opened(u"select * from vrd_fields"_s);
        courses->AddNew();
        courses->Fields(8).set(u"71.30"_s);
        courses->Fields(9).set(u""_s);
        courses->Update();
        courses->Requery();
        QCOMPARE(courses->Fields(8).text(), u"71.30"_s);
        QCOMPARE(courses->Fields(8).to_double(), 71.3);
        QCOMPARE(courses->Fields(9).to_double(), 0.0);
    }
};

QTEST_GUILESS_MAIN(test_Field)
#include "test_Field.moc"
