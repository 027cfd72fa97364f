#include <QApplication>
#include <QFile>
#include <QTest>

#include <cerrno>
#include <functional>
#include <memory>
#include <vector>

#include "base/language.h"
#include "shell/start_up.h"
#include "store/Connection1.h"
#include "tests/server/failing_round.h"
#include "tests/server/failing_writes.h"
#include "tests/shell/program_run.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failure_boxes.h"
#include "tests/support/other_program.h"
#include "tests/support/store_invariants.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const auto nothing = [] {};

/// Longer than a statement waits for a lock, twenty seconds.
constexpr int longest_ms = 35000;

/// What happens to the file while a round is open: in the process of the program, or in another one.
struct harm {
    const char* name;
    failure_kind kind;
    std::function<void()> inside;
    std::function<void()> outside;
};

std::unique_ptr<other_program> locking_program;

void lock_store()
{
    locking_program = std::make_unique<other_program>(program_run::store_place());
}

const std::vector<harm>& harms()
{
    static const std::vector<harm> all{
        {"disk full", failure_kind::store_full, [] { fail_writes(ENOSPC); }, nothing},
        {"limit on the size of files", failure_kind::store_other, limit_files_to_nothing, nothing},
        {"disk made read-only", failure_kind::store_other, [] { fail_writes(EROFS); }, nothing},
        {"locked by another program", failure_kind::store_locked, nothing, lock_store},
    };
    return all;
}

/// The child process: leaves one hole, and another one after the harm, and expects the message box of the
/// failure.
int fail_in_a_round(failure_kind kind, const std::function<void()>& inside)
{
    play([] { run_verdane(*qApp); },
         [&](hand& user) {
             open_the_round(user);
             leave_hole(user, 1);
             report_and_wait("left");
             user.look(inside);
             leave_hole(user, 2);
             user.answer(failure_box(kind));
         });
    return not_reached;
}

/// Writes everything that is committed into the file itself, and overwrites the only page of a table there.
void damage_table(const reader& store, const QString& table)
{
    const auto moved = store.rows(u"pragma wal_checkpoint(truncate)"_s);
    if (moved[0][0].toInt() != 0)
        qFatal("the program kept the log from being moved into the file");
    const qint64 page_size = store.number(u"pragma page_size"_s);
    const int page = store.number(u"select rootpage from sqlite_master where name = '%1'"_s.arg(table));
    QFile file(file_of(program_run::store_place()));
    if (page < 2 || !file.open(QIODevice::ReadWrite) || !file.seek((page - 1) * page_size) ||
        file.write(QByteArray(page_size, '\xaa')) != page_size)
        qFatal("cannot damage the file");
}

void verify_end(const failed_child& child)
{
    QVERIFY2(child.ended, child.errors.constData());
    QVERIFY2(child.took_ms < longest_ms, qPrintable(QString::number(child.took_ms)));
    QVERIFY2(!child.errors.contains("FAIL!"), child.errors.constData());
    QVERIFY(!child.crashed);
    QVERIFY2(child.status == 1, child.errors.constData());
}

}  // namespace

/// The file of a source of SQLite fails between two holes of a round.
class test_sqlite_failures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_failure_is_reported_in_bounded_time_and_what_was_committed_is_still_stored_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("french");
        for (std::size_t i = 0; i < harms().size(); ++i)
            QTest::newRow(harms()[i].name) << static_cast<int>(i) << (i % 2 == 0);
    }

    void a_failure_is_reported_in_bounded_time_and_what_was_committed_is_still_stored()
    {
        QFETCH(int, index);
        QFETCH(bool, french);
        const harm& what = harms()[static_cast<std::size_t>(index)];
        const program_run run(french ? 1 : 2, one_course() + one_round());
        const failed_child child = run_failing_child({u"--child"_s, QString::number(index)}, what.outside);
        locking_program.reset();
        verify_end(child);
        QCOMPARE(stored_figures(run.store(), 1), figures_of(1));
        QCOMPARE(stored_figures(run.store(), 2), QString(11, u'0'));
        QCOMPARE(broken_invariants(run.store()), QStringList());
        QCOMPARE(run.store().damage(), QString());
        // The next start finds the lock free and the file sound.
        Connection1().Open(program_run::store_place());
    }

    void damage_to_a_table_is_reported_and_the_other_tables_keep_what_was_committed()
    {
        const program_run run(2, one_course() + one_round());
        const failed_child child =
            run_failing_child({u"--damaged"_s}, [&run] { damage_table(run.store(), u"games2"_s); });
        verify_end(child);
        QCOMPARE(run.store().text(u"select long_1 || approach_1 || putt_1 || missed_1 from games"_s),
                 u"2222"_s);
        QCOMPARE(run.store().text(u"select coalesce(long_2, 0) from games"_s), u"0"_s);
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepare_application(application);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == u"--child") {
        const harm& what = harms().at(arguments.value(2).toUInt());
        return fail_in_a_round(what.kind, what.inside);
    }
    if (arguments.value(1) == u"--damaged")
        return fail_in_a_round(failure_kind::store_damaged, nothing);
    test_sqlite_failures test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_sqlite_failures.moc"
