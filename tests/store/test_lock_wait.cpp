#include <QTest>

#include <functional>

#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"
#include "tests/support/other_program.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::other_program;
using testing::store_fixture;

namespace {

/// The notices that were shown during a test.
struct notices {
    int made = 0;
    int shown = 0;
    int calls = 0;
    /// What the notice does and returns each time it is called.
    std::function<bool(int calls)> keeps_waiting = [](int) { return true; };
};

class counted_notice final : public lock_notice {
public:
    explicit counted_notice(notices& all) : all_(all)
    {
        ++all_.made;
        ++all_.shown;
    }
    ~counted_notice() override { --all_.shown; }
    bool keep_waiting() override { return all_.keeps_waiting(++all_.calls); }

private:
    notices& all_;
};

struct locked_store : store_fixture {
    locked_store()
    {
        add_partners({u"a"_s});
        connection.waiting().set_notice_maker([this] { return std::make_unique<counted_notice>(seen); });
    }

    notices seen;
};

std::unique_ptr<Recordset> partners_with_time_out(locked_store& store, int seconds)
{
    recordset_settings settings;
    settings.name = u"rstest"_s;
    settings.source = testing::all_partners;
    settings.time_out_s = seconds;
    auto partners = std::make_unique<Recordset>(store.connection, settings);
    partners->Open();
    return partners;
}

}  // namespace

/// Statements while another program has locked the store.
class test_lock_wait : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_row_is_stored_once_the_lock_is_free()
    {
        locked_store store;
        other_program other(store.location());
        store.seen.keeps_waiting = [&](int calls) {
            if (calls == 5)
                other.release();
            return true;
        };
        const auto partners = partners_with_time_out(store, 30);
        partners->Fields(u"name").set(u"b"_s);
        partners->Update();
        QCOMPARE(testing::stored_names(store), u"b"_s);
        QCOMPARE(store.seen.made, 1);
        QCOMPARE(store.seen.shown, 0);
    }

    void a_statement_of_the_connection_waits_too()
    {
        locked_store store;
        other_program other(store.location());
        store.seen.keeps_waiting = [&](int) {
            other.release();
            return true;
        };
        store.connection.Execute(u"update partners set NAME = 'b'"_s);
        QCOMPARE(testing::stored_names(store), u"b"_s);
        QCOMPARE(store.seen.made, 1);
        QCOMPARE(store.seen.shown, 0);
    }

    void without_another_program_no_notice_is_shown()
    {
        locked_store store;
        store.connection.Execute(u"update partners set NAME = 'b'"_s);
        QCOMPARE(store.seen.made, 0);
    }

    void after_giving_up_the_commit_fails_as_locked_and_the_row_is_pending()
    {
        locked_store store;
        other_program other(store.location());
        store.seen.keeps_waiting = [](int) { return false; };
        const auto partners = partners_with_time_out(store, 30);
        partners->Fields(u"name").set(u"b"_s);
        QVERIFY(failure_of([&] { partners->Update(); }) == failure_kind::store_locked);
        QVERIFY(partners->pending());
        QCOMPARE(store.seen.calls, 1);
        QCOMPARE(store.seen.shown, 0);
        other.release();
        partners->Update();
        QCOMPARE(testing::stored_names(store), u"b"_s);
    }

    void the_time_out_of_the_recordset_ends_the_wait_data()
    {
        QTest::addColumn<int>("seconds");
        QTest::addColumn<bool>("with_notice");
        QTest::newRow("longer than the quiet second") << 2 << true;
        QTest::newRow("over at once") << 0 << false;
    }

    void the_time_out_of_the_recordset_ends_the_wait()
    {
        QFETCH(int, seconds);
        QFETCH(bool, with_notice);
        locked_store store;
        const other_program other(store.location());
        const auto partners = partners_with_time_out(store, seconds);
        partners->Fields(u"name").set(u"b"_s);
        QVERIFY(failure_of([&] { partners->Update(); }) == failure_kind::store_locked);
        QCOMPARE(store.seen.made, with_notice ? 1 : 0);
        QCOMPARE(store.seen.shown, 0);
    }

    void the_notice_cannot_run_a_statement()
    {
        locked_store store;
        const other_program other(store.location());
        std::optional<failure_kind> met;
        store.seen.keeps_waiting = [&](int) {
            met = failure_of([&] { store.connection.Execute(u"delete from partners"_s); });
            return false;
        };
        const auto partners = partners_with_time_out(store, 30);
        QVERIFY(failure_of([&] { partners->Delete(); }) == failure_kind::store_locked);
        QVERIFY(met == failure_kind::store_locked);
        QCOMPARE(partners->RecordCount(), 1);
    }

    void opening_shows_no_notice()
    {
        locked_store store;
        store.connection.Close();
        const other_program other(store.location());
        QVERIFY(failure_of([&] { store.connection.Open(store.path()); }) == failure_kind::store_locked);
        QCOMPARE(store.seen.made, 0);
    }
};

QTEST_GUILESS_MAIN(test_lock_wait)
#include "test_lock_wait.moc"
