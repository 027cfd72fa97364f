#include <QDir>
#include <QFile>
#include <QTest>

#include <optional>
#include <unistd.h>

#include "store/Connection1.h"
#include "tests/transfer/every_command.h"
#include "tests/transfer/killed_run.h"
#include "tests/transfer/stored_files.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

void every_command_as_rows()
{
    QTest::addColumn<int>("index");
    for (std::size_t i = 0; i < every_command().size(); ++i)
        QTest::newRow(qPrintable(every_command()[i].name)) << static_cast<int>(i);
}

const tested_command& command_at(int index)
{
    return every_command()[static_cast<std::size_t>(index)];
}

/// A second name of a file in a folder of its own.
QString other_name(const QString& path, const QString& way)
{
    if (way == u"name")
        return path;
    const QString other = QFileInfo(path).path() + u"/other/name.db";
    QDir().mkpath(QFileInfo(other).path());
    const bool made =
        way == u"link" ? QFile::link(path, other)
                       : link(QFile::encodeName(path).constData(), QFile::encodeName(other).constData()) == 0;
    if (!made)
        qFatal("cannot make %s", qPrintable(other));
    return other;
}

QStringList unfinished_below(const QString& folder)
{
    return names_below(folder).filter(u"unfinished"_s);
}

}  // namespace

