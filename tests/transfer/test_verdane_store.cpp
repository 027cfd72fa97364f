#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include "store/Connection1.h"
#include "store/diary_copy.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/full_diary.h"
#include "tests/support/reader.h"
#include "tests/transfer/store_run.h"
#include "transfer/copy_command.h"
#include "transfer/store_argument.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::store_run;

namespace {

constexpr int rounds = 12;

QString file(const QString& path)
{
    return u"file:"_s + path;
}

constexpr int status(exit_status value)
{
    return static_cast<int>(value);
}

/// A folder with a diary of some rounds.
struct copied_folder {
    copied_folder() { testing::create_diary(diary, rounds, true); }

    std::optional<int> copy() const { return store_run({u"copy"_s, file(diary), file(target)}).run(); }

    QTemporaryDir folder;
    QString diary = folder.filePath(u"diary/Verdbase.db"_s);
    QString target = folder.filePath(u"target/Verdbase.db"_s);
};

/// A store on the engine of the tests, without tables.
struct other_store {
    other_store() : place(testing::new_store_place(folder.path())) {}
    ~other_store() { testing::remove_store_place(place); }
    other_store(const other_store&) = delete;
    other_store& operator=(const other_store&) = delete;

    QString argument() const { return argument_of_store(place); }

    QTemporaryDir folder;
    store_location place;
};

/// Every row of every table in order, as text.
QStringList all_rows(const QString& path)
{
    const testing::reader store(path);
    QStringList lines;
    for (const auto& table :
         store.rows(u"select name from sqlite_master where type = 'table' order by name"_s)) {
        const QString name = table[0].toString();
        for (const auto& row : store.rows(u"select * from `%1` order by rowid"_s.arg(name))) {
            lines += name;
            for (const QVariant& value : row)
                lines.back() += u'|' + (value.isNull() ? u"null"_s : value.toString());
        }
    }
    return lines;
}

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

int rounds_in(const QString& path)
{
    return testing::reader(path).number(u"select count(*) from games"_s);
}

}  // namespace

/// The program as a child process, on files of the embedded engine.
class test_verdane_store : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_copy_has_the_rows_of_the_diary_in_their_order()
    {
        const copied_folder folder;
        store_run run({u"copy"_s, file(folder.diary), file(folder.target)});
        QCOMPARE(run.run(), status(exit_status::done));
        QCOMPARE(all_rows(folder.target), all_rows(folder.diary));
        QVERIFY2(run.output().contains(u"games: 12 rows\n"), qUtf8Printable(run.output()));
        QVERIFY2(run.output().contains(u"Copied and checked: 18 tables, "), qUtf8Printable(run.output()));
    }

    void a_diary_is_the_same_after_a_copy_to_the_engine_of_the_tests_and_back()
    {
        const copied_folder folder;
        const other_store other;
        QCOMPARE(store_run({u"copy"_s, file(folder.diary), other.argument()}).run(),
                 status(exit_status::done));
        QCOMPARE(store_run({u"copy"_s, other.argument(), file(folder.target)}).run(),
                 status(exit_status::done));
        QCOMPARE(all_rows(folder.target), all_rows(folder.diary));
        QCOMPARE(store_run({u"copy"_s, file(folder.diary), other.argument()}).run(),
                 status(exit_status::not_empty));
    }

    void a_copy_to_the_engine_of_the_tests_that_is_killed_can_be_made_again()
    {
        const copied_folder folder;
        const other_store other;
        store_run run({u"copy"_s, file(folder.diary), other.argument()});
        run.start();
        QVERIFY2(run.wait_for(u"Stat_rounds: "_s), qUtf8Printable(run.output()));
        run.kill();
        QCOMPARE(run_when_free({u"copy"_s, file(folder.diary), other.argument()}), status(exit_status::done));
        QCOMPARE(testing::reader(other.place).number(u"select count(*) from games"_s), rounds);
    }

    void a_target_with_rows_is_refused_and_not_changed()
    {
        const copied_folder folder;
        testing::create_diary(folder.target, 1, false);
        const QStringList before = all_rows(folder.target);
        QCOMPARE(folder.copy(), status(exit_status::not_empty));
        QCOMPARE(all_rows(folder.target), before);
    }

    void a_new_store_without_rows_is_accepted_as_target()
    {
        const copied_folder folder;
        Connection1().Open(folder.target);
        QCOMPARE(folder.copy(), status(exit_status::done));
        QCOMPARE(rounds_in(folder.target), rounds);
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

    void a_file_that_does_not_exist_is_no_diary_and_is_not_made()
    {
        const QTemporaryDir folder;
        const QString none = folder.filePath(u"none.db"_s);
        store_run run({u"copy"_s, file(none), file(folder.filePath(u"target.db"_s))});
        QCOMPARE(run.run(), status(exit_status::no_diary));
        QVERIFY(!QFile::exists(none));
        QVERIFY(!QFile::exists(folder.filePath(u"target.db"_s)));
    }

    void a_store_without_rows_is_no_diary()
    {
        const QTemporaryDir folder;
        Connection1().Open(folder.filePath(u"empty.db"_s));
        store_run run(
            {u"copy"_s, file(folder.filePath(u"empty.db"_s)), file(folder.filePath(u"target.db"_s))});
        QCOMPARE(run.run(), status(exit_status::no_diary));
        QVERIFY(!QFile::exists(folder.filePath(u"target.db"_s)));
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

    void help_names_the_stores_and_the_exit_statuses_in_both_languages()
    {
        store_run english({u"--help"_s});
        QCOMPARE(english.run(), 0);
        QVERIFY2(english.output().contains(u"3 target not empty"), qUtf8Printable(english.output()));
        store_run french({u"--help"_s});
        french.set_language(u"fr_CA.UTF-8"_s);
        QCOMPARE(french.run(), 0);
        QVERIFY2(french.output().contains(u"3 destination non vide"), qUtf8Printable(french.output()));
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

    void a_full_disk_leaves_no_copy()
    {
        const copied_folder folder;
        const QStringList before = all_rows(folder.diary);
        store_run run({u"copy"_s, file(folder.diary), file(folder.target)});
        run.limit_files(100'000);
        QCOMPARE(run.run(), status(exit_status::failed));
        QVERIFY2(run.errors().contains(u"no room left on the disk"), "another failure");
        QVERIFY(!QFile::exists(folder.target));
        QCOMPARE(all_rows(folder.diary), before);
        QCOMPARE(folder.copy(), status(exit_status::done));
    }

    void a_copy_that_is_killed_leaves_an_empty_store_that_can_be_used_again_data()
    {
        QTest::addColumn<QString>("table");
        for (const QString& name : {u"games"_s, u"games2"_s, u"Stat_rounds"_s, u"stats"_s})
            QTest::newRow(qUtf8Printable(name)) << name;
    }

    void a_copy_that_is_killed_leaves_an_empty_store_that_can_be_used_again()
    {
        QFETCH(QString, table);
        const copied_folder folder;
        store_run run({u"copy"_s, file(folder.diary), file(folder.target)});
        run.start();
        QVERIFY2(run.wait_for(table + u": "_s), qUtf8Printable(run.output()));
        run.kill();
        const int found = rounds_in(folder.target);
        QVERIFY2(found == 0 || found == rounds, qUtf8Printable(QString::number(found)));
        QCOMPARE(folder.copy(), status(found == 0 ? exit_status::done : exit_status::not_empty));
        QCOMPARE(all_rows(folder.target), all_rows(folder.diary));
    }
};

QTEST_GUILESS_MAIN(test_verdane_store)
#include "test_verdane_store.moc"
