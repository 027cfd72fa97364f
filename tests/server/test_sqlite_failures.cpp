#include <QFile>

#include <cerrno>
#include <memory>
#include <vector>

#include "tests/server/failing_writes.h"
#include "tests/server/open_pages.h"
#include "tests/shell/program_run.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/other_program.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const auto nothing = [] {};

/// Longer than a statement waits for a lock, twenty seconds.
constexpr int longest_ms = 35000;

std::unique_ptr<other_program> locking_program;

void lock_store()
{
    locking_program = std::make_unique<other_program>(program_run::store_place());
}

/// What happens to the file while a round is open: in the process of the program, or in another one.
const std::vector<store_harm>& harms()
{
    using enum failure_kind;
    static const std::vector<store_harm> all{
        {u"disk full"_s, store_full, nothing, nothing, [] { fail_writes(ENOSPC); }, nothing, longest_ms},
        {u"limit on the size of files"_s, store_other, nothing, nothing, limit_files_to_nothing, nothing,
         longest_ms},
        {u"disk made read-only"_s, store_other, nothing, nothing, [] { fail_writes(EROFS); }, nothing,
         longest_ms},
        {u"locked by another program"_s, store_locked, nothing, lock_store, nothing,
         [] { locking_program.reset(); }, longest_ms},
    };
    return all;
}

const store_harm& damage()
{
    static const store_harm harm{
        u"damaged"_s, failure_kind::store_damaged, nothing, nothing, nothing, nothing, longest_ms};
    return harm;
}

const store_harm& file_harm(const QString& name)
{
    for (const store_harm& each : harms()) {
        if (each.name == name)
            return each;
    }
    if (name != damage().name)
        qFatal("no harm is called %s", qUtf8Printable(name));
    return damage();
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

}  // namespace

/// The file of a source of SQLite fails while a round is open.
class test_sqlite_failures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_failure_is_reported_in_bounded_time_and_what_was_committed_is_still_stored_data()
    {
        QTest::addColumn<QString>("harm");
        QTest::addColumn<bool>("french");
        bool french = true;
        for (const store_harm& harm : harms()) {
            QTest::newRow(qPrintable(harm.name)) << harm.name << french;
            french = !french;
        }
    }

    void a_failure_is_reported_in_bounded_time_and_what_was_committed_is_still_stored()
    {
        QFETCH(QString, harm);
        QFETCH(bool, french);
        const QStringList faults = faults_on_page(page_called(u"a hole is left"_s), file_harm(harm), french);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    void a_full_disk_is_reported_on_each_page_and_what_was_committed_is_still_stored_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<bool>("french");
        for (const open_page& page : open_pages()) {
            for (const bool french : {true, false}) {
                QTest::addRow("%s, %s", qPrintable(page.name), french ? "French" : "English")
                    << page.name << french;
            }
        }
    }

    void a_full_disk_is_reported_on_each_page_and_what_was_committed_is_still_stored()
    {
        QFETCH(QString, page);
        QFETCH(bool, french);
        const QStringList faults = faults_on_page(page_called(page), file_harm(u"disk full"_s), french);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    void damage_to_a_table_is_reported_and_the_other_tables_keep_what_was_committed()
    {
        const program_run run(2, one_course() + one_round());
        const failed_child child =
            run_failing_child(arguments_of_child(page_called(u"a hole is left"_s), damage()),
                              [&run] { damage_table(run.store(), u"games2"_s); });
        QCOMPARE(faults_of_end(child, longest_ms), QStringList());
        QCOMPARE(run.store().text(u"select long_1 || approach_1 || putt_1 || missed_1 from games"_s),
                 u"2222"_s);
        QCOMPARE(run.store().text(u"select coalesce(long_2, 0) from games"_s), u"0"_s);
    }
};

int main(int argc, char** argv)
{
    return page_test_main<test_sqlite_failures>(argc, argv, file_harm);
}

#include "test_sqlite_failures.moc"
