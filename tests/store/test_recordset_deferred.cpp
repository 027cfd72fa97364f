#include <QTest>

#include <memory>

#include "tests/store/store_fixture.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::names_of;
using testing::store_fixture;
using testing::stored_names;

namespace {

/// An open recordset on the partners whose rows have not been read. When it was opened the store had "a"; "b"
/// was added afterwards, so rows with "b" were read later.
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

using operation = void (*)(Recordset&);

struct named_operation {
    const char* name;
    operation run;
};

constexpr named_operation reading_operations[] = {
    {"RecordCount", [](Recordset& rows) { QCOMPARE(rows.RecordCount(), 2); }},
    {"eof", [](Recordset& rows) { QVERIFY(!rows.eof()); }},
    {"bof", [](Recordset& rows) { QVERIFY(!rows.bof()); }},
    {"empty", [](Recordset& rows) { QVERIFY(!rows.empty()); }},
    {"position", [](Recordset& rows) { QCOMPARE(rows.position(), 0); }},
    {"MoveLast", [](Recordset& rows) { rows.MoveLast(); }},
    {"Find", [](Recordset& rows) { rows.Find(u"NAME = 'b'"_s); }},
    {"Fields", [](Recordset& rows) { QCOMPARE(rows.Fields(u"NAME").text(), u"a"_s); }},
    {"field_type", [](Recordset& rows) { QCOMPARE(rows.field_type(0), column_type::text); }},
};

constexpr named_operation other_operations[] = {
    {"Requery", [](Recordset& rows) { rows.Requery(); }},
    {"Update", [](Recordset& rows) { rows.Update(); }},
    {"UpdateBatch", [](Recordset& rows) { rows.UpdateBatch(); }},
    {"CancelUpdate", [](Recordset& rows) { rows.CancelUpdate(); }},
    {"pending", [](Recordset& rows) { QVERIFY(!rows.pending()); }},
};

template <std::size_t Count>
void add_rows(const named_operation (&operations)[Count])
{
    QTest::addColumn<operation>("run");
    for (const named_operation& each : operations)
        QTest::newRow(each.name) << each.run;
}

}  // namespace

Q_DECLARE_METATYPE(operation)

class test_recordset_deferred : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_rows_are_read_by_the_first_function_that_needs_them_data() { add_rows(reading_operations); }

    void the_rows_are_read_by_the_first_function_that_needs_them()
    {
        QFETCH(operation, run);
        const unread_partners partners;
        QVERIFY(partners.rows->is_open());
        run(*partners.rows);
        QCOMPARE(names_of(*partners.rows), u"a b"_s);
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

    void functions_that_need_no_row_do_not_read_them_data() { add_rows(other_operations); }

    void functions_that_need_no_row_do_not_read_them()
    {
        QFETCH(operation, run);
        unread_partners partners;
        run(*partners.rows);
        partners.store.add_partners({u"c"_s});
        QCOMPARE(names_of(*partners.rows), u"a b c"_s);
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

    void after_closing_the_next_open_reads_at_once()
    {
        unread_partners partners;
        partners.rows->Close();
        QVERIFY(failure_of([&] { partners.rows->RecordCount(); }) == failure_kind::misuse);
        partners.rows->Open();
        partners.store.add_partners({u"c"_s});
        QCOMPARE(partners.rows->RecordCount(), 2);
    }

    void a_missing_table_is_a_failure_of_the_first_function_that_needs_rows()
    {
        store_fixture store;
        const auto rows = store.recordset(u"select * from no_such_table"_s);
        rows->Open(row_reading::when_needed);
        QVERIFY(failure_of([&] { rows->MoveFirst(); }) == testing::missing_part_of_engine());
        QVERIFY(rows->is_open());
    }
};

QTEST_MAIN(test_recordset_deferred)
#include "test_recordset_deferred.moc"
