#include <QTest>

#include <memory>

#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::names_of;
using testing::store_fixture;
using testing::stored_names;

namespace {

/// A recordset on the partners, open, with its rows still to be read: "a" stood in the store then, and
/// "b" has come since. Whoever sees "b" has read the rows only now.
class unread_partners {
public:
    explicit unread_partners(lock_type lock = lock_type::optimistic)
    {
        store.add_partners({u"a"_s});
        rows = store.recordset(u"select * from partners"_s, lock);
        rows->Open(row_reading::when_needed);
        store.add_partners({u"b"_s});
    }

    store_fixture store;
    std::unique_ptr<Recordset> rows;
};

}  // namespace

class test_recordset_deferred : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_rows_are_read_when_something_asks_for_them_data()
    {
        QTest::addColumn<int>("question");
        for (int question = 0; question < 9; ++question)
            QTest::addRow("question %d", question) << question;
    }
    void the_rows_are_read_when_something_asks_for_them()
    {
        QFETCH(int, question);
        const unread_partners partners;
        Recordset& rows = *partners.rows;
        QVERIFY(rows.is_open());
        switch (question) {
        case 0:
            QCOMPARE(rows.RecordCount(), 2);
            break;
        case 1:
            QVERIFY(!rows.eof());
            break;
        case 2:
            QVERIFY(!rows.bof());
            break;
        case 3:
            QVERIFY(!rows.empty());
            break;
        case 4:
            QCOMPARE(rows.position(), 0);
            break;
        case 5:
            rows.MoveLast();
            break;
        case 6:
            rows.Find(u"NAME = 'b'"_s);
            break;
        case 7:
            QCOMPARE(rows.Fields(u"NAME").text(), u"a"_s);
            break;
        default:
            QVERIFY(rows.field_count() > 0);
            break;
        }
        QCOMPARE(names_of(rows), u"a b"_s);
    }

    void the_rows_are_read_once()
    {
        unread_partners partners;
        QCOMPARE(partners.rows->RecordCount(), 2);
        partners.store.add_partners({u"c"_s});
        QCOMPARE(partners.rows->RecordCount(), 2);
        partners.rows->Requery();
        QCOMPARE(partners.rows->RecordCount(), 3);
    }

    void nothing_that_needs_no_row_reads_them_data()
    {
        QTest::addColumn<int>("act");
        for (int act = 0; act < 6; ++act)
            QTest::addRow("act %d", act) << act;
    }
    void nothing_that_needs_no_row_reads_them()
    {
        QFETCH(int, act);
        unread_partners partners;
        Recordset& rows = *partners.rows;
        switch (act) {
        case 0:
            rows.Requery();
            break;
        case 1:
            rows.Update();
            break;
        case 2:
            rows.UpdateBatch();
            break;
        case 3:
            rows.CancelUpdate();
            break;
        case 4:
            QVERIFY(!rows.pending());
            break;
        default:
            rows.drop_pending();
            break;
        }
        partners.store.add_partners({u"c"_s});
        QCOMPARE(names_of(rows), u"a b c"_s);
    }

    void a_row_can_be_added_and_one_removed()
    {
        const unread_partners partners;
        partners.rows->AddNew();
        partners.rows->Fields(u"NAME").set(u"c"_s);
        partners.rows->Update();
        QCOMPARE(stored_names(partners.store), u"a b c"_s);
        partners.rows->Close();
        partners.rows->Open(row_reading::when_needed);
        partners.rows->Delete();
        QCOMPARE(stored_names(partners.store), u"b c"_s);
    }

    void a_batch_without_rows_stores_nothing()
    {
        const unread_partners partners(lock_type::batch_optimistic);
        partners.rows->UpdateBatch();
        QCOMPARE(stored_names(partners.store), u"a b"_s);
        QCOMPARE(partners.rows->RecordCount(), 2);
    }

    void closing_forgets_that_rows_were_to_be_read()
    {
        unread_partners partners;
        partners.rows->Close();
        QVERIFY(failure_of([&] { partners.rows->RecordCount(); }) == failure_kind::misuse);
        partners.rows->Open();
        partners.store.add_partners({u"c"_s});
        QCOMPARE(partners.rows->RecordCount(), 2);
    }

    void a_table_that_is_not_there_comes_out_at_the_first_look()
    {
        store_fixture store;
        const auto rows = store.recordset(u"select * from no_such_table"_s);
        rows->Open(row_reading::when_needed);
        QVERIFY(failure_of([&] { rows->MoveFirst(); }) == failure_kind::missing_table);
        QVERIFY(rows->is_open());
    }
};

QTEST_MAIN(test_recordset_deferred)
#include "test_recordset_deferred.moc"
