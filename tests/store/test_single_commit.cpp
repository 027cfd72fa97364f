#include <QTest>

#include "store/commits.h"
#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::store_fixture;
using testing::stored_names;

namespace {

void add(Recordset& partners, const char* name)
{
    partners.AddNew();
    partners.Fields(u"name").set(QString::fromLatin1(name));
    partners.Update();
}

}  // namespace

class test_single_commit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void all_changes_are_committed_by_finish()
    {
        store_fixture store;
        const auto partners = store.opened(u"select * from partners"_s);
        single_commit together(store.connection);
        add(*partners, "a");
        add(*partners, "b");
        QCOMPARE(stored_names(store), QString());
        together.finish();
        QCOMPARE(stored_names(store), u"a b"_s);
    }

    void without_finish_nothing_is_stored()
    {
        store_fixture store;
        const auto partners = store.opened(u"select * from partners"_s);
        add(*partners, "a");
        {
            const single_commit together(store.connection);
            add(*partners, "b");
        }
        QCOMPARE(stored_names(store), u"a"_s);
        // The connection can begin the next commit.
        add(*partners, "c");
        QCOMPARE(stored_names(store), u"a c"_s);
    }

    void a_commit_within_another_fails()
    {
        store_fixture store;
        const single_commit together(store.connection);
        QVERIFY(failure_of([&] { single_commit{store.connection}; }).has_value());
    }

    void a_commit_ends_without_a_failure_if_its_transaction_has_ended()
    {
        store_fixture store;
        const auto partners = store.opened(u"select * from partners"_s);
        {
            const single_commit together(store.connection);
            add(*partners, "a");
            store.connection.Execute(u"ROLLBACK"_s);
        }
        QCOMPARE(stored_names(store), QString());
    }
};

QTEST_GUILESS_MAIN(test_single_commit)
#include "test_single_commit.moc"
