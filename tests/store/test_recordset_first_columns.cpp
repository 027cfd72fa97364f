#include <QTest>

#include <memory>

#include "store/tables/partners.h"
#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"
#include "tests/support/recordset_columns.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::store_fixture;
using testing::stored_names;

namespace {

namespace at = tables::partners;

const first_columns only_codes{{at::code}};

/// Three partners "a", "b" and "c" with the codes 1, 2 and 3, opened with their codes only.
class coded_partners {
public:
    explicit coded_partners(const QString& statement = u"select * from partners order by NAME desc"_s)
    {
        store.add_partners(testing::three_names);
        rows = store.recordset(statement);
        before_ = store.connection.traffic();
        rows->Open(only_codes);
    }

    qint64 statements() const { return store.connection.traffic().statements - before_.statements; }
    qint64 rows_read() const { return store.connection.traffic().rows - before_.rows; }
    qint64 values_read() const { return store.connection.traffic().values - before_.values; }

    store_fixture store;
    std::unique_ptr<Recordset> rows;

private:
    store_traffic before_;
};

}  // namespace

class test_recordset_first_columns : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opening_reads_one_value_of_each_row()
    {
        const coded_partners partners;
        QCOMPARE(partners.rows_read(), 3);
        QCOMPARE(partners.values_read(), 3);
        QCOMPARE(partners.rows->RecordCount(), 3);
    }

    void moving_and_finding_by_a_column_that_was_read_reads_nothing()
    {
        const coded_partners partners;
        Recordset& rows = *partners.rows;
        rows.MoveLast();
        rows.MoveFirst();
        rows.Find(u"code = 2"_s);
        QCOMPARE(rows.position(), 1);
        QCOMPARE(plain(rows.Fields(at::code).to_int16()), 2);
        QCOMPARE(partners.statements(), 1);
    }

    void the_first_other_value_of_a_row_reads_that_row_once()
    {
        const coded_partners partners;
        Recordset& rows = *partners.rows;
        rows.Find(u"code = 2"_s);
        QCOMPARE(rows.Fields(at::NAME).text(), u"b"_s);
        rows.Fields(at::SURNAME).value();
        rows.MoveFirst();
        rows.Find(u"code = 2"_s);
        rows.Fields(at::NAME).value();
        QCOMPARE(partners.statements(), 2);
        QCOMPARE(partners.rows_read(), 4);
    }

    void rows_keep_the_order_of_the_statement()
    {
        const coded_partners partners;
        QCOMPARE(testing::names_of(*partners.rows), u"c b a"_s);
    }

    void finding_by_another_column_reads_all_rows_with_one_statement()
    {
        const coded_partners partners;
        Recordset& rows = *partners.rows;
        rows.Find(u"NAME = 'a'"_s);
        QCOMPARE(rows.position(), 2);
        QCOMPARE(testing::names_of(rows), u"c b a"_s);
        QCOMPARE(partners.statements(), 2);
    }

    void a_change_is_committed_and_can_be_dropped()
    {
        const coded_partners partners;
        Recordset& rows = *partners.rows;
        rows.Find(u"code = 3"_s);
        rows.Fields(at::NAME).set(u"x"_s);
        rows.CancelUpdate();
        QCOMPARE(rows.Fields(at::NAME).text(), u"c"_s);
        rows.Fields(at::NAME).set(u"y"_s);
        rows.MoveLast();
        QCOMPARE(stored_names(partners.store), u"a b y"_s);
    }

    void a_new_row_has_all_its_values()
    {
        const coded_partners partners;
        Recordset& rows = *partners.rows;
        rows.AddNew();
        rows.Fields(at::NAME).set(u"d"_s);
        rows.Update();
        QCOMPARE(rows.Fields(at::NAME).text(), u"d"_s);
        QVERIFY(rows.Fields(at::SURNAME).is_null());
        QCOMPARE(partners.values_read(), 3);
    }

    void a_row_that_was_removed_from_the_store_fails_when_it_is_read()
    {
        const coded_partners partners;
        Recordset& rows = *partners.rows;
        rows.Find(u"code = 2"_s);
        partners.store.outside().write(u"delete from partners where code = 2"_s);
        QCOMPARE(failure_of([&] { rows.Fields(at::NAME).value(); }), failure_kind::misuse);
    }

    void columns_after_those_of_the_program_are_ignored()
    {
        store_fixture store;
        store.connection.Execute(u"alter table partners add column remark text"_s);
        store.add_partners(testing::three_names);
        const auto rows = store.recordset(u"select * from partners order by NAME"_s);
        rows->Open(only_codes);
        rows->Find(u"code = 2"_s);
        rows->Fields(at::NAME).set(u"x"_s);
        rows->Find(u"NAME = 'c'"_s);
        QCOMPARE(plain(rows->Fields(at::code).to_int16()), 3);
        QCOMPARE(stored_names(store), u"a x c"_s);
    }

    void requery_reads_the_first_columns_again()
    {
        const coded_partners partners;
        partners.store.outside().write(u"delete from partners where code = 2"_s);
        partners.rows->Requery();
        QCOMPARE(partners.rows->RecordCount(), 2);
        QCOMPARE(partners.values_read(), 3 + 2);
    }

    void the_next_open_reads_all_columns()
    {
        const coded_partners partners;
        partners.rows->Close();
        partners.rows->Open();
        QCOMPARE(partners.values_read(), 3 + 3 * testing::column_count(*partners.rows));
    }

    void a_statement_with_a_list_of_columns_is_read_completely()
    {
        const coded_partners partners(u"select NAME, code from partners"_s);
        QCOMPARE(partners.values_read(), 6);
        QCOMPARE(partners.rows->Fields(0).text(), u"a"_s);
    }
};

QTEST_GUILESS_MAIN(test_recordset_first_columns)
#include "test_recordset_first_columns.moc"
