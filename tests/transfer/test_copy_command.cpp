#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include "store/Connection1.h"
#include "tests/support/full_diary.h"
#include "tests/support/reader.h"
#include "tests/transfer/stored_files.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using namespace verdane::testing;

namespace {

int rounds_in(const QString& path)
{
    return reader(path).number(u"select count(*) from games"_s);
}

}  // namespace

/// `verdane-store copy` as a child process, from a file to a file.
class test_copy_command : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_copy_has_the_rows_of_the_diary_in_their_order()
    {
        const copied_folder folder;
        store_run run({u"copy"_s, file_argument(folder.diary), file_argument(folder.target)});
        QCOMPARE(run.run(), status(exit_status::done));
        QCOMPARE(all_rows(folder.target), all_rows(folder.diary));
        QVERIFY2(run.output().contains(u"games: 12 rows\n"), qUtf8Printable(run.output()));
        QVERIFY2(run.output().contains(u"Copied and checked: 18 tables, "), qUtf8Printable(run.output()));
    }

    void a_target_with_rows_is_refused_and_not_changed()
    {
        const copied_folder folder;
        create_diary(folder.target, 1, false);
        const QStringList before = all_rows(folder.target);
        QCOMPARE(folder.copy(), status(exit_status::not_empty));
        QCOMPARE(all_rows(folder.target), before);
    }

    void a_new_store_without_rows_is_accepted_as_target()
    {
        const copied_folder folder;
        Connection1().Open(folder.target);
        QCOMPARE(folder.copy(), status(exit_status::done));
        QCOMPARE(rounds_in(folder.target), rounds_of_diary);
    }

    void a_diary_in_use_is_refused()
    {
        const copied_folder folder;
        Connection1 user;
        user.Open(folder.diary);
        QCOMPARE(folder.copy(), status(exit_status::in_use));
        QVERIFY(!QFile::exists(folder.target));
    }

    void a_target_in_use_is_refused()
    {
        const copied_folder folder;
        Connection1 user;
        user.Open(folder.target);
        QCOMPARE(folder.copy(), status(exit_status::in_use));
    }

    void a_target_whose_golf_bag_was_edited_is_refused_data()
    {
        QTest::addColumn<QString>("edit");
        QTest::addColumn<QString>("table");
        QTest::newRow("a name") << u"update sticknames set club_1 = 'Driver'"_s << u"sticknames"_s;
        QTest::newRow("an average") << u"update sticks set avg_3 = 150"_s << u"sticks"_s;
    }

    void a_target_whose_golf_bag_was_edited_is_refused()
    {
        QFETCH(QString, edit);
        QFETCH(QString, table);
        const copied_folder folder;
        Connection1().Open(folder.target);
        reader(folder.target).write(edit);
        const QStringList before = all_rows(folder.target);
        store_run run({u"copy"_s, file_argument(folder.diary), file_argument(folder.target)});
        QCOMPARE(run.run(), status(exit_status::not_empty));
        QVERIFY2(run.errors().contains(u"its golf bag was edited (table " + table + u')'), "another reason");
        QCOMPARE(all_rows(folder.target), before);
    }

    void a_target_with_a_language_only_is_empty()
    {
        const copied_folder folder;
        Connection1().Open(folder.target);
        reader(folder.target).write(u"update settings set language = 2"_s);
        QCOMPARE(folder.copy(), status(exit_status::done));
        QCOMPARE(all_rows(folder.target), all_rows(folder.diary));
    }

    void a_file_that_does_not_exist_is_no_diary_and_is_not_made()
    {
        const QTemporaryDir folder;
        const QString none = folder.filePath(u"none.db"_s);
        store_run run({u"copy"_s, file_argument(none), file_argument(folder.filePath(u"target.db"_s))});
        QCOMPARE(run.run(), status(exit_status::no_diary));
        QVERIFY(!QFile::exists(none));
        QVERIFY(!QFile::exists(folder.filePath(u"target.db"_s)));
    }

    void a_store_without_rows_is_no_diary()
    {
        const QTemporaryDir folder;
        Connection1().Open(folder.filePath(u"empty.db"_s));
        store_run run({u"copy"_s, file_argument(folder.filePath(u"empty.db"_s)),
                       file_argument(folder.filePath(u"target.db"_s))});
        QCOMPARE(run.run(), status(exit_status::no_diary));
        QVERIFY(!QFile::exists(folder.filePath(u"target.db"_s)));
    }

    void an_empty_file_is_no_diary_and_stays_empty()
    {
        const QTemporaryDir folder;
        QFile empty(folder.filePath(u"empty.db"_s));
        QVERIFY(empty.open(QIODevice::WriteOnly));
        empty.close();
        store_run run(
            {u"copy"_s, file_argument(empty.fileName()), file_argument(folder.filePath(u"target.db"_s))});
        QCOMPARE(run.run(), status(exit_status::no_diary));
        QCOMPARE(empty.size(), 0);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{u"empty.db"_s});
    }

    void a_path_with_quotes_accents_blanks_and_place_marks_is_used_as_it_is()
    {
        const QTemporaryDir folder;
        const QString name = u"L'été \"à la mer\" `50 %1`; --"_s;
        const QString diary = folder.filePath(name + u" 1/Verdbase.db");
        const QString target = folder.filePath(name + u" 2/Verdbase.db");
        create_diary(diary, 2, true);
        QCOMPARE(store_run({u"copy"_s, file_argument(diary), file_argument(target)}).run(),
                 status(exit_status::done));
        QCOMPARE(all_rows(target), all_rows(diary));
        store_run again({u"copy"_s, file_argument(diary), file_argument(target)});
        QCOMPARE(again.run(), status(exit_status::not_empty));
        QVERIFY(again.errors().contains(name + u" 2/Verdbase.db is not empty: table games has 2 rows."));
    }

    void a_source_that_is_not_registered_is_reported_in_the_language_of_the_user_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("words");
        QTest::newRow("French") << u"fr_FR.UTF-8"_s << u"n'est pas enregistrée sur cet ordinateur"_s;
        QTest::newRow("English") << u"en_GB.UTF-8"_s << u"is not registered on this computer"_s;
    }

    void a_source_that_is_not_registered_is_reported_in_the_language_of_the_user()
    {
        QFETCH(QString, language);
        QFETCH(QString, words);
        const copied_folder folder;
        const QStringList before = all_rows(folder.diary);
        store_run run({u"copy"_s, file_argument(folder.diary), u"source:nowhere"_s});
        run.set_language(language);
        QCOMPARE(run.run(), status(exit_status::failed));
        const QString errors = run.errors();
        QVERIFY2(errors.contains(words) && errors.endsWith(u"\nnowhere\n"), qPrintable(errors));
        QCOMPARE(all_rows(folder.diary), before);
    }

    void a_wrong_command_line_is_refused_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("nothing") << QStringList();
        QTest::newRow("unknown command") << QStringList{u"move"_s, u"file:a"_s, u"file:b"_s};
        QTest::newRow("one store") << QStringList{u"copy"_s, u"file:a"_s};
        QTest::newRow("three stores") << QStringList{u"copy"_s, u"file:a"_s, u"file:b"_s, u"file:c"_s};
        QTest::newRow("no kind of store") << QStringList{u"copy"_s, u"a"_s, u"file:b"_s};
        QTest::newRow("no name") << QStringList{u"copy"_s, u"file:a"_s, u"source:"_s};
        QTest::newRow("the same store") << QStringList{u"copy"_s, u"file:a"_s, u"file:a"_s};
        QTest::newRow("unknown option") << QStringList{u"--nothing"_s};
    }

    void a_wrong_command_line_is_refused()
    {
        QFETCH(QStringList, arguments);
        QCOMPARE(store_run(arguments).run(), status(exit_status::usage));
    }

    void the_log_of_a_target_that_was_lost_is_kept()
    {
        const copied_folder folder;
        QVERIFY(QDir().mkpath(QFileInfo(folder.target).absolutePath()));
        QFile log(folder.target + u"-wal");
        QVERIFY(log.open(QIODevice::WriteOnly));
        QCOMPARE(log.write("content"), 7);
        log.close();
        QCOMPARE(folder.copy(), status(exit_status::failed));
        QCOMPARE(log.size(), 7);
        QVERIFY(!QFile::exists(folder.target));
    }

    void a_full_disk_leaves_no_copy_data()
    {
        QTest::addColumn<int>("bytes");
        // The lock file, the first page, the tables, the rounds, the shots.
        for (const int bytes : {0, 4096, 40'000, 100'000, 300'000})
            QTest::addRow("%d bytes", bytes) << bytes;
    }

    void a_full_disk_leaves_no_copy()
    {
        QFETCH(int, bytes);
        const copied_folder folder;
        const QStringList before = all_rows(folder.diary);
        store_run run({u"copy"_s, file_argument(folder.diary), file_argument(folder.target)});
        run.limit_files(static_cast<unsigned long>(bytes));
        QCOMPARE(run.run(), status(exit_status::failed));
        QVERIFY2(run.errors().contains(u"no room left on the disk"), "another failure");
        QVERIFY(!QFile::exists(folder.target));
        QCOMPARE(all_rows(folder.diary), before);
        QCOMPARE(folder.copy(), status(exit_status::done));
    }

    void a_copy_that_is_killed_leaves_an_empty_store_that_can_be_used_again_data()
    {
        QTest::addColumn<QString>("table");
        for (const QString& name :
             {u"games"_s, u"games2"_s, u"Stat_rounds"_s, u"partners"_s, u"stats"_s, u"Cryst_hand"_s})
            QTest::newRow(qUtf8Printable(name)) << name;
    }

    void a_copy_that_is_killed_leaves_an_empty_store_that_can_be_used_again()
    {
        QFETCH(QString, table);
        const copied_folder folder;
        store_run run({u"copy"_s, file_argument(folder.diary), file_argument(folder.target)});
        run.start();
        QVERIFY2(run.wait_for(table + u": "_s), qUtf8Printable(run.output()));
        run.kill();
        const int found = rounds_in(folder.target);
        QVERIFY2(found == 0 || found == rounds_of_diary, qUtf8Printable(QString::number(found)));
        QCOMPARE(folder.copy(), status(found == 0 ? exit_status::done : exit_status::not_empty));
        QCOMPARE(all_rows(folder.target), all_rows(folder.diary));
    }
};

QTEST_GUILESS_MAIN(test_copy_command)
#include "test_copy_command.moc"