/// Each command of `verdane-store` on a full disk, and while another program uses its stores.
class test_every_refusal : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_store_that_is_in_use_by_any_name_is_refused_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("store");
        QTest::addColumn<QString>("way");
        int index = 0;
        for (const tested_command& command : every_command()) {
            for (const QString& store : command.stores) {
                for (const QString& way : {u"name"_s, u"link"_s, u"hard link"_s})
                    QTest::addRow("%s, %s, %s", qPrintable(command.name), qPrintable(store), qPrintable(way))
                        << index << store << way;
            }
            ++index;
        }
    }

    void a_store_that_is_in_use_by_any_name_is_refused()
    {
        QFETCH(int, index);
        QFETCH(QString, store);
        QFETCH(QString, way);
        const tested_command& command = command_at(index);
        const command_folder folder(command, small_diary());
        const folder_content before = content_of_files(command, folder.path());
        Connection1 user;
        user.Open(other_name(folder.path() + u'/' + store, way));
        QCOMPARE(store_run(folder.arguments()).run(), status(exit_status::in_use));
        user.Close();
        QVERIFY(content_of_files(command, folder.path()) == before);
        QCOMPARE(unfinished_below(folder.path()), QStringList());
    }

    void an_empty_target_that_is_in_use_by_any_name_is_refused_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("way");
        int index = 0;
        for (const tested_command& command : every_command()) {
            for (const QString& way : {u"name"_s, u"link"_s, u"hard link"_s}) {
                if (command.files.contains(u"target.db") && command.again == exit_status::not_empty)
                    QTest::addRow("%s, %s", qPrintable(command.name), qPrintable(way)) << index << way;
            }
            ++index;
        }
    }

    void an_empty_target_that_is_in_use_by_any_name_is_refused()
    {
        QFETCH(int, index);
        QFETCH(QString, way);
        const command_folder folder(command_at(index), small_diary());
        const QString target = folder.path() + u"/target.db";
        Connection1().Open(target);
        const QStringList before = all_rows(target);
        Connection1 user;
        user.Open(other_name(target, way));
        QCOMPARE(store_run(folder.arguments()).run(), status(exit_status::in_use));
        user.Close();
        QCOMPARE(all_rows(target), before);
    }

    void of_two_runs_at_once_the_second_is_refused_data() { every_command_as_rows(); }

    void of_two_runs_at_once_the_second_is_refused()
    {
        QFETCH(int, index);
        const tested_command& command = command_at(index);
        const command_folder whole(command, small_diary());
        const int writes = number_of_writes(whole.arguments());
        const folder_content after = content_of_files(command, whole.path());
        const command_folder folder(command, small_diary());
        int number = 0;
        std::optional<int> of_second;
        const auto of_first = run_by_writes(folder.arguments(), [&] {
            if (++number == writes / 2)
                of_second = store_run(folder.arguments()).run();
        });
        QCOMPARE(of_second, status(exit_status::in_use));
        QCOMPARE(of_first, status(exit_status::done));
        QVERIFY(content_of_files(command, folder.path()) == after);
    }

    void a_full_disk_changes_nothing_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("bytes");
        int index = 0;
        for (const tested_command& command : every_command()) {
            for (const int bytes : {0, 4096, 60'000})
                QTest::addRow("%s, %d bytes", qPrintable(command.name), bytes) << index << bytes;
            ++index;
        }
    }

    /// `check` writes no more than its lock, and some commands write less than the largest size.
    void a_full_disk_changes_nothing()
    {
        QFETCH(int, index);
        QFETCH(int, bytes);
        const tested_command& command = command_at(index);
        const command_folder folder(command, small_diary());
        const folder_content before = content_of_files(command, folder.path());
        store_run run(folder.arguments());
        run.limit_files(static_cast<unsigned long>(bytes));
        const auto ended = run.run();
        QVERIFY2(ended == status(exit_status::failed) || bytes > 0, "no failure");
        QVERIFY2(ended == status(exit_status::failed) || ended == status(exit_status::done),
                 "another status");
        if (ended == status(exit_status::failed)) {
            QVERIFY(content_of_files(command, folder.path()) == before);
            QVERIFY2(run.errors().contains(u"no room left on the disk"), "another failure");
        }
        QCOMPARE(unfinished_below(folder.path()), QStringList());
        QCOMPARE(store_run(folder.arguments()).run(),
                 status(ended == status(exit_status::done) ? command.again : exit_status::done));
    }

    void a_new_store_that_is_not_complete_when_it_is_closed_is_removed_data()
    {
        QTest::addColumn<int>("index");
        for (std::size_t i = 0; i < every_command().size(); ++i) {
            const QString& name = every_command()[i].name;
            if (QStringList{u"check"_s, u"export"_s, u"courses"_s}.contains(name))
                continue;
            QTest::newRow(qPrintable(name)) << static_cast<int>(i);
        }
    }

    /// The log of the new store can be written, but not be copied into its file.
    void a_new_store_that_is_not_complete_when_it_is_closed_is_removed()
    {
        QFETCH(int, index);
        const tested_command& command = command_at(index);
        const command_folder folder(command, small_diary());
        const folder_content before = content_of_files(command, folder.path());
        const limited_run run = run_without_space_for(folder.arguments(), u"/store.db"_s, 8192);
        QVERIFY(run.writes > 1);
        QCOMPARE(run.status, status(exit_status::failed));
        QVERIFY(content_of_files(command, folder.path()) == before);
        QVERIFY(!QFile::exists(folder.path() + u"/target.db"));
        QCOMPARE(unfinished_below(folder.path()), QStringList());
        QCOMPARE(store_run(folder.arguments()).run(), status(exit_status::done));
    }

    void no_file_of_the_engine_is_left_data() { every_command_as_rows(); }

    void no_file_of_the_engine_is_left()
    {
        QFETCH(int, index);
        const tested_command& command = command_at(index);
        const command_folder folder(command, small_diary());
        QCOMPARE(store_run(folder.arguments()).run(), status(exit_status::done));
        for (const QString& ending : {u"-wal"_s, u"-shm"_s, u"-journal"_s, u".lock"_s, u".part"_s})
            QCOMPARE(names_below(folder.path()).filter(ending), QStringList());
        QCOMPARE(unfinished_below(folder.path()), QStringList());
    }
};

QTEST_GUILESS_MAIN(test_every_refusal)
#include "test_every_refusal.moc"
