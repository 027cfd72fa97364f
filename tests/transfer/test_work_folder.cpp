#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <sys/stat.h>

#include "store/recovery/work_folder.h"
#include "tests/transfer/killed_run.h"
#include "tests/transfer/stored_files.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

void write_file(const QString& path)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) || file.write("mine") != 4)
        qFatal("cannot write %s", qPrintable(path));
}

struct target_folder {
    /// The folder that a run with that ending would use.
    QString left(const QString& ending = u"Ab12Cd"_s) const { return target + u".unfinished-" + ending; }

    QTemporaryDir folder;
    QString target = folder.filePath(u"L'été [%1]*.db"_s);
};

}  // namespace

/// Folders for files that are not complete.
class test_work_folder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_folder_is_new_belongs_to_the_user_and_is_removed_with_its_files()
    {
        const target_folder folder;
        {
            const work_folder first(folder.target);
            const work_folder second(folder.target);
            QCOMPARE(unfinished_in(folder.folder.path()).size(), 2);
            QVERIFY(first.new_store() != second.new_store());
            struct stat state {};
            QCOMPARE(stat(QFile::encodeName(QFileInfo(first.new_store()).path()).constData(), &state), 0);
            QCOMPARE(state.st_mode & 0777U, 0700U);
            for (const QString& path :
                 QStringList{first.new_store(), first.new_store() + u"-wal", first.read_store(),
                             first.files() + u"/games.csv", first.files() + u"/games.csv.part"})
                write_file(path);
        }
        QCOMPARE(unfinished_in(folder.folder.path()), QStringList());
    }

    void the_folder_of_a_killed_run_is_removed()
    {
        const target_folder folder;
        for (const QString& name :
             {u"/work.lock"_s, u"/store.db"_s, u"/store.db-journal"_s, u"/source.db-shm"_s,
              u"/store.db.lock"_s, u"/source.db.part"_s, u"/files/cost.csv"_s})
            write_file(folder.left() + name);
        QVERIFY(QDir().mkpath(folder.left(u"empty1"_s)));
        remove_unfinished(folder.target);
        QCOMPARE(unfinished_in(folder.folder.path()), QStringList());
    }

    void files_of_somebody_else_are_kept_data()
    {
        QTest::addColumn<QStringList>("paths");
        QTest::newRow("no lock file") << QStringList{u"Ab12Cd/store.db"_s};
        QTest::newRow("another name") << QStringList{u"Ab12Cd/notes.txt"_s, u"Ab12Cd/work.lock"_s};
        QTest::newRow("another table") << QStringList{u"Ab12Cd/files/a b.csv"_s, u"Ab12Cd/work.lock"_s};
        QTest::newRow("another ending") << QStringList{u"Ab12Cde/store.db"_s, u"Ab12Cde/work.lock"_s};
    }

    void files_of_somebody_else_are_kept()
    {
        QFETCH(QStringList, paths);
        const target_folder folder;
        for (const QString& path : paths)
            write_file(folder.left(path));
        remove_unfinished(folder.target);
        QVERIFY(QFile::exists(folder.left(paths.first())));
    }

    void nothing_is_removed_through_a_link()
    {
        const target_folder folder;
        const QString other = folder.folder.filePath(u"other"_s);
        for (const QString& name : {u"/work.lock"_s, u"/store.db"_s, u"/diary.db"_s, u"/tables/games.csv"_s})
            write_file(other + name);
        QVERIFY(QFile::link(other, folder.left()));
        write_file(folder.left(u"second/work.lock"_s));
        QVERIFY(QFile::link(other + u"/diary.db", folder.left(u"second/store.db"_s)));
        QVERIFY(QFile::link(other + u"/tables", folder.left(u"second/files"_s)));
        remove_unfinished(folder.target);
        for (const QString& name : {u"/work.lock"_s, u"/store.db"_s, u"/diary.db"_s, u"/tables/games.csv"_s})
            QVERIFY2(QFile::exists(other + name), qPrintable(name));
    }

    void a_run_makes_another_folder_if_a_second_one_has_removed_its_first()
    {
        const copied_folder folder;
        bool is_removed = false;
        // The folder is empty until its lock is taken.
        QCOMPARE(run_with_step({u"copy"_s, file_argument(folder.diary), file_argument(folder.target)},
                               file_use::open, u"/work.lock"_s,
                               [&] {
                                   remove_unfinished(folder.target);
                                   is_removed = unfinished_in(QFileInfo(folder.target).path()).isEmpty();
                               }),
                 status(exit_status::done));
        QVERIFY(is_removed);
        QCOMPARE(all_rows(folder.target), all_rows(folder.diary));
    }

    void the_folder_of_a_program_that_runs_is_kept()
    {
        const target_folder folder;
        const work_folder used(folder.target);
        write_file(used.new_store());
        remove_unfinished(folder.target);
        QVERIFY(QFile::exists(used.new_store()));
    }
};

QTEST_GUILESS_MAIN(test_work_folder)
#include "test_work_folder.moc"
