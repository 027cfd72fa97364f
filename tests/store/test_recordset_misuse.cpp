#include <QTest>

#include <functional>

#include "tests/store/store_fixture.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::store_fixture;

namespace {

struct operation {
    const char* name;
    std::function<void(Recordset&)> run;
};

const std::vector<operation>& all_operations()
{
    static const std::vector<operation> operations = {
        {"Close", [](Recordset& r) { r.Close(); }},
        {"Requery", [](Recordset& r) { r.Requery(); }},
        {"bof", [](Recordset& r) { r.bof(); }},
        {"eof", [](Recordset& r) { r.eof(); }},
        {"empty", [](Recordset& r) { r.empty(); }},
        {"RecordCount", [](Recordset& r) { r.RecordCount(); }},
        {"position", [](Recordset& r) { r.position(); }},
        {"MoveFirst", [](Recordset& r) { r.MoveFirst(); }},
        {"MoveLast", [](Recordset& r) { r.MoveLast(); }},
        {"MoveNext", [](Recordset& r) { r.MoveNext(); }},
        {"MovePrevious", [](Recordset& r) { r.MovePrevious(); }},
        {"Move", [](Recordset& r) { r.Move(1); }},
        {"MoveTo", [](Recordset& r) { r.MoveTo(0); }},
        {"Find", [](Recordset& r) { r.Find(u"name='a'"_s); }},
        {"Fields by place", [](Recordset& r) { r.Fields(0); }},
        {"Fields by name", [](Recordset& r) { r.Fields(u"name"); }},
        {"field_type", [](Recordset& r) { r.field_type(0); }},
        {"value_at", [](Recordset& r) { r.value_at(0, 0); }},
        {"AddNew", [](Recordset& r) { r.AddNew(); }},
        {"Update", [](Recordset& r) { r.Update(); }},
        {"UpdateBatch", [](Recordset& r) { r.UpdateBatch(); }},
        {"CancelUpdate", [](Recordset& r) { r.CancelUpdate(); }},
        {"Delete", [](Recordset& r) { r.Delete(); }},
    };
    return operations;
}

const std::vector<operation>& current_row_operations()
{
    static const std::vector<operation> operations = {
        {"value", [](Recordset& r) { r.Fields(0).value(); }},
        {"is_null", [](Recordset& r) { r.Fields(0).is_null(); }},
        {"text", [](Recordset& r) { r.Fields(0).text(); }},
        {"trimmed", [](Recordset& r) { r.Fields(0).trimmed(); }},
        {"int16_or_zero", [](Recordset& r) { r.Fields(6).int16_or_zero(); }},
        {"yes", [](Recordset& r) { r.Fields(6).yes(); }},
        {"set", [](Recordset& r) { r.Fields(0).set(u"x"_s); }},
        {"Delete", [](Recordset& r) { r.Delete(); }},
    };
    return operations;
}

void rows_of(const std::vector<operation>& operations)
{
    QTest::addColumn<int>("index");
    for (std::size_t i = 0; i < operations.size(); ++i)
        QTest::addRow("%s", operations[i].name) << static_cast<int>(i);
}

}  // namespace

class test_recordset_misuse : public QObject {
    Q_OBJECT

private:
    store_fixture store_;

private Q_SLOTS:
    void initTestCase() { store_.add_partners({u"a"_s}); }

    void every_function_fails_on_a_closed_recordset_data() { rows_of(all_operations()); }

    void every_function_fails_on_a_closed_recordset()
    {
        QFETCH(int, index);
        const auto partners = store_.recordset(u"select * from partners"_s);
        QVERIFY(failure_of([&] { all_operations()[static_cast<std::size_t>(index)].run(*partners); }) ==
                failure_kind::misuse);
    }

    void there_is_no_field_at_the_end_data() { rows_of(current_row_operations()); }

    void there_is_no_field_at_the_end()
    {
        QFETCH(int, index);
        const auto partners = store_.opened(u"select * from partners"_s);
        partners->MoveNext();
        QVERIFY(failure_of([&] {
                    current_row_operations()[static_cast<std::size_t>(index)].run(*partners);
                }) == failure_kind::misuse);
    }

