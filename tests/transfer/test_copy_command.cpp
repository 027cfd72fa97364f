#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <functional>
#include <vector>

#include "store/Connection1.h"
#include "tests/support/full_diary.h"
#include "tests/support/reader.h"
#include "tests/transfer/killed_run.h"
#include "tests/transfer/stored_files.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using namespace verdane::testing;

namespace {

int rounds_in(const QString& path)
{
    return reader(path).number(u"select count(*) from games"_s);
}

void make_empty_file(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qUtf8Printable(path));
}

/// The stores of a copy that is refused.
struct refused_copy {
    const char* name;
    exit_status expected;
    /// Prepares the folder. A connection keeps a store in use.
    std::function<void(const copied_folder&, Connection1&)> prepare;
    /// A file of the folder instead of its diary.
    QString source = {};
    /// Part of the reason that is reported.
    QString reason = {};
};

std::function<void(const copied_folder&, Connection1&)> edited_target(const QString& edit)
{
    return [edit](const copied_folder& folder, Connection1&) {
        Connection1().Open(folder.target);
        reader(folder.target).write(edit);
    };
}

const std::vector<refused_copy>& refused_copies()
{
    using enum exit_status;
    static const std::vector<refused_copy> all{
        {"target with rows", not_empty,
         [](const copied_folder& folder, Connection1&) { create_diary(folder.target, 1, false); }},
        {"target with a name of a club",
         not_empty,
         edited_target(u"update sticknames set club_1 = 'Driver'"_s),
         {},
         u"its golf bag was edited (table sticknames)"_s},
        {"target with an average of a club",
         not_empty,
         edited_target(u"update sticks set avg_3 = 150"_s),
         {},
         u"its golf bag was edited (table sticks)"_s},
        {"diary in use", in_use,
         [](const copied_folder& folder, Connection1& user) { user.Open(folder.diary); }},
        {"target in use", in_use,
         [](const copied_folder& folder, Connection1& user) { user.Open(folder.target); }},
        {"file that does not exist", no_diary, [](const copied_folder&, Connection1&) {}, u"none.db"_s},
        {"store without rows", no_diary,
         [](const copied_folder& folder, Connection1&) {
             Connection1().Open(folder.folder.filePath(u"empty.db"_s));
         },
         u"empty.db"_s},
        {"empty file", no_diary,
         [](const copied_folder& folder, Connection1&) {
             make_empty_file(folder.folder.filePath(u"empty.db"_s));
         },
         u"empty.db"_s},
    };
    return all;
}

/// The files of a folder and of the folders in it, with the rows of each store.
QStringList content_of_folder(const QString& path)
{
    QStringList content;
    QDirIterator files(path, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        content << file;
        if (file.endsWith(u".db") && files.fileInfo().size() > 0)
            content += all_rows(file);
    }
    content.sort();
    return content;
}

}  // namespace

/// `verdane-store copy` as a child process, from a file to a file.
class test_copy_command : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void texts_are_copied_byte_by_byte()
    {
        const QStringList edits{
            u"update partners set AD1 = cast(x'41ff42' as text), AD2 = char(65279) || 'é'"_s,
            u"update partners set MAIL = cast(x'efbbbfff' as text) where rowid = 2"_s};
        const copied_folder folder;
        reader(folder.diary).write(edits);
        QCOMPARE(folder.copy(), status(exit_status::done));
        const QString texts =
            u"select typeof(AD1), hex(AD1), typeof(AD2), hex(AD2), typeof(MAIL), hex(MAIL) from partners "
            u"order by rowid"_s;
        const auto copied = reader(folder.target).rows(texts);
        QCOMPARE(copied, reader(folder.diary).rows(texts));
        QCOMPARE(copied.at(0).at(1).toString(), u"41FF42"_s);
    }

    void a_copy_has_the_rows_of_the_diary_in_their_order()
    {
        const copied_folder folder;
        store_run run({u"copy"_s, file_argument(folder.diary), file_argument(folder.target)});
        QCOMPARE(run.run(), status(exit_status::done));
        QCOMPARE(all_rows(folder.target), all_rows(folder.diary));
        QVERIFY2(run.output().contains(u"games: 12 rows\n"), qUtf8Printable(run.output()));
        QVERIFY2(run.output().contains(u"Copied and checked: 18 tables, "), qUtf8Printable(run.output()));
    }

    void a_refused_copy_changes_no_file_and_makes_none_data()
    {
        QTest::addColumn<int>("index");
        for (std::size_t i = 0; i < refused_copies().size(); ++i)
            QTest::newRow(refused_copies()[i].name) << static_cast<int>(i);
    }

    void a_refused_copy_changes_no_file_and_makes_none()
    {
        QFETCH(int, index);
        const refused_copy& refused = refused_copies()[static_cast<std::size_t>(index)];
        const copied_folder folder;
        Connection1 user;
        refused.prepare(folder, user);
        const QStringList before = content_of_folder(folder.folder.path());
        const QString source =
            refused.source.isEmpty() ? folder.diary : folder.folder.filePath(refused.source);
        store_run run({u"copy"_s, file_argument(source), file_argument(folder.target)});
        QCOMPARE(run.run(), status(refused.expected));
        QVERIFY2(run.errors().contains(refused.reason), qPrintable(run.errors()));
        QCOMPARE(content_of_folder(folder.folder.path()), before);
    }

    void a_new_store_without_rows_is_accepted_as_target()
    {
        const copied_folder folder;
        Connection1().Open(folder.target);
        QCOMPARE(folder.copy(), status(exit_status::done));
        QCOMPARE(rounds_in(folder.target), rounds_of_diary);
    }

    void a_target_with_a_language_only_is_empty()
    {
        const copied_folder folder;
        Connection1().Open(folder.target);
        reader(folder.target).write(u"update settings set language = 2"_s);
        QCOMPARE(folder.copy(), status(exit_status::done));
        QCOMPARE(all_rows(folder.target), all_rows(folder.diary));
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

    void an_empty_target_that_is_not_complete_when_it_is_closed_is_reported()
    {
        const copied_folder folder;
        Connection1().Open(folder.target);
        const auto present = static_cast<unsigned long>(QFileInfo(folder.target).size());
        const QStringList arguments{u"copy"_s, file_argument(folder.diary), file_argument(folder.target)};
        QCOMPARE(run_without_space_for(arguments, u"/target/Verdbase.db"_s, present).status,
                 status(exit_status::failed));
    }

    void rows_that_are_written_during_a_copy_are_in_no_table_of_it()
    {
        const copied_folder folder;
        const QStringList before = all_rows(folder.diary);
        QCOMPARE(run_with_step({u"copy"_s, file_argument(folder.diary), file_argument(folder.target)},
                               file_use::open, u"target/Verdbase.db.lock"_s,
                               [&] { reader(folder.diary).write(u"delete from cost"_s); }),
                 status(exit_status::done));
        QCOMPARE(all_rows(folder.target), before);
        QCOMPARE(reader(folder.diary).number(u"select count(*) from cost"_s), 0);
    }

    void a_copy_whose_report_nobody_reads_is_completed()
    {
        const copied_folder folder;
        store_run run({u"copy"_s, file_argument(folder.diary), file_argument(folder.target)});
        run.close_output();
        QCOMPARE(run.run(), status(exit_status::done));
        QCOMPARE(all_rows(folder.target), all_rows(folder.diary));
    }
};

QTEST_GUILESS_MAIN(test_copy_command)
#include "test_copy_command.moc"
