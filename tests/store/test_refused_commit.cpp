#include <QTest>

#include <sqlite3.h>

#include "store/commits.h"
#include "store/engines/sqlite.h"
#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::store_fixture;
using testing::stored_names;

namespace {

int refuse_commit(void*)
{
    return 1;
}

}  // namespace

/// The embedded engine refuses a commit.
class test_refused_commit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void joined_commits_that_are_refused_store_nothing_and_end_the_transaction()
    {
        store_fixture store;
        store.add_partners({u"a"_s, u"b"_s});
        sqlite3* const engine = engine_handle(store.connection.database());
        {
            joined_commits together(store.connection);
            const auto partners = store.opened(testing::all_partners);
            for (const QString& name : {u"c"_s, u"d"_s}) {
                partners->Fields(u"NAME").set(name);
                partners->Update();
                partners->MoveNext();
            }
            sqlite3_commit_hook(engine, refuse_commit, nullptr);
            QVERIFY(failure_of([&] { together.finish(); }) == failure_kind::store_other);
            sqlite3_commit_hook(engine, nullptr, nullptr);
        }
        QCOMPARE(stored_names(store), u"a b"_s);
        QVERIFY(sqlite3_get_autocommit(engine) != 0);
    }
};

QTEST_GUILESS_MAIN(test_refused_commit)
#include "test_refused_commit.moc"
