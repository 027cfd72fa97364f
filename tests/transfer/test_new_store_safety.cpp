#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include "tests/support/reader.h"
#include "tests/transfer/killed_run.h"
#include "tests/transfer/stored_files.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// A new store that another program makes at the same time.
class test_new_store_safety : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_diary_that_another_program_makes_before_the_lock_is_taken_is_kept()
    {
        const copied_folder folder;
        const auto make_diary = [&folder] {
            if (!QFile::copy(folder.diary, folder.target))
                qFatal("cannot write %s", qPrintable(folder.target));
        };
        QCOMPARE(run_with_step({u"sample"_s, file_argument(folder.target)}, file_use::open,
                               folder.target + u".lock", make_diary),
                 status(exit_status::not_empty));
        QCOMPARE(all_rows(folder.target), all_rows(folder.diary));
    }

    void a_diary_that_another_program_makes_before_the_new_one_gets_its_name_is_kept()
    {
        const copied_folder folder;
        const auto make_diary = [&folder] {
            if (!QFile::copy(folder.diary, folder.target))
                qFatal("cannot write %s", qPrintable(folder.target));
        };
        QCOMPARE(run_with_step({u"sample"_s, file_argument(folder.target)}, file_use::name, folder.target,
                               make_diary),
                 status(exit_status::not_empty));
        QCOMPARE(all_rows(folder.target), all_rows(folder.diary));
    }

    void a_new_file_is_removed_before_the_lock_is_released_if_it_was_not_filled()
    {
        const copied_folder folder;
        // Its rows can be counted and not be copied.
        reader(folder.diary).write(u"alter table partners rename column code to other"_s);
        bool is_left = true;
        QCOMPARE(run_with_step({u"copy"_s, file_argument(folder.diary), file_argument(folder.target)},
                               file_use::remove, folder.target + u".lock",
                               [&] {
                                   is_left = QFile::exists(folder.target) ||
                                             !unfinished_in(QFileInfo(folder.target).path()).isEmpty();
                               }),
                 status(exit_status::failed));
        QVERIFY(!is_left);
        QCOMPARE(QDir(QFileInfo(folder.target).path()).entryList(QDir::Files), QStringList());
    }
};

QTEST_GUILESS_MAIN(test_new_store_safety)
#include "test_new_store_safety.moc"
