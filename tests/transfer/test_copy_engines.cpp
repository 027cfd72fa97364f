#include <QFile>
#include <QTest>

#include "store/Connection1.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/full_diary.h"
#include "tests/support/reader.h"
#include "tests/transfer/stored_files.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// Runs the program again while a server has not noticed yet that the last program was killed.
std::optional<int> run_when_free(const QStringList& arguments)
{
    constexpr int attempts = 20;
    std::optional<int> result;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        result = store_run(arguments).run();
        if (result != status(exit_status::in_use))
            break;
    }
    return result;
}

}  // namespace

/// `verdane-store copy` between a file and a store on the engine of the tests.
class test_copy_engines : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_diary_is_the_same_after_a_copy_to_the_engine_of_the_tests_and_back()
    {
        const copied_folder folder;
        const test_store other;
        QCOMPARE(store_run({u"copy"_s, file_argument(folder.diary), argument_of(other)}).run(),
                 status(exit_status::done));
        QCOMPARE(store_run({u"copy"_s, argument_of(other), file_argument(folder.target)}).run(),
                 status(exit_status::done));
        QCOMPARE(all_rows(folder.target), all_rows(folder.diary));
        QCOMPARE(store_run({u"copy"_s, file_argument(folder.diary), argument_of(other)}).run(),
                 status(exit_status::not_empty));
    }

    void a_copy_to_the_engine_of_the_tests_that_is_killed_can_be_made_again()
    {
        const copied_folder folder;
        const test_store other;
        store_run run({u"copy"_s, file_argument(folder.diary), argument_of(other)});
        run.start();
        QVERIFY2(run.wait_for(u"Stat_rounds: "_s), qUtf8Printable(run.output()));
        run.kill();
        QCOMPARE(run_when_free({u"copy"_s, file_argument(folder.diary), argument_of(other)}),
                 status(exit_status::done));
        QCOMPARE(reader(other.location()).number(u"select count(*) from games"_s), rounds_of_diary);
    }

    void an_empty_store_on_the_engine_of_the_tests_is_no_diary_and_stays_empty()
    {
        const QTemporaryDir folder;
        const test_store other;
        store_run run({u"copy"_s, argument_of(other), file_argument(folder.filePath(u"target.db"_s))});
        QCOMPARE(run.run(), status(exit_status::no_diary));
        QVERIFY(!QFile::exists(folder.filePath(u"target.db"_s)));
        if (engine_of_tests() == test_engine::mariadb)
            QCOMPARE(reader(other.location()).number(u"select count(*) from sqlite_master"_s), 0);
        else
            QVERIFY(!QFile::exists(file_of(other.location())));
    }

    void a_full_diary_is_the_same_after_a_copy_to_the_engine_of_the_tests_and_back()
    {
        const QTemporaryDir folder;
        const test_store other;
        const QString diary = folder.filePath(u"diary.db"_s);
        const QString target = folder.filePath(u"target.db"_s);
        create_diary(diary, rounds_of_full_diary, true);
        QCOMPARE(store_run({u"copy"_s, file_argument(diary), argument_of(other)}).run(),
                 status(exit_status::done));
        QCOMPARE(store_run({u"copy"_s, argument_of(other), file_argument(target)}).run(),
                 status(exit_status::done));
        QCOMPARE(all_rows(target), all_rows(diary));
    }

    void a_target_on_the_engine_of_the_tests_that_is_in_use_is_refused()
    {
        const copied_folder folder;
        const test_store other;
        Connection1 user;
        user.Open(other.location());
        QCOMPARE(store_run({u"copy"_s, file_argument(folder.diary), argument_of(other)}).run(),
                 status(exit_status::in_use));
    }
};

QTEST_GUILESS_MAIN(test_copy_engines)
#include "test_copy_engines.moc"
