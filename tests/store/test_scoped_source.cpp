#include "store/scoped_source.h"

#include <QTest>

#include "tests/store/store_fixture.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::all_partners;
using testing::failure_of;
using testing::names_of;
using testing::store_fixture;

namespace {

const QString last_name_first = u"select * from partners order by NAME desc"_s;
const QString only_b = u"select * from partners where NAME='b'"_s;

}  // namespace

class test_scoped_source : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_statement_is_in_force_within_the_scope_and_the_earlier_one_afterwards()
    {
        store_fixture store;
        store.add_partners(testing::three_names);
        const auto partners = store.recordset(all_partners);
        {
            const scoped_source one(*partners, only_b);
            QCOMPARE(partners->Source(), only_b);
            partners->Open();
            QCOMPARE(names_of(*partners), u"b"_s);
            partners->Close();
        }
        QCOMPARE(partners->Source(), all_partners);
        partners->Open();
        QCOMPARE(names_of(*partners), u"a b c"_s);
    }

    void afterwards_the_statement_is_the_one_that_the_caller_names()
    {
        store_fixture store;
        const auto partners = store.recordset(all_partners);
        {
            const scoped_source one(*partners, only_b, last_name_first);
            // A statement that is set within the scope ends with it, too.
            partners->set_Source(u"select * from partners where NAME='c'"_s);
        }
        QCOMPARE(partners->Source(), last_name_first);
    }

    void a_statement_that_is_left_in_force_remains_after_the_scope()
    {
        store_fixture store;
        const auto partners = store.recordset(all_partners);
        {
            scoped_source one(*partners, only_b, last_name_first);
            one.leave_in_force();
        }
        QCOMPARE(partners->Source(), only_b);
    }

    void a_failure_within_the_scope_restores_the_statement()
    {
        store_fixture store;
        const auto partners = store.recordset(all_partners);
        QVERIFY(failure_of([&] {
                    const scoped_source missing(*partners, u"select * from nobody"_s, last_name_first);
                    partners->Open();
                }) == testing::missing_part_of_engine());
        QCOMPARE(partners->Source(), last_name_first);
        partners->Open();
        QVERIFY(partners->empty());
    }

    void an_open_recordset_keeps_its_rows_until_it_runs_the_statement_again()
    {
        store_fixture store;
        store.add_partners(testing::three_names);
        const auto partners = store.recordset(all_partners);
        {
            const scoped_source one(*partners, only_b);
            partners->Open();
        }
        QCOMPARE(names_of(*partners), u"b"_s);
        partners->Requery();
        QCOMPARE(names_of(*partners), u"a b c"_s);
    }

    void scopes_may_be_nested()
    {
        store_fixture store;
        const auto partners = store.recordset(all_partners);
        {
            const scoped_source outer(*partners, only_b);
            {
                const scoped_source inner(*partners, last_name_first);
                QCOMPARE(partners->Source(), last_name_first);
            }
            QCOMPARE(partners->Source(), only_b);
        }
        QCOMPARE(partners->Source(), all_partners);
    }
};

QTEST_GUILESS_MAIN(test_scoped_source)
#include "test_scoped_source.moc"
