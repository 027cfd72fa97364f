#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include <sys/stat.h>
#include <utility>
#include <vector>

#include "store/Connection1.h"
#include "tests/support/full_diary.h"
#include "tests/support/reader.h"
#include "tests/transfer/killed_run.h"
#include "tests/transfer/stored_files.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

void write_file(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

void set_modes(const std::vector<std::pair<QString, mode_t>>& modes)
{
    for (const auto& [path, mode] : modes) {
        if (chmod(QFile::encodeName(path).constData(), mode) != 0)
            qFatal("cannot change the permissions of %s", qUtf8Printable(path));
    }
}

/// A folder with a diary, and with a copy that has fewer rounds.
struct restored_folder : copied_folder {
    restored_folder()
    {
        if (!QFile::copy(diary, copy_path))
            qFatal("cannot write %s", qUtf8Printable(copy_path));
        reader(copy_path).write(u"delete from games where date > '%1'"_s.arg(key_in_diary(3)));
    }

    QStringList arguments() const { return arguments_for(diary); }
    QStringList arguments_for(const QString& place) const
    {
        return {u"restore"_s, file_argument(copy_path), file_argument(place)};
    }
    std::optional<int> restore() const { return store_run(arguments()).run(); }

    /// Makes a link to the diary in a folder of its own.
    QString make_link() const
    {
        const QString link = folder.filePath(u"links/linked.db"_s);
        if (!QDir(folder.path()).mkpath(u"links"_s) || !QFile::link(diary, link))
            qFatal("cannot make %s", qUtf8Printable(link));
        return link;
    }

    QStringList kept() const
    {
        const QDir copies(folder.filePath(u"copies"_s));
        return copies.entryList({u"*-replaced*"_s}, QDir::Files);
    }
    QString kept_path() const { return folder.filePath(u"copies/"_s + kept().value(0)); }

    /// The files next to the diary, without those of the engine that have no rows.
    QStringList files() const
    {
        QStringList names;
        for (const QFileInfo& file : QDir(folder.path()).entryInfoList(QDir::Files)) {
            const QString name = file.fileName();
            if (!name.endsWith(u".lock") && !name.endsWith(u"-shm") && file.size() > 0)
                names << name;
        }
        return names;
    }

    QString copy_path = folder.filePath(u"copy.db"_s);
};

}  // namespace