    void there_is_no_field_on_an_empty_recordset_data() { rows_of(current_row_operations()); }

    void there_is_no_field_on_an_empty_recordset()
    {
        QFETCH(int, index);
        const auto nobody = store_.opened(u"select * from partners where name='nobody'"_s);
        QVERIFY(failure_of([&] { current_row_operations()[static_cast<std::size_t>(index)].run(*nobody); }) ==
                failure_kind::misuse);
    }

    void an_open_recordset_cannot_be_opened()
    {
        const auto partners = store_.opened(u"select * from partners"_s);
        QVERIFY(failure_of([&] { partners->Open(); }) == failure_kind::misuse);
        QCOMPARE(partners->RecordCount(), 1);
    }

    void an_empty_recordset_has_no_first_and_no_last_row()
    {
        const auto games = store_.opened(u"select * from games"_s);
        QVERIFY(failure_of([&] { games->MoveFirst(); }) == failure_kind::misuse);
        QVERIFY(failure_of([&] { games->MoveLast(); }) == failure_kind::misuse);
        QVERIFY(failure_of([&] { games->MoveTo(0); }) == failure_kind::misuse);
    }

    void a_recordset_cannot_be_opened_without_a_connection()
    {
        Connection1 closed;
        Recordset partners(closed, {u"rspartners"_s, u"select * from partners"_s});
        QVERIFY(failure_of([&] { partners.Open(); }) == failure_kind::misuse);
        QVERIFY(failure_of([&] { closed.Execute(u"delete from hand"_s); }) == failure_kind::misuse);
    }

    void a_missing_table_or_column_is_reported_as_missing_data()
    {
        QTest::addColumn<QString>("statement");
        QTest::newRow("table") << u"select * from golfers"_s;
        QTest::newRow("column") << u"select nickname from partners"_s;
        QTest::newRow("order") << u"select * from partners order by nickname"_s;
        QTest::newRow("join") << u"select games.date from games, golfers"_s;
    }

    void a_missing_table_or_column_is_reported_as_missing()
    {
        QFETCH(QString, statement);
        const auto recordset = store_.recordset(statement);
        QVERIFY(failure_of([&] { recordset->Open(); }) == testing::missing_part_of_engine());
        QVERIFY(!recordset->is_open());
    }

    void a_field_outside_the_columns_is_reported_as_missing()
    {
        const auto partners = store_.opened(u"select * from partners"_s);
        QVERIFY(failure_of([&] { partners->Fields(7); }) == failure_kind::missing_table);
        QVERIFY(failure_of([&] { partners->Fields(-1); }) == failure_kind::missing_table);
        QVERIFY(failure_of([&] { partners->Fields(u"nickname"); }) == failure_kind::missing_table);
        QVERIFY(failure_of([&] { partners->field_type(7); }) == failure_kind::missing_table);
    }

    void a_text_that_is_no_statement_is_refused()
    {
        const auto recordset = store_.recordset(u"choose * from partners"_s);
        QVERIFY(failure_of([&] { recordset->Open(); }) == failure_kind::store_other);
    }

    void a_failure_names_the_recordset_and_its_statement()
    {
        const auto partners = store_.opened(u"select * from partners"_s);
        partners->MoveNext();
        try {
            partners->Fields(0).text();
            QFAIL("no failure");
        } catch (const run_time_failure& failure) {
            QVERIFY(failure.details().contains(u"rstest"_s));
            QVERIFY(failure.details().contains(u"select * from partners"_s));
        }
    }

    void a_failed_conversion_names_the_column()
    {
        const auto partners = store_.opened(u"select * from partners"_s);
        try {
            partners->Fields(u"code").set(3e9);
            QFAIL("no failure");
        } catch (const run_time_failure& failure) {
            QCOMPARE(failure.kind(), failure_kind::overflow);
            QVERIFY(failure.details().contains(u"rstest"_s));
            QVERIFY(failure.details().contains(u"code"_s));
        }
        QVERIFY(!partners->pending());
    }
};

QTEST_GUILESS_MAIN(test_recordset_misuse)
#include "test_recordset_misuse.moc"
