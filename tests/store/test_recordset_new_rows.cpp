#include <QTest>

#include "tests/store/store_fixture.h"
#include "tests/support/recordset_columns.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::all_partners;
using testing::store_fixture;
using testing::stored_names;
using testing::three_names;

/// Rows that are added under the optimistic lock.
class test_recordset_new_rows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_new_row_is_the_last_one_and_is_stored_by_its_commit()
    {
        store_fixture store;
        store.add_partners(three_names);
        const auto partners = store.opened(all_partners);
        partners->AddNew();
        QCOMPARE(partners->position(), 3);
        QCOMPARE(partners->RecordCount(), 4);
        QVERIFY(partners->pending());
        partners->Fields(u"name").set(u"d"_s);
        QCOMPARE(stored_names(store), u"a b c"_s);
        partners->Update();
        QCOMPARE(stored_names(store), u"a b c d"_s);
        QCOMPARE(partners->position(), 3);
        partners->Fields(u"name").set(u"d2"_s);
        partners->MoveLast();
        QCOMPARE(stored_names(store), u"a b c d2"_s);
    }

    void a_new_row_is_still_current_after_a_move_to_the_last_row()
    {
        store_fixture store;
        const auto shots = store.opened(
            u"Select * from Stat_rounds where ( date= '20030614093000' ) and hole = 1 order by shot"_s);
        shots->AddNew();
        shots->Fields(u"normal").set(4);
        shots->MoveLast();
        shots->Fields(u"date").set(u"20030614093000"_s);
        shots->Fields(u"hole").set(1);
        shots->Update();
        shots->Requery();
        QCOMPARE(shots->RecordCount(), 1);
        QCOMPARE(plain(shots->Fields(u"normal").to_int16()), 4);
    }

    void a_new_row_in_memory_is_the_stored_row()
    {
        store_fixture store;
        const auto shots = store.opened(u"select * from Stat_rounds"_s);
        shots->AddNew();
        shots->Fields(u"date").set(u"20030614093000"_s);
        shots->Fields(u"hole").set(u"7"_s);
        shots->Fields(u"ts").set(true);
        shots->Fields(u"unit").set(QString());
        shots->Update();
        const int columns = testing::column_count(*shots);
        QList<QVariant> in_memory;
        for (int i = 0; i < columns; ++i)
            in_memory += shots->Fields(i).value();
        shots->Requery();
        for (int i = 0; i < columns; ++i)
            QCOMPARE(shots->Fields(i).value(), in_memory[i]);
        QVERIFY(!shots->Fields(u"unit").is_null());
    }

    void a_new_row_without_written_columns_has_the_defaults()
    {
        store_fixture store;
        const auto cost = store.opened(u"select * from cost"_s);
        cost->AddNew();
        cost->Update();
        QCOMPARE(store.outside().text(u"select fg||'/'||au from cost where date is null"_s), u"0/0"_s);
    }

    void a_column_set_to_null_does_not_take_its_default()
    {
        store_fixture store;
        const auto cost = store.opened(u"select * from cost"_s);
        cost->AddNew();
        cost->Fields(u"fg").set(QVariant());
        cost->Update();
        QVERIFY(store.outside().value(u"select fg from cost"_s).isNull());
    }

    void after_cancel_of_a_new_row_the_row_before_it_is_current()
    {
        store_fixture store;
        store.add_partners(three_names);
        const auto partners = store.opened(all_partners);
        partners->MoveTo(1);
        partners->AddNew();
        partners->Fields(u"name").set(u"never"_s);
        partners->CancelUpdate();
        QCOMPARE(partners->position(), 1);
        QCOMPARE(partners->RecordCount(), 3);
        partners->MoveLast();
        partners->MoveNext();
        partners->AddNew();
        partners->CancelUpdate();
        QVERIFY(partners->eof());
        QCOMPARE(stored_names(store), u"a b c"_s);
    }

    void cancel_of_the_only_row_leaves_an_empty_recordset()
    {
        store_fixture store;
        const auto games = store.opened(u"select *  from games order by date"_s);
        games->AddNew();
        QVERIFY(!games->eof());
        games->CancelUpdate();
        QVERIFY(games->empty());
        QCOMPARE(store.outside().number(u"select count(*) from games"_s), 0);
    }
};

QTEST_GUILESS_MAIN(test_recordset_new_rows)
#include "test_recordset_new_rows.moc"