/// `verdane-store restore` as a child process.
class test_restore_command : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_copy_is_put_in_place_and_the_old_file_is_kept()
    {
        const restored_folder folder;
        const QStringList old = all_rows(folder.diary);
        const QStringList copied = all_rows(folder.copy_path);
        store_run run(folder.arguments());
        QCOMPARE(run.run(), status(exit_status::done));
        QCOMPARE(all_rows(folder.diary), copied);
        QCOMPARE(all_rows(folder.copy_path), copied);
        QCOMPARE(folder.kept().size(), 1);
        QCOMPARE(all_rows(folder.kept_path()), old);
        QVERIFY2(run.output().contains(u"The old file is kept: " + folder.kept_path()),
                 qUtf8Printable(run.output()));
        QCOMPARE(folder.files(), (QStringList{u"copy.db"_s, u"Verdbase.db"_s}));
        QCOMPARE(folder.restore(), status(exit_status::done));
        QCOMPARE(folder.kept().size(), 2);
    }

    void a_copy_is_put_where_no_file_is()
    {
        const restored_folder folder;
        const QString place = folder.folder.filePath(u"L'été \"%1\"/new/Verdbase.db"_s);
        store_run run({u"restore"_s, file_argument(folder.copy_path), file_argument(place)});
        QCOMPARE(run.run(), status(exit_status::done));
        QCOMPARE(all_rows(place), all_rows(folder.copy_path));
        QVERIFY2(!run.output().contains(u"kept"), qUtf8Printable(run.output()));
    }

    void a_full_diary_is_restored()
    {
        const QTemporaryDir folder;
        const QString copy = folder.filePath(u"copy.db"_s);
        const QString place = folder.filePath(u"Verdbase.db"_s);
        create_diary(copy, rounds_of_full_diary, true);
        QCOMPARE(store_run({u"restore"_s, file_argument(copy), file_argument(place)}).run(),
                 status(exit_status::done));
        QCOMPARE(all_rows(place), all_rows(copy));
    }

    void a_damaged_file_is_kept_as_it_is_with_its_log()
    {
        const restored_folder folder;
        write_file(folder.diary, "no diary");
        write_file(folder.diary + u"-wal", "its log");
        QCOMPARE(folder.restore(), status(exit_status::done));
        QCOMPARE(all_rows(folder.diary), all_rows(folder.copy_path));
        QVERIFY(!QFile::exists(folder.diary + u"-wal"));
        QCOMPARE(content_of(folder.kept_path()), QByteArray("no diary"));
        QCOMPARE(content_of(folder.kept_path() + u"-wal"), QByteArray("its log"));
    }

    void what_is_only_in_the_log_of_the_old_file_is_kept()
    {
        const restored_folder folder;
        QByteArray file;
        QByteArray log;
        {
            Connection1 program;
            program.Open(folder.diary);
            program.Execute(u"delete from cost"_s);
            file = content_of(folder.diary);
            log = content_of(folder.diary + u"-wal");
        }
        QVERIFY(!log.isEmpty());
        write_file(folder.diary, file);
        write_file(folder.diary + u"-wal", log);
        QCOMPARE(folder.restore(), status(exit_status::done));
        QCOMPARE(all_rows(folder.diary), all_rows(folder.copy_path));
        QCOMPARE(reader(folder.kept_path()).number(u"select count(*) from cost"_s), 0);
    }

    void the_log_of_a_missing_diary_is_kept_data()
    {
        QTest::addColumn<QString>("ending");
        QTest::addColumn<bool>("by_link");
        QTest::newRow("write-ahead log") << u"-wal"_s << false;
        QTest::newRow("write-ahead log, by a link") << u"-wal"_s << true;
        QTest::newRow("rollback journal") << u"-journal"_s << false;
    }

    void the_log_of_a_missing_diary_is_kept()
    {
        QFETCH(QString, ending);
        QFETCH(bool, by_link);
        const restored_folder folder;
        const QString place = by_link ? folder.make_link() : folder.diary;
        QVERIFY(QFile::remove(folder.diary));
        for (const QByteArray content : {"first", "second"}) {
            write_file(folder.diary + ending, content);
            store_run run(folder.arguments_for(place));
            QCOMPARE(run.run(), status(exit_status::done));
            QVERIFY2(
                run.output().contains(u"The diary's file was missing; what was left next to it is kept: " +
                                      folder.folder.path() + u"/copies/"),
                qUtf8Printable(run.output()));
            QVERIFY(!QFile::exists(folder.diary + ending));
            QCOMPARE(all_rows(folder.diary), all_rows(folder.copy_path));
            QVERIFY(QFile::remove(folder.diary));
        }
        QCOMPARE(QFileInfo(place).isSymLink(), by_link);
        QStringList contents;
        for (const QString& name : folder.kept())
            contents << QString::fromUtf8(content_of(folder.folder.filePath(u"copies/" + name)));
        contents.sort();
        QCOMPARE(contents, (QStringList{u"first"_s, u"second"_s}));
    }

    void a_diary_or_copy_in_use_is_refused_and_nothing_changes()
    {
        const restored_folder folder;
        const QStringList before = all_rows(folder.diary);
        for (const QString& used : {folder.diary, folder.copy_path}) {
            Connection1 user;
            user.Open(used);
            QCOMPARE(folder.restore(), status(exit_status::in_use));
        }
        QCOMPARE(all_rows(folder.diary), before);
        QCOMPARE(folder.kept(), QStringList());
    }

    void a_diary_in_use_by_another_name_is_refused_and_nothing_changes_data()
    {
        QTest::addColumn<bool>("used_by_link");
        QTest::newRow("restored by a link") << false;
        QTest::newRow("used by a link") << true;
    }

    void a_diary_in_use_by_another_name_is_refused_and_nothing_changes()
    {
        QFETCH(bool, used_by_link);
        const restored_folder folder;
        const QString link = folder.make_link();
        const QStringList before = all_rows(folder.diary);
        Connection1 user;
        user.Open(used_by_link ? link : folder.diary);
        store_run run(folder.arguments_for(used_by_link ? folder.diary : link));
        QCOMPARE(run.run(), status(exit_status::in_use));
        QVERIFY2(run.errors().contains(u"in use by another program"), qUtf8Printable(run.output()));
        user.Execute(u"delete from cost"_s);
        user.Close();
        QVERIFY(all_rows(folder.diary) != before);
        QCOMPARE(reader(folder.diary).number(u"select count(*) from cost"_s), 0);
        QCOMPARE(folder.kept(), QStringList());
        QCOMPARE(folder.files(), (QStringList{u"copy.db"_s, u"Verdbase.db"_s}));
    }

    void a_link_to_a_file_stays_a_link()
    {
        const restored_folder folder;
        const QString link = folder.make_link();
        QCOMPARE(store_run(folder.arguments_for(link)).run(), status(exit_status::done));
        QCOMPARE(QFileInfo(link).symLinkTarget(), folder.diary);
        QVERIFY(!QFileInfo(folder.diary).isSymLink());
        QCOMPARE(all_rows(folder.diary), all_rows(folder.copy_path));
        QCOMPARE(folder.kept().size(), 1);
    }

    void a_copy_on_a_read_only_medium_is_restored_data()
    {
        QTest::addColumn<QString>("ending");
        QTest::addColumn<bool>("by_link");
        QTest::newRow("without a log") << QString() << false;
        QTest::newRow("with a log") << u"-wal"_s << false;
        QTest::newRow("with a log, by a link") << u"-wal"_s << true;
    }

    void a_copy_on_a_read_only_medium_is_restored()
    {
        QFETCH(QString, ending);
        QFETCH(bool, by_link);
        const restored_folder folder;
        const QString medium = folder.folder.filePath(u"medium"_s);
        const QString copy = medium + u"/copy.db";
        QVERIFY(QDir().mkpath(medium));
        QVERIFY(QFile::copy(folder.copy_path, copy));
        QStringList expected = all_rows(copy);
        if (!ending.isEmpty()) {
            Connection1 program;
            program.Open(folder.copy_path);
            program.Execute(u"delete from cost"_s);
            write_file(copy, content_of(folder.copy_path));
            write_file(copy + ending, content_of(folder.copy_path + ending));
            expected = expected.filter(QRegularExpression(u"^(?!cost\\|)"_s));
        }
        QFile::remove(copy + u"-shm");
        set_modes({{folder.folder.path(), 0777}, {folder.diary, 0666}, {copy, 0444}, {medium, 0555}});
        const QStringList files = QDir(medium).entryList(QDir::Files);
        const QString named = by_link ? folder.folder.filePath(u"link.db"_s) : copy;
        QVERIFY(!by_link || QFile::link(copy, named));
        store_run run({u"restore"_s, file_argument(named), file_argument(folder.diary)});
        run.become_nobody(folder.folder.path());
        const auto ended = run.run();
        set_modes({{medium, 0755}});
        QCOMPARE(run.errors(), QString());
        QCOMPARE(ended, status(exit_status::done));
        QCOMPARE(all_rows(folder.diary), expected);
        QCOMPARE(QDir(medium).entryList(QDir::Files), files);
        QCOMPARE(QDir(folder.folder.path()).entryList({u"*.source*"_s}, QDir::Files), QStringList());
    }

    void the_new_file_has_the_permissions_of_the_old_one()
    {
        const restored_folder folder;
        set_modes({{folder.diary, 0600}});
        QCOMPARE(folder.restore(), status(exit_status::done));
        struct stat state {};
        QCOMPARE(stat(QFile::encodeName(folder.diary).constData(), &state), 0);
        QCOMPARE(state.st_mode & 0777U, 0600U);
        QCOMPARE(stat(QFile::encodeName(folder.kept_path()).constData(), &state), 0);
        QCOMPARE(state.st_mode & 0777U, 0600U);
    }

    void a_kept_file_that_another_restoration_writes_meanwhile_is_not_replaced()
    {
        const restored_folder folder;
        const QString other = folder.folder.filePath(u"Verdbase.sqlite"_s);
        QVERIFY(QFile::copy(folder.diary, other));
        reader(other).write(u"delete from cost"_s);
        const QStringList old = all_rows(folder.diary);
        const QStringList old_of_other = all_rows(other);
        std::optional<int> of_other;
        // Both diaries have the same name for their kept files.
        QCOMPARE(run_with_step(folder.arguments(), file_use::name, u"-replaced.db"_s,
                               [&] { of_other = store_run(folder.arguments_for(other)).run(); }),
                 status(exit_status::done));
        QCOMPARE(of_other, status(exit_status::done));
        QCOMPARE(folder.kept().size(), 2);
        QList<QStringList> kept;
        for (const QString& name : folder.kept())
            kept << all_rows(folder.folder.filePath(u"copies/" + name));
        QVERIFY(kept.contains(old) && kept.contains(old_of_other));
    }

    void what_a_killed_restoration_has_left_in_the_folder_of_copies_is_removed()
    {
        const restored_folder whole;
        int number = 0;
        int first_with_file = 0;
        const auto copies_of = [](const restored_folder& folder) {
            const QDir copies(folder.folder.filePath(u"copies"_s));
            return copies.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        };
        run_by_writes(whole.arguments(), [&] {
            ++number;
            if (first_with_file == 0 && !copies_of(whole).isEmpty())
                first_with_file = number + 4;
        });
        const restored_folder folder;
        kill_before_write(folder.arguments(), first_with_file);
        QVERIFY(!copies_of(folder).isEmpty() && folder.kept().isEmpty());
        QCOMPARE(folder.restore(), status(exit_status::done));
        QCOMPARE(copies_of(folder), folder.kept());
    }

    void every_file_reaches_the_disk_before_it_gets_its_name()
    {
        const restored_folder folder;
        QCOMPARE(renames_before_content(folder.arguments()), QStringList());
        QCOMPARE(all_rows(folder.diary), all_rows(folder.copy_path));
    }

    void a_damaged_copy_is_refused_and_nothing_changes()
    {
        const restored_folder folder;
        const QStringList before = all_rows(folder.diary);
        write_file(folder.copy_path, "no diary");
        QCOMPARE(folder.restore(), status(exit_status::failed));
        write_file(folder.copy_path, "");
        QCOMPARE(folder.restore(), status(exit_status::no_diary));
        QVERIFY(QFile::remove(folder.copy_path));
        QCOMPARE(folder.restore(), status(exit_status::no_diary));
        QCOMPARE(all_rows(folder.diary), before);
        QCOMPARE(folder.files(), QStringList{u"Verdbase.db"_s});
    }

    void a_copy_without_rows_is_refused_and_nothing_changes()
    {
        const restored_folder folder;
        const QStringList before = all_rows(folder.diary);
        QVERIFY(QFile::remove(folder.copy_path));
        Connection1().Open(folder.copy_path);
        QCOMPARE(folder.restore(), status(exit_status::no_diary));
        QCOMPARE(all_rows(folder.diary), before);
        QCOMPARE(folder.kept(), QStringList());
        QCOMPARE(folder.files(), (QStringList{u"copy.db"_s, u"Verdbase.db"_s}));
    }

    void a_wrong_command_line_is_refused_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("one file") << QStringList{u"file:a"_s};
        QTest::newRow("the same file") << QStringList{u"file:a"_s, u"file:a"_s};
        QTest::newRow("from a source") << QStringList{u"source"_s, u"file:a"_s};
        QTest::newRow("to a source") << QStringList{u"file:a"_s, u"source"_s};
        QTest::newRow("option of another command") << QStringList{u"file:a"_s, u"file:b"_s, u"--repair"_s};
    }

    void a_wrong_command_line_is_refused()
    {
        QFETCH(QStringList, arguments);
        QCOMPARE(store_run(QStringList{u"restore"_s} + arguments).run(), status(exit_status::usage));
    }

    void a_full_disk_changes_nothing_data()
    {
        QTest::addColumn<int>("bytes");
        for (const int bytes : {0, 4096, 100'000, 200'000})
            QTest::addRow("%d bytes", bytes) << bytes;
    }

    void a_full_disk_changes_nothing()
    {
        QFETCH(int, bytes);
        const restored_folder folder;
        const QStringList before = all_rows(folder.diary);
        store_run run(folder.arguments());
        run.limit_files(static_cast<unsigned long>(bytes));
        QCOMPARE(run.run(), status(exit_status::failed));
        QCOMPARE(all_rows(folder.diary), before);
        QCOMPARE(folder.kept(), QStringList());
        QCOMPARE(folder.files(), (QStringList{u"copy.db"_s, u"Verdbase.db"_s}));
    }

    void a_copy_that_was_not_completed_changes_nothing()
    {
        const restored_folder folder;
        const QStringList before = all_rows(folder.diary);
        // The log of the new file can be written, but not be copied into the file.
        QVERIFY(run_without_space_for(folder.arguments(), u"/store.db"_s, 8192).writes > 1);
        QCOMPARE(all_rows(folder.diary), before);
        QCOMPARE(folder.kept(), QStringList());
        QCOMPARE(folder.files(), (QStringList{u"copy.db"_s, u"Verdbase.db"_s}));
        QCOMPARE(folder.restore(), status(exit_status::done));
    }

    void a_kill_never_leaves_a_damaged_file_without_its_log()
    {
        const restored_folder whole;
        const auto damage = [](const restored_folder& folder) {
            write_file(folder.diary, "no diary");
            write_file(folder.diary + u"-wal", "its log");
        };
        damage(whole);
        const QByteArray old = "no diary";
        int removed = 0;
        const auto ended = run_by_writes(whole.arguments(), [&] {
            const bool has_log = content_of(whole.diary + u"-wal") == "its log";
            const bool has_file = QFile::exists(whole.diary);
            QVERIFY(has_log || !has_file || content_of(whole.diary) != old);
            QVERIFY(!has_log || !has_file || content_of(whole.diary) == old);
            if (!has_file)
                QCOMPARE(content_of(whole.kept_path()), old);
            removed += has_log && !has_file ? 1 : 0;
        });
        QCOMPARE(ended, status(exit_status::done));
        QVERIFY(removed > 0);
        QCOMPARE(all_rows(whole.diary), all_rows(whole.copy_path));
    }

    void a_file_of_the_engine_that_cannot_be_removed_keeps_the_old_diary_in_its_place()
    {
        const restored_folder folder;
        write_file(folder.diary, "no diary");
        // A folder of this name cannot be removed, since it has a file.
        QVERIFY(QDir().mkpath(folder.diary + u"-shm"));
        write_file(folder.diary + u"-shm/file", "content");
        store_run run(folder.arguments());
        QCOMPARE(run.run(), status(exit_status::failed));
        QVERIFY2(run.errors().contains(u"The old files are kept: "_s + folder.folder.path()), "no path");
        QCOMPARE(content_of(folder.diary), QByteArray("no diary"));
    }
};

QTEST_GUILESS_MAIN(test_restore_command)
#include "test_restore_command.moc"
