#include <QTest>

#include "tests/store/store_fixture.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::store_fixture;

namespace {

void add_shots(store_fixture& store)
{
    store.connection.Execute(
        u"insert into Stat_rounds (date, hole, normal, penval, ts) values ('20030614093000', 1, 4, 1, 1)"_s);
    store.connection.Execute(
        u"insert into Stat_rounds (date, hole, normal, penval, ts) values ('20030614093000', 1, 3, 1, 0)"_s);
}

}  // namespace

/// The statements of the program give the same values on every engine.
class test_statement_dialect : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void an_expression_has_the_value_of_the_embedded_engine_data()
    {
        QTest::addColumn<QString>("expression");
        QTest::addColumn<double>("value");
        QTest::newRow("quotient of whole numbers") << u"SUM(NORMAL)/COUNT(HOLE)"_s << 3.0;
        QTest::newRow("sum of comparisons") << u"ABS(SUM(STAT_ROUNDS.PENVAL=1))"_s << 2.0;
        QTest::newRow("sum of combined comparisons") << u"ABS(SUM(PENVAL=1 and NORMAL<>3))"_s << 1.0;
        QTest::newRow("sum of a yes or no") << u"ABS(SUM(STAT_ROUNDS.TS))"_s << 1.0;
        QTest::newRow("position in a text") << u"max(INSTR(date, '0614'))"_s << 5.0;
        QTest::newRow("true") << u"SUM( true  AND true)"_s << 2.0;
    }
    void an_expression_has_the_value_of_the_embedded_engine()
    {
        QFETCH(QString, expression);
        store_fixture store;
        add_shots(store);
        const auto result = store.opened(u"SELECT "_s + expression + u" FROM STAT_ROUNDS GROUP BY HOLE");
        QTEST(result->Fields(0).to_double(), "value");
    }

    void a_slash_in_a_text_is_kept()
    {
        store_fixture store;
        store.add_partners({u"a/b"_s, u"é/è"_s});
        for (const QString& name : {u"a/b"_s, u"é/è"_s})
            QCOMPARE(store.opened(u"select * from partners where NAME = "_s + quoted(name))->RecordCount(),
                     1);
    }

    void the_case_of_names_of_tables_and_columns_is_ignored()
    {
        store_fixture store;
        add_shots(store);
        for (const QString& statement :
             {u"select * from STAT_ROUNDS"_s, u"SELECT * FROM stat_rounds WHERE DATE='20030614093000'"_s,
              u"select Stat_rounds.hole from Stat_rounds where Hole = 1"_s})
            QCOMPARE(store.opened(statement)->RecordCount(), 2);
        store.connection.Execute(u"DELETE FROM STAT_ROUNDS"_s);
        QVERIFY(store.opened(u"select * from Stat_rounds"_s)->empty());
    }

    void a_row_that_has_the_new_value_already_is_found()
    {
        store_fixture store;
        store.add_partners({u"a"_s});
        const auto partners = store.opened(testing::all_partners);
        store.outside().write(u"update partners set TEL = '1'"_s);
        partners->Fields(u"TEL").set(u"1"_s);
        partners->Update();
        QCOMPARE(store.outside().text(u"select TEL from partners"_s), u"1"_s);
    }

    void a_yes_or_no_of_every_engine_is_one_in_memory()
    {
        store_fixture store;
        add_shots(store);
        const auto shots = store.opened(u"select * from Stat_rounds"_s);
        QCOMPARE(shots->Fields(u"ts").value(), QVariant(true));
        QCOMPARE(shots->Fields(u"hole").value(), QVariant(1));
    }
};

QTEST_GUILESS_MAIN(test_statement_dialect)
#include "test_statement_dialect.moc"
