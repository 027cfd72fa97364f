#include <QTest>

#include <functional>
#include <memory>
#include <vector>

#include "store/schema.h"
#include "tests/store/store_fixture.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failures.h"
#include "tests/support/recordset_columns.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::store_fixture;
using testing::stored_names;

namespace {

/// A recordset on the partners "a", "b" and "c", opened with `one_by_one`.
class passing_partners {
public:
    passing_partners()
    {
        store.add_partners({u"a"_s, u"b"_s, u"c"_s});
        rows = store.recordset(u"select * from partners"_s);
        rows->Open(row_reading::one_by_one);
    }

    store_fixture store;
    std::unique_ptr<Recordset> rows;
};

QString names_on_the_way(Recordset& rows)
{
    QStringList names;
    for (; !rows.eof(); rows.MoveNext())
        names << rows.Fields(u"NAME").text();
    return names.join(u' ');
}

}  // namespace

class test_recordset_one_by_one : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void each_row_is_read_once()
    {
        passing_partners partners;
        QCOMPARE(names_on_the_way(*partners.rows), u"a b c"_s);
        QVERIFY(partners.rows->eof());
        partners.rows->MoveNext();
        QVERIFY(partners.rows->eof());
        QVERIFY(failure_of([&] { partners.rows->Fields(0).value(); }) == failure_kind::misuse);
    }

    void columns_have_the_same_ordinals_as_with_all_rows()
    {
        passing_partners partners;
        const auto whole = partners.store.recordset(u"select * from partners"_s);
        whole->Open();
        const auto& columns = find_table(u"partners")->columns;
        QCOMPARE(testing::column_count(*partners.rows), static_cast<int>(columns.size()));
        for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
            const QString& name = columns[static_cast<std::size_t>(i)].name;
            QCOMPARE(partners.rows->Fields(name).ordinal(), i);
            QCOMPARE(whole->Fields(name).ordinal(), i);
            QCOMPARE(partners.rows->Fields(i).value().toString(), whole->Fields(i).value().toString());
        }
    }

    void a_join_can_be_read_one_by_one()
    {
        passing_partners partners;
        const auto pairs =
            partners.store.recordset(u"select one.NAME, other.NAME from partners one, partners other "
                                     u"where one.NAME < other.NAME order by one.NAME, other.NAME"_s);
        pairs->Open(row_reading::one_by_one);
        QStringList met;
        for (; !pairs->eof(); pairs->MoveNext())
            met << pairs->Fields(0).text() + pairs->Fields(1).text();
        QCOMPARE(met, (QStringList{u"ab"_s, u"ac"_s, u"bc"_s}));
    }

    void a_statement_without_rows_is_at_the_end()
    {
        passing_partners partners;
        const auto none = partners.store.recordset(u"select * from partners where NAME = 'z'"_s);
        none->Open(row_reading::one_by_one);
        QVERIFY(none->eof());
        QVERIFY(testing::column_count(*none) > 0);
    }

    void functions_that_need_other_rows_are_misuse_data()
    {
        QTest::addColumn<int>("act");
        for (int act = 0; act < 11; ++act)
            QTest::addRow("act %d", act) << act;
    }
    void functions_that_need_other_rows_are_misuse()
    {
        QFETCH(int, act);
        passing_partners partners;
        Recordset& rows = *partners.rows;
        const std::vector<std::function<void()>> acts{
            [&] { rows.MoveFirst(); },
            [&] { rows.MoveLast(); },
            [&] { rows.MovePrevious(); },
            [&] { rows.Move(2); },
            [&] { rows.MoveTo(1); },
            [&] { rows.Find(u"NAME = 'b'"_s); },
            [&] { rows.Requery(); },
            [&] { (void)rows.RecordCount(); },
            [&] { (void)rows.bof(); },
            [&] { (void)rows.empty(); },
            [&] { (void)rows.value_at(0, 0); },
        };
        QVERIFY(failure_of(acts.at(static_cast<std::size_t>(act))) == failure_kind::misuse);
        QCOMPARE(names_on_the_way(rows), u"a b c"_s);
    }

    void rows_read_one_by_one_cannot_be_written()
    {
        passing_partners partners;
        Recordset& rows = *partners.rows;
        QVERIFY(failure_of([&] { rows.Fields(u"NAME").set(u"z"_s); }) == failure_kind::misuse);
        QVERIFY(failure_of([&] { rows.AddNew(); }) == failure_kind::misuse);
        QVERIFY(failure_of([&] { rows.Delete(); }) == failure_kind::misuse);
        QCOMPARE(stored_names(partners.store), u"a b c"_s);
    }

    void closing_before_the_last_row_releases_the_store()
    {
        passing_partners partners;
        partners.rows->MoveNext();
        partners.rows->Close();
        QVERIFY(failure_of([&] { partners.rows->MoveNext(); }) == failure_kind::misuse);
        partners.rows->Open();
        QCOMPARE(partners.rows->RecordCount(), 3);
        partners.rows->Delete();
        QCOMPARE(stored_names(partners.store), u"b c"_s);
    }

    void a_missing_table_is_a_failure_of_open()
    {
        store_fixture store;
        const auto rows = store.recordset(u"select * from no_such_table"_s);
        QVERIFY(failure_of([&] { rows->Open(row_reading::one_by_one); }) ==
                testing::missing_part_of_engine());
        QVERIFY(!rows->is_open());
        QVERIFY(failure_of([&] { rows->MoveNext(); }) == failure_kind::misuse);
    }
};

QTEST_MAIN(test_recordset_one_by_one)
#include "test_recordset_one_by_one.moc"
