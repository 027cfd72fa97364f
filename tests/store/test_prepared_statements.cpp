#include <QTest>

#include "store/prepared_statements.h"
#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"
#include "tests/support/refused_change.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::refuse;
using testing::refuse_no_more;
using testing::store_fixture;
using testing::stored_names;

namespace {

const QString all_partners = u"select * from partners"_s;
const QString all_rounds = u"select * from games2"_s;

void add_partner(Recordset& partners, const QString& name, const QVariant& telephone = {})
{
    partners.AddNew();
    partners.Fields(u"NAME").set(name);
    partners.Fields(u"TEL").set(telephone);
    partners.Update();
}

QString stored_telephones(const store_fixture& store)
{
    QStringList texts;
    for (const auto& row : store.outside().rows(u"select TEL from partners order by rowid"_s))
        texts += row[0].isNull() ? u"null"_s : row[0].toString();
    return texts.join(u' ');
}

}  // namespace

/// Writing the same columns repeatedly with one prepared statement.
class test_prepared_statements : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void each_new_row_has_its_own_values_and_nulls()
    {
        store_fixture store;
        const auto partners = store.opened(all_partners);
        add_partner(*partners, u"a"_s, u"1"_s);
        add_partner(*partners, u"b"_s);
        add_partner(*partners, u"c"_s, u"3"_s);
        QCOMPARE(stored_names(store), u"a b c"_s);
        QCOMPARE(stored_telephones(store), u"1 null 3"_s);
    }

    void each_changed_row_has_its_own_values_and_nulls()
    {
        store_fixture store;
        store.add_partners({u"a"_s, u"b"_s, u"c"_s});
        const auto partners = store.opened(all_partners);
        for (const QVariant& value : {QVariant(u"1"_s), QVariant(), QVariant(u"3"_s)}) {
            partners->Fields(u"TEL").set(u"before"_s);
            partners->Update();
            partners->Fields(u"TEL").set(value);
            partners->MoveNext();
        }
        QCOMPARE(stored_telephones(store), u"1 null 3"_s);
    }

    void rows_are_removed_one_after_the_other()
    {
        store_fixture store;
        store.add_partners({u"a"_s, u"b"_s, u"c"_s});
        const auto partners = store.opened(all_partners);
        partners->Delete();
        partners->MoveNext();
        partners->Delete();
        QCOMPARE(stored_names(store), u"c"_s);
    }

    void more_statements_than_are_kept_are_all_run()
    {
        store_fixture store;
        const auto rounds = store.opened(all_rounds);
        rounds->AddNew();
        rounds->Update();
        constexpr int kinds = static_cast<int>(prepared_statements::most_kept) * 2;
        for (int turn = 1; turn <= 2; ++turn) {
            for (int column = 3; column < 3 + kinds; ++column) {
                rounds->Fields(column).set(100 * turn + column);
                rounds->Update();
            }
        }
        const auto row = store.outside().rows(all_rounds).front();
        for (std::size_t column = 3; column < 3 + kinds; ++column)
            QCOMPARE(row[column].toInt(), 200 + static_cast<int>(column));
    }

    void the_next_store_is_written_after_the_first_was_closed()
    {
        store_fixture store;
        store_fixture other;
        other.connection.Close();
        const auto partners = store.opened(all_partners);
        add_partner(*partners, u"a"_s);
        partners->Close();
        store.connection.Close();
        store.connection.Open(other.path());
        partners->Open();
        add_partner(*partners, u"b"_s);
        QCOMPARE(stored_names(other), u"b"_s);
        QCOMPARE(stored_names(store), u"a"_s);
    }

    void a_missing_table_is_a_failure_and_is_written_once_it_exists_again()
    {
        store_fixture store;
        const auto partners = store.opened(all_partners);
        add_partner(*partners, u"a"_s);
        store.outside().write(u"alter table partners rename to away"_s);
        QVERIFY(failure_of([&] { add_partner(*partners, u"b"_s); }) == failure_kind::missing_table);
        QVERIFY(partners->pending());
        store.outside().write(u"alter table away rename to partners"_s);
        partners->Update();
        QCOMPARE(stored_names(store), u"a b"_s);
    }

    void a_refused_row_is_a_failure_with_its_statement_and_can_be_written_later()
    {
        store_fixture store;
        const auto partners = store.opened(all_partners);
        add_partner(*partners, u"a"_s);
        store.outside().write(refuse(u"insert"_s, u"partners"_s));
        partners->AddNew();
        partners->Fields(u"NAME").set(u"b"_s);
        partners->Fields(u"TEL").set(QVariant());
        try {
            partners->Update();
            QFAIL("the row was written");
        } catch (const run_time_failure& failure) {
            QVERIFY2(failure.details().contains(u"INSERT INTO `partners` (`NAME`,`TEL`)"),
                     qUtf8Printable(failure.details()));
            QVERIFY(failure.details().contains(u"refused by the test"));
            QVERIFY(failure.details().contains(u"rstest"));
        }
        store.outside().write(refuse_no_more());
        partners->Update();
        QCOMPARE(stored_names(store), u"a b"_s);
    }

    void a_kept_statement_holds_no_lock()
    {
        store_fixture store;
        const auto partners = store.opened(all_partners);
        add_partner(*partners, u"a"_s);
        partners->MoveFirst();
        partners->Fields(u"TEL").set(u"1"_s);
        partners->Update();
        store.outside().write({u"begin exclusive"_s, u"delete from partners"_s, u"commit"_s});
        QCOMPARE(stored_names(store), QString());
        partners->Fields(u"TEL").set(u"2"_s);
        QVERIFY(failure_of([&] { partners->Update(); }) == failure_kind::misuse);
    }
};

QTEST_GUILESS_MAIN(test_prepared_statements)
#include "test_prepared_statements.moc"
