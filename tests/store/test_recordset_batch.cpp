#include <QTest>

#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"
#include "tests/support/refused_change.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::names_of;
using testing::refuse;
using testing::refuse_no_more;
using testing::store_fixture;
using testing::stored_names;

namespace {

const QStringList three{u"a"_s, u"b"_s, u"c"_s};

std::unique_ptr<Recordset> partners_of(store_fixture& store)
{
    return store.opened(u"select * from partners"_s, lock_type::batch_optimistic);
}

void add(Recordset& partners, const char* name)
{
    partners.AddNew();
    partners.Fields(u"name").set(QString::fromLatin1(name));
}

}  // namespace

/// The batch-optimistic lock.
class test_recordset_batch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void changes_are_pending_until_the_batch_update_data()
    {
        QTest::addColumn<int>("rows");
        QTest::newRow("all") << static_cast<int>(affect::all);
        QTest::newRow("all chapters") << static_cast<int>(affect::all_chapters);
    }

    void changes_are_pending_until_the_batch_update()
    {
        QFETCH(int, rows);
        store_fixture store;
        store.add_partners(three);
        const auto partners = partners_of(store);
        partners->Fields(u"name").set(u"A"_s);
        partners->MoveNext();
        partners->Delete();
        add(*partners, "d");
        partners->Update();
        partners->MoveFirst();
        QCOMPARE(stored_names(store), u"a b c"_s);
        QCOMPARE(names_of(*partners), u"A c d"_s);
        QVERIFY(partners->pending());
        partners->UpdateBatch(static_cast<affect>(rows));
        QCOMPARE(stored_names(store), u"A c d"_s);
        QVERIFY(!partners->pending());
    }

    void with_nothing_pending_the_batch_update_does_nothing()
    {
        store_fixture store;
        const auto partners = partners_of(store);
        partners->UpdateBatch();
        partners->UpdateBatch();
        QVERIFY(partners->empty());
    }

    void new_rows_are_stored_in_the_order_in_which_they_were_added()
    {
        store_fixture store;
        const auto hand = store.opened(u"select hnd from HAND "_s, lock_type::batch_optimistic);
        for (const double differential : {12.5, 3.0, 8.25}) {
            hand->AddNew();
            hand->Fields(u"hnd").set(differential);
        }
        QCOMPARE(hand->RecordCount(), 3);
        hand->UpdateBatch(affect::all_chapters);
        hand->Close();
        hand->set_Source(u" select * from hand order by hnd asc"_s);
        hand->Open();
        QStringList sorted;
        for (; !hand->eof(); hand->MoveNext())
            sorted += QString::number(hand->Fields(0).to_double());
        QCOMPARE(sorted.join(u' '), u"3 8.25 12.5"_s);
    }

    void cancel_drops_the_changes_of_the_current_row_only()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = partners_of(store);
        partners->Fields(u"name").set(u"A"_s);
        partners->MoveNext();
        partners->Fields(u"name").set(u"B"_s);
        partners->CancelUpdate();
        add(*partners, "never");
        partners->CancelUpdate();
        QCOMPARE(partners->position(), 1);
        partners->UpdateBatch();
        QCOMPARE(stored_names(store), u"A b c"_s);
    }

    void after_cancel_of_a_new_row_whose_previous_row_was_deleted_the_recordset_is_at_the_end()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = partners_of(store);
        add(*partners, "never");
        partners->MoveFirst();
        partners->Delete();
        partners->MoveLast();
        partners->CancelUpdate();
        QVERIFY(partners->eof());
        QCOMPARE(names_of(*partners), u"b c"_s);
    }

    void a_new_row_that_is_deleted_is_not_stored()
    {
        store_fixture store;
        const auto partners = partners_of(store);
        add(*partners, "never");
        partners->Delete();
        QVERIFY(!partners->pending());
        partners->UpdateBatch();
        QCOMPARE(stored_names(store), QString());
    }

    void a_walk_can_delete_every_row()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = partners_of(store);
        for (; !partners->eof(); partners->MoveNext())
            partners->Delete();
        QCOMPARE(stored_names(store), u"a b c"_s);
        partners->UpdateBatch();
        QCOMPARE(stored_names(store), QString());
    }

    void requery_shows_the_stored_rows_again()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = partners_of(store);
        partners->Fields(u"name").set(u"A"_s);
        partners->MoveNext();
        partners->Delete();
        partners->Requery();
        QVERIFY(!partners->pending());
        QCOMPARE(names_of(*partners), u"a b c"_s);
    }

    void closing_drops_every_change_of_a_batch()
    {
        store_fixture store;
        store.add_partners({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
        const auto partners = partners_of(store);
        add(*partners, "new");
        partners->MoveFirst();
        partners->Delete();
        partners->MoveNext();
        partners->Fields(u"name").set(u"typed"_s);
        partners->Delete();
        partners->MoveNext();
        partners->Fields(u"name").set(u"C"_s);
        partners->Close();
        partners->Open();
        QVERIFY(!partners->pending());
        QCOMPARE(names_of(*partners), u"a b c d"_s);
        partners->UpdateBatch();
        QCOMPARE(stored_names(store), u"a b c d"_s);
    }

    void a_batch_that_fails_in_the_middle_stores_none_of_it_and_keeps_all_of_it()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = partners_of(store);
        partners->Delete();
        partners->MoveNext();
        partners->Fields(u"name").set(u"B"_s);
        add(*partners, "bad");
        store.connection.Execute(refuse(u"insert"_s, u"partners"_s));
        QVERIFY(failure_of([&] { partners->UpdateBatch(); }) == failure_kind::store_other);
        QCOMPARE(stored_names(store), u"a b c"_s);
        QVERIFY(partners->pending());
        store.connection.Execute(refuse_no_more());
        partners->UpdateBatch();
        QCOMPARE(stored_names(store), u"B c bad"_s);
    }
};

QTEST_GUILESS_MAIN(test_recordset_batch)
#include "test_recordset_batch.moc"
