#include <QTest>

#include "store/commits.h"
#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"
#include "tests/support/other_program.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::store_fixture;
using testing::stored_names;

namespace {

struct two_partners : store_fixture {
    two_partners()
    {
        add_partners({u"a"_s, u"b"_s});
        partners = opened(testing::all_partners);
    }

    void rename_current(const QString& name)
    {
        partners->Fields(u"NAME").set(name);
        partners->Update();
    }

    void rename_both()
    {
        partners->MoveFirst();
        rename_current(u"c"_s);
        partners->MoveNext();
        rename_current(u"d"_s);
    }

    std::unique_ptr<Recordset> partners;
};

}  // namespace

/// Several commits of recordsets that are made together.
class test_joined_commits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothing_is_committed_before_finish()
    {
        two_partners store;
        joined_commits together(store.connection);
        store.rename_both();
        QCOMPARE(stored_names(store), u"a b"_s);
        together.finish();
        QCOMPARE(stored_names(store), u"c d"_s);
    }

    void a_scope_that_a_failure_ends_commits_what_was_written()
    {
        two_partners store;
        QVERIFY(failure_of([&] {
                    const joined_commits together(store.connection);
                    store.rename_current(u"c"_s);
                    throw run_time_failure(failure_kind::misuse, u"of the test"_s);
                }) == failure_kind::misuse);
        QCOMPARE(stored_names(store), u"c b"_s);
    }

    void no_lock_is_taken_before_the_first_write()
    {
        two_partners store;
        joined_commits together(store.connection);
        store.rename_current(u"a"_s);
        const testing::other_program other(store.location());
        together.finish();
    }

    void rows_that_another_program_committed_meanwhile_are_kept()
    {
        two_partners store;
        joined_commits together(store.connection);
        store.outside().write(u"update partners set NAME = 'x' where NAME = 'b'"_s);
        store.rename_current(u"c"_s);
        together.finish();
        QCOMPARE(stored_names(store), u"c x"_s);
    }
};

QTEST_GUILESS_MAIN(test_joined_commits)
#include "test_joined_commits.moc"
