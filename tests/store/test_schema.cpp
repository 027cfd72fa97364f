#include "store/schema.h"

#include <QTest>

#include "tests/store/store_fixture.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::store_fixture;

class test_schema : public QObject {
    Q_OBJECT

private:
    store_fixture store_;

private Q_SLOTS:
    void a_new_row_has_zeros_in_columns_that_are_read_without_a_test_for_null_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("column");
        for (const char* name : {"pen_rule_1", "pen_water_9", "pen_bounds_12", "pen_lost_18", "missed_7"})
            QTest::addRow("%s", name) << u"games"_s << QString::fromLatin1(name);
        for (const char* name : {"sand_1", "recovery_18", "fairway_5", "putt_len_1_1", "putt_len_18_6"})
            QTest::addRow("%s", name) << u"games2"_s << QString::fromLatin1(name);
        for (const char* name : {"fg", "cm", "vt", "ft", "ba", "tee", "tex", "nrt", "lg", "bs", "ln", "au"})
            QTest::addRow("%s", name) << u"cost"_s << QString::fromLatin1(name);
        for (const char* name : {"beyong_hole", "missed", "ts", "dz", "cal", "penval"})
            QTest::addRow("%s", name) << u"Stat_rounds"_s << QString::fromLatin1(name);
    }

    void a_new_row_has_zeros_in_columns_that_are_read_without_a_test_for_null()
    {
        QFETCH(QString, table);
        QFETCH(QString, column);
        const auto recordset = store_.opened(u"select * from " + table);
        recordset->AddNew();
        QCOMPARE(plain(recordset->Fields(column).to_int16()), 0);
        recordset->Fields(u"date").set(u"20030614093000"_s);
        recordset->Update();
        QCOMPARE(store_.outside().text(u"select " + column + u" from " + table), u"0"_s);
        recordset->Delete();
    }

    void the_strokes_of_a_new_row_are_null_data()
    {
        QTest::addColumn<QString>("column");
        for (const char* name : {"long_1", "approach_9", "putt_18"})
            QTest::addRow("%s", name) << QString::fromLatin1(name);
    }

    void the_strokes_of_a_new_row_are_null()
    {
        QFETCH(QString, column);
        const auto recordset = store_.opened(u"select * from games"_s);
        recordset->AddNew();
        QVERIFY(recordset->Fields(column).is_null());
        QCOMPARE(plain(recordset->Fields(column).int16_or_zero()), 0);
        recordset->Fields(u"date").set(u"20030614093000"_s);
        recordset->Update();
        QVERIFY(store_.outside().value(u"select " + column + u" from games").isNull());
        recordset->Delete();
    }

    void a_sum_counts_the_yes_values_of_a_column()
    {
        const auto shots = store_.opened(u"select * from Stat_rounds"_s);
        for (const bool sand : {true, false, true}) {
            shots->AddNew();
            shots->Fields(u"ts").set(sand);
            shots->Update();
        }
        QCOMPARE(store_.outside().number(u"select ABS(SUM(STAT_ROUNDS.TS)) from stat_rounds"_s), 2);
        QVERIFY(shots->Fields(u"ts").yes());
        store_.connection.Execute(u"delete from stat_rounds"_s);
    }

    void a_table_is_found_by_its_name_in_any_case()
    {
        QCOMPARE(find_table(u"STAT_ROUNDS")->name, u"Stat_rounds"_s);
        QVERIFY(find_table(u"rounds") == nullptr);
    }
};

QTEST_GUILESS_MAIN(test_schema)
#include "test_schema.moc"
