#include <QTest>

#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::all_partners;
using testing::failure_of;
using testing::store_fixture;
using testing::stored_names;
using testing::three_names;

/// Rows that are deleted, and the position afterwards.
class test_recordset_delete : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void delete_removes_the_row_at_once_and_no_row_is_current()
    {
        store_fixture store;
        store.add_partners(three_names);
        const auto partners = store.opened(all_partners);
        partners->MoveNext();
        partners->Delete();
        QCOMPARE(stored_names(store), u"a c"_s);
        QCOMPARE(partners->RecordCount(), 2);
        QCOMPARE(partners->position(), -1);
        QVERIFY(!partners->bof());
        QVERIFY(!partners->eof());
        QVERIFY(failure_of([&] { partners->Fields(0).text(); }) == failure_kind::misuse);
        QVERIFY(failure_of([&] { partners->Delete(); }) == failure_kind::misuse);
        partners->MoveNext();
        QCOMPARE(partners->Fields(0).text(), u"c"_s);
    }

    void the_previous_row_of_a_deleted_one_is_the_row_before_it()
    {
        store_fixture store;
        store.add_partners(three_names);
        const auto partners = store.opened(all_partners);
        partners->MoveLast();
        partners->Delete();
        QVERIFY(!partners->eof());
        partners->MovePrevious();
        QCOMPARE(partners->Fields(0).text(), u"b"_s);
        partners->Delete();
        partners->UpdateBatch();
        partners->MoveNext();
        QVERIFY(partners->eof());
        QCOMPARE(stored_names(store), u"a"_s);
    }

    void after_all_rows_are_deleted_the_recordset_is_at_both_ends()
    {
        store_fixture store;
        store.add_partners({u"a"_s});
        const auto partners = store.opened(all_partners);
        partners->Delete();
        QVERIFY(partners->bof());
        QVERIFY(partners->eof());
        partners->MoveNext();
        partners->UpdateBatch();
        QVERIFY(partners->eof());
    }

    void a_walk_can_delete_every_row()
    {
        store_fixture store;
        store.add_partners(three_names);
        const auto partners = store.opened(all_partners);
        for (; !partners->eof(); partners->MoveNext())
            partners->Delete();
        QCOMPARE(store.outside().number(u"select count(*) from partners"_s), 0);
    }

    void a_walk_can_delete_some_rows()
    {
        store_fixture store;
        store.add_partners({u"x"_s, u"x"_s, u"b"_s, u"x"_s});
        const auto partners = store.opened(all_partners);
        for (partners->MoveFirst(); !partners->eof(); partners->MoveNext()) {
            if (partners->Fields(0).text() == u"x")
                partners->Delete();
        }
        partners->UpdateBatch();
        QCOMPARE(stored_names(store), u"b"_s);
    }

    void delete_of_a_row_that_no_longer_exists_is_no_failure()
    {
        store_fixture store;
        store.add_partners(three_names);
        const auto partners = store.opened(all_partners);
        store.connection.Execute(u"delete from partners where name='a'"_s);
        partners->Delete();
        QCOMPARE(stored_names(store), u"b c"_s);
    }

    void a_new_row_can_be_deleted_before_its_commit()
    {
        store_fixture store;
        const auto partners = store.opened(all_partners);
        partners->AddNew();
        partners->Delete();
        QVERIFY(partners->empty());
        QVERIFY(!partners->pending());
        partners->MoveNext();
        QCOMPARE(store.outside().number(u"select count(*) from partners"_s), 0);
    }
};

QTEST_GUILESS_MAIN(test_recordset_delete)
#include "test_recordset_delete.moc"
