#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include <unistd.h>

#include "store/Connection1.h"
#include "tests/support/reader.h"
#include "tests/transfer/archived_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

QStringList rows_of(const QString& path, const QString& table)
{
    return all_rows(path).filter(QRegularExpression(u'^' + table + u"\\|"));
}

/// The rounds of a store, on every engine.
int rounds_in(const store_location& store)
{
    return reader(store).number(u"select count(*) from games"_s);
}

}  // namespace

/// `verdane-store archive` as a child process.
class test_archive_command : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_rounds_before_the_day_are_moved_and_nothing_else_changes()
    {
        const divided_rows original = archived_folder().rows();
        const archived_folder folder;
        store_run run(folder.arguments());
        QCOMPARE(run.run(), status(exit_status::done));
        QCOMPARE(run.output(), u"Archived and checked: 5 rounds before 2023-01-06, in "_s +
                                   file_argument(folder.target) + u".\n");
        QVERIFY(folder.is_archived(original));
        for (const QString& path : {folder.diary, folder.target})
            QCOMPARE(store_run({u"check"_s, file_argument(path)}).run(), status(exit_status::done));
        QCOMPARE(unfinished_in(QFileInfo(folder.target).path()), QStringList());
    }

    void the_new_store_has_the_courses_and_partners_of_its_rounds_and_the_bag()
    {
        const archived_folder folder;
        const reader diary(folder.diary);
        diary.write({u"update games2 set PARTNERS = '' where rowid > 1"_s,
                     u"update games2 set PARTNERS = '1507-1266-' where rowid = 1"_s,
                     u"update sticks set avg_1 = 201.5"_s, u"update settings set language = 2"_s});
        const int courses = diary.number(u"select count(distinct CODEF) from games where rowid <= 5"_s);
        const QStringList bag = rows_of(folder.diary, u"sticks"_s);
        QCOMPARE(folder.archive(), status(exit_status::done));
        const reader archive(folder.target);
        QCOMPARE(archive.text(u"select group_concat(code) from (select code from partners order by code)"_s),
                 u"1266,1507"_s);
        QCOMPARE(archive.number(u"select count(*) from vrd_fields"_s), courses);
        QCOMPARE(archive.number(u"select count(*) from field_info"_s), courses);
        QCOMPARE(rows_of(folder.target, u"sticks"_s), bag);
        QCOMPARE(archive.number(u"select language from settings"_s), 2);
    }

    void a_round_with_a_blank_in_a_key_of_its_rows_is_refused_and_nothing_changes_data()
    {
        QTest::addColumn<QString>("key");
        QTest::newRow("after") << u"date || ' '"_s;
        QTest::newRow("before") << u"' ' || date"_s;
    }

    void a_round_with_a_blank_in_a_key_of_its_rows_is_refused_and_nothing_changes()
    {
        QFETCH(QString, key);
        const archived_folder folder;
        const QString moved = key_in_diary(1);
        reader(folder.diary)
            .write(u"update Stat_rounds set date = %1 where date = '%2' and hole = 3"_s.arg(key, moved));
        const QStringList before = all_rows(folder.diary);
        store_run run(folder.arguments());
        QCOMPARE(run.run(), status(exit_status::problems));
        QCOMPARE(run.errors(),
                 u"Table Stat_rounds has a row of the round "_s + moved +
                     u" whose key begins or ends with a blank; it would not be moved. Nothing was "
                     u"changed; run verdane-store check.\n");
        QCOMPARE(all_rows(folder.diary), before);
        QVERIFY(!QFile::exists(folder.target));
        store_run french(folder.arguments());
        french.set_language(u"fr_FR.UTF-8"_s);
        QCOMPARE(french.run(), status(exit_status::problems));
        QVERIFY(french.errors().startsWith(u"La table Stat_rounds a une ligne de la ronde "));
    }

    void a_day_before_all_rounds_changes_nothing()
    {
        const divided_rows original = archived_folder().rows();
        const archived_folder folder;
        store_run run(folder.arguments_for(file_argument(folder.diary), u"2023-01-01"_s));
        run.set_language(u"fr_FR.UTF-8"_s);
        QCOMPARE(run.run(), status(exit_status::done));
        QCOMPARE(run.output(), u"Aucune ronde avant le 2023-01-01. Rien n'a été modifié.\n"_s);
        QVERIFY(folder.rows() == original);
        QVERIFY(!QFile::exists(folder.target));
    }

    void rounds_without_a_key_of_digits_and_shots_without_a_round_stay()
    {
        const archived_folder folder;
        reader(folder.diary)
            .write({u"update games set date = ' ' || date where rowid = 1"_s,
                    u"delete from games where rowid = 2"_s});
        QCOMPARE(folder.archive(), status(exit_status::done));
        QCOMPARE(reader(folder.target).number(u"select count(*) from games"_s), 3);
        QCOMPARE(reader(folder.diary)
                     .number(u"select count(distinct date) from Stat_rounds where date < '20230106'"_s),
                 2);
        QCOMPARE(reader(folder.diary).number(u"select count(*) from games where date like ' %'"_s), 1);
    }

    void an_existing_file_with_other_rounds_is_refused_and_nothing_changes_data()
    {
        QTest::addColumn<QString>("change");
        QTest::newRow("a figure") << u"update games set long_1 = long_1 + 1 where rowid = 3"_s;
        QTest::newRow("a shot fewer") << u"delete from Stat_rounds where rowid = 7"_s;
        QTest::newRow("a round fewer") << u"delete from games where rowid = 1"_s;
        QTest::newRow("a course fewer") << u"delete from vrd_fields where rowid = 1"_s;
        QTest::newRow("a partner fewer") << u"delete from partners where rowid = 1"_s;
        QTest::newRow("a club") << u"update sticks set avg_1 = 77.5"_s;
        QTest::newRow("a name of a club") << u"update sticknames set club_1 = 'Driver'"_s;
        QTest::newRow("a language") << u"update settings set language = 7"_s;
        QTest::newRow("a cost") << u"update cost set au = 9"_s;
    }

    void an_existing_file_with_other_rounds_is_refused_and_nothing_changes()
    {
        QFETCH(QString, change);
        const divided_rows original = archived_folder().rows();
        const archived_folder first;
        QCOMPARE(first.archive(), status(exit_status::done));
        reader(first.target).write(change);
        const archived_folder folder;
        store_run run(QStringList{u"archive"_s, file_argument(folder.diary), day_of_first_kept_round,
                                  file_argument(first.target)});
        QCOMPARE(run.run(), status(exit_status::not_empty));
        QCOMPARE(run.errors(),
                 file_argument(first.target) +
                     u" exists already and does not have exactly the rounds and courses to be moved. "
                     "Nothing was changed; choose a new file.\n");
        QVERIFY(folder.rows() == original);
    }

    void the_file_of_the_diary_by_another_name_is_refused_and_nothing_changes_data()
    {
        QTest::addColumn<bool>("hard");
        QTest::newRow("symbolic link") << false;
        QTest::newRow("hard link") << true;
    }

    void the_file_of_the_diary_by_another_name_is_refused_and_nothing_changes()
    {
        QFETCH(bool, hard);
        const divided_rows original = archived_folder().rows();
        const archived_folder folder;
        const QString other = folder.folder.filePath(u"other.db"_s);
        QCOMPARE((hard ? link : symlink)(QFile::encodeName(folder.diary).constData(),
                                         QFile::encodeName(other).constData()),
                 0);
        // Every round of the diary would be moved.
        store_run run({u"archive"_s, file_argument(folder.diary), u"2030-01-01"_s, file_argument(other)});
        QCOMPARE(run.run(), status(exit_status::usage));
        QCOMPARE(run.errors(),
                 file_argument(other) + u" is the diary itself. Nothing was changed; choose a new file.\n");
        QCOMPARE(store_run({u"copy"_s, file_argument(folder.diary), file_argument(other)}).run(),
                 status(exit_status::usage));
        QVERIFY(folder.rows() == original);
    }

    void a_diary_that_is_in_use_by_another_name_is_refused()
    {
        const divided_rows original = archived_folder().rows();
        const archived_folder folder;
        const QString other = folder.folder.filePath(u"other.db"_s);
        QVERIFY(QFile::link(folder.diary, other));
        Connection1 user;
        user.Open(other);
        QCOMPARE(folder.archive(), status(exit_status::in_use));
        QVERIFY(folder.rows() == original);
        QVERIFY(!QFile::exists(folder.target));
    }

    void an_existing_file_that_is_no_archive_keeps_its_bytes_data()
    {
        QTest::addColumn<QString>("statement");
        QTest::newRow("empty") << QString();
        QTest::newRow("no table") << u"pragma user_version = 7"_s;
        QTest::newRow("tables of another program") << u"create table photos (name)"_s;
    }

    void an_existing_file_that_is_no_archive_keeps_its_bytes()
    {
        QFETCH(QString, statement);
        const archived_folder folder;
        QVERIFY(QDir(folder.folder.path()).mkdir(u"target"_s));
        QFile file(folder.target);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        if (!statement.isEmpty())
            reader(folder.target).write(statement);
        const QByteArray before = content_of(folder.target);
        QCOMPARE(before.isEmpty(), statement.isEmpty());
        QCOMPARE(folder.archive(), status(exit_status::not_empty));
        QCOMPARE(content_of(folder.target), before);
        QCOMPARE(rounds_in(store_location::file(folder.diary)), rounds_of_diary);
    }

    void a_store_in_use_is_refused_and_nothing_changes()
    {
        const divided_rows original = archived_folder().rows();
        const archived_folder folder;
        {
            Connection1 user;
            user.Open(folder.diary);
            QCOMPARE(folder.archive(), status(exit_status::in_use));
        }
        QVERIFY(!QFile::exists(folder.target));
        Connection1 user;
        user.Open(folder.target);
        QCOMPARE(folder.archive(), status(exit_status::in_use));
        QVERIFY(folder.rows() == original);
    }

    void the_log_of_a_lost_file_is_kept()
    {
        const divided_rows original = archived_folder().rows();
        const archived_folder folder;
        QVERIFY(QDir(folder.folder.path()).mkpath(u"target"_s));
        QFile log(folder.target + u"-wal");
        QVERIFY(log.open(QIODevice::WriteOnly) && log.write("content") == 7);
        log.close();
        QCOMPARE(folder.archive(), status(exit_status::failed));
        QCOMPARE(content_of(log.fileName()), QByteArray("content"));
        QVERIFY(folder.rows() == original);
    }

    void rounds_on_the_engine_of_the_tests_are_moved_into_a_file()
    {
        const divided_rows original = archived_folder().rows();
        const archived_folder folder;
        const test_store store;
        QCOMPARE(store_run({u"copy"_s, file_argument(folder.diary), argument_of(store)}).run(),
                 status(exit_status::done));
        QCOMPARE(store_run(folder.arguments_for(argument_of(store), day_of_first_kept_round)).run(),
                 status(exit_status::done));
        QCOMPARE(rounds_in(store.location()), rounds_of_diary - first_kept_round);
        QCOMPARE(rows_divided_at(folder.target, day_of_first_kept_round).before, original.before);
        QCOMPARE(store_run({u"check"_s, argument_of(store)}).run(), status(exit_status::done));
    }

    void half_of_a_full_diary_is_moved()
    {
        const archived_folder folder;
        QVERIFY(QFile::remove(folder.diary));
        create_diary(folder.diary, rounds_of_full_diary, true);
        const QString day = u"2023-07-01"_s;
        const divided_rows original = rows_divided_at(folder.diary, day);
        QCOMPARE(store_run(folder.arguments_for(file_argument(folder.diary), day)).run(),
                 status(exit_status::done));
        QVERIFY(rows_divided_at(folder.target, day).before == original.before);
        QVERIFY(rows_divided_at(folder.diary, day) == (divided_rows{{}, original.from, original.others}));
        QCOMPARE(rounds_in(store_location::file(folder.target)), 181);
        QCOMPARE(rounds_in(store_location::file(folder.diary)), rounds_of_full_diary - 181);
    }

    void a_wrong_command_line_is_refused_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no file") << QStringList{u"file:a"_s, u"2023-01-01"_s};
        QTest::newRow("the same file") << QStringList{u"file:a"_s, u"2023-01-01"_s, u"file:a"_s};
        QTest::newRow("no such day") << QStringList{u"file:a"_s, u"2023-02-30"_s, u"file:b"_s};
        QTest::newRow("another form of a day") << QStringList{u"file:a"_s, u"1/2/2023"_s, u"file:b"_s};
        QTest::newRow("text after a day") << QStringList{u"file:a"_s, u"2023-01-01garbage"_s, u"file:b"_s};
        QTest::newRow("a day with a time") << QStringList{u"file:a"_s, u"2023-01-01T10:00:00"_s, u"file:b"_s};
        QTest::newRow("into a source") << QStringList{u"file:a"_s, u"2023-01-01"_s, u"source:b"_s};
    }

    void a_wrong_command_line_is_refused()
    {
        QFETCH(QStringList, arguments);
        QCOMPARE(store_run(QStringList{u"archive"_s} + arguments).run(), status(exit_status::usage));
    }

    void a_store_without_rows_is_refused()
    {
        const archived_folder folder;
        QCOMPARE(store_run(folder.arguments_for(file_argument(folder.folder.filePath(u"none.db"_s)),
                                                day_of_first_kept_round))
                     .run(),
                 status(exit_status::no_diary));
        QVERIFY(!QFile::exists(folder.target));
    }
};

QTEST_GUILESS_MAIN(test_archive_command)
#include "test_archive_command.moc"
