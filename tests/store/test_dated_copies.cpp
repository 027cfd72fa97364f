#include <QTest>
#include <QThread>

#include <atomic>
#include <functional>
#include <memory>
#include <sys/stat.h>

#include "store/recovery/copy_days.h"
#include "store/recovery/dated_copies.h"
#include "tests/store/store_child.h"
#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"
#include "tests/support/full_diary.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::bytes_of;
using testing::child_failure;
using testing::day_of_child;
using testing::failure_of;
using testing::reader;
using testing::start_child;
using testing::store_fixture;
using testing::whole_content;

namespace {

const QDate today = day_of_child;

/// A store whose last commits are in its write-ahead log, and which has several pages of partners.
void fill(store_fixture& store)
{
    QStringList names;
    for (int i = 0; i < 300; ++i)
        names += u"partner number %1 with a rather long name"_s.arg(i);
    store.connection.Execute(u"BEGIN"_s);
    store.add_partners(names);
    store.connection.Execute(u"COMMIT"_s);
}

QStringList files_of_copies(const store_fixture& store)
{
    return QDir(folder_of_copies(store.path())).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

QString content_of_copy(const store_fixture& store, QDate day = today)
{
    return whole_content(reader(path_of_copy(store.path(), day)));
}

void put(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        qFatal("cannot write the file");
}

/// Overwrites a page of the partners.
void overwrite_page(const QString& path)
{
    QByteArray content = bytes_of(path);
    const auto page = content.indexOf("partner number 7 ") / 4096 * 4096;
    put(path, content.replace(page, 4096, QByteArray(4096, '\xaa')));
}

void set_mode(const QString& path, mode_t mode)
{
    if (chmod(QFile::encodeName(path).constData(), mode) != 0)
        qFatal("cannot change the permissions");
}

/// Every user can write the store and its folders.
void open_to_everyone(const store_fixture& store)
{
    const QString folder = folder_of_copies(store.path());
    set_mode(folder, 0777);
    set_mode(QFileInfo(folder).absolutePath(), 0777);
    set_mode(QFileInfo(QFileInfo(folder).absolutePath()).absolutePath(), 0755);
    set_mode(store.path(), 0666);
}

void sizes_of_files()
{
    QTest::addColumn<int>("bytes");
    for (const int bytes : {0, 1, 4096, 20000, 60000})
        QTest::addRow("%d bytes", bytes) << bytes;
}

}  // namespace

/// The copy of a day of the embedded store.
class test_dated_copies : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_first_copy_of_a_day_has_every_commit()
    {
        store_fixture store;
        fill(store);
        const QString before = whole_content(store.outside());
        QVERIFY(write_dated_copy(store.path(), today));
        QCOMPARE(files_of_copies(store), QStringList{u"Verdbase-2026-06-14.db"_s});
        QCOMPARE(content_of_copy(store), before);
        QCOMPARE(whole_content(store.outside()), before);
    }

    void a_copy_of_a_full_diary_has_all_its_rows()
    {
        store_fixture store;
        store.connection.Close();
        QVERIFY(QFile::remove(store.path()));
        testing::create_diary(store.path(), testing::rounds_of_full_diary, true);
        const QString before = whole_content(store.outside());
        QVERIFY(write_dated_copy(store.path(), today));
        QCOMPARE(content_of_copy(store), before);
    }

    void a_copy_can_be_opened_as_a_store()
    {
        store_fixture store;
        fill(store);
        write_dated_copy(store.path(), today);
        const QString before = whole_content(store.outside());
        Connection1 copy;
        copy.Open(path_of_copy(store.path(), today));
        QCOMPARE(content_of_copy(store), before);
        copy.Execute(u"insert into partners (NAME, code) values ('new', 301)"_s);
    }

    void the_second_copy_of_a_day_is_not_written()
    {
        store_fixture store;
        write_dated_copy(store.path(), today);
        const QByteArray first = bytes_of(path_of_copy(store.path(), today));
        fill(store);
        QVERIFY(!write_dated_copy(store.path(), today));
        QCOMPARE(bytes_of(path_of_copy(store.path(), today)), first);
        QVERIFY(write_dated_copy(store.path(), today.addDays(1)));
        QCOMPARE(content_of_copy(store, today.addDays(1)), whole_content(store.outside()));
        QCOMPARE(files_of_copies(store),
                 QStringList({u"Verdbase-2026-06-14.db"_s, u"Verdbase-2026-06-15.db"_s}));
    }

    void a_damaged_copy_of_the_day_is_replaced_data()
    {
        using damage = std::function<void(const QString&)>;
        QTest::addColumn<damage>("harm");
        QTest::newRow("empty") << damage([](const QString& path) { put(path, {}); });
        QTest::newRow("a text") << damage([](const QString& path) { put(path, "my diary"); });
        QTest::newRow("cut inside a page") << damage([](const QString& path) { QFile::resize(path, 50001); });
        QTest::newRow("cut after a page") << damage([](const QString& path) { QFile::resize(path, 40960); });
        QTest::newRow("a page overwritten") << damage(overwrite_page);
    }
    void a_damaged_copy_of_the_day_is_replaced()
    {
        QFETCH(std::function<void(const QString&)>, harm);
        store_fixture store;
        fill(store);
        write_dated_copy(store.path(), today);
        harm(path_of_copy(store.path(), today));
        QVERIFY(write_dated_copy(store.path(), today));
        QCOMPARE(content_of_copy(store), whole_content(store.outside()));
        QCOMPARE(files_of_copies(store), QStringList{u"Verdbase-2026-06-14.db"_s});
    }

    void a_link_with_the_name_of_the_unfinished_copy_is_not_followed()
    {
        store_fixture store;
        fill(store);
        const QString other = QFileInfo(store.path()).absolutePath() + u"/other";
        put(other, "mine");
        QVERIFY(QDir().mkpath(folder_of_copies(store.path())));
        QVERIFY(QFile::link(other, folder_of_copies(store.path()) + u"/unfinished"));
        QVERIFY(write_dated_copy(store.path(), today));
        QCOMPARE(bytes_of(other), QByteArray("mine"));
        QVERIFY(!QFileInfo(path_of_copy(store.path(), today)).isSymLink());
        QCOMPARE(content_of_copy(store), whole_content(store.outside()));
    }

    void a_copy_of_a_damaged_store_is_a_failure_and_the_other_copies_remain()
    {
        store_fixture store;
        fill(store);
        write_dated_copy(store.path(), today.addDays(-1));
        store.connection.Close();
        overwrite_page(store.path());
        QVERIFY(failure_of([&] { write_dated_copy(store.path(), today); }) == failure_kind::store_damaged);
        QCOMPARE(files_of_copies(store), QStringList{u"Verdbase-2026-06-13.db"_s});
    }

    void copies_that_are_not_kept_are_removed_after_a_new_one()
    {
        store_fixture store;
        const QString folder = folder_of_copies(store.path());
        for (const QString& name : {u"Verdbase-2026-01-03.db"_s, u"Verdbase-2026-01-17.db"_s, u"notes.txt"_s,
                                    u"Music-2026-01-03.db"_s})
            put(folder + u'/' + name, "content");
        for (int day = 1; day < newest_copies_kept; ++day)
            put(path_of_copy(store.path(), today.addDays(-day)), "content");
        const QStringList before = files_of_copies(store);
        write_dated_copy(store.path(), today);
        QStringList expected = before + QStringList{u"Verdbase-2026-06-14.db"_s};
        QVERIFY(expected.removeOne(u"Verdbase-2026-01-03.db"_s));
        expected.sort();
        QStringList found = files_of_copies(store);
        found.sort();
        QCOMPARE(found, expected);
    }

    void a_read_only_copy_of_the_day_is_no_failure()
    {
        store_fixture store;
        fill(store);
        write_dated_copy(store.path(), today);
        store.connection.Close();
        open_to_everyone(store);
        const QString copy = path_of_copy(store.path(), today);
        set_mode(copy, 0444);
        const QByteArray before = bytes_of(copy);
        QProcess child;
        start_child(child, u"copy_as_nobody"_s, store.path());
        QVERIFY(child.waitForFinished(60000));
        QCOMPARE(QString::fromUtf8(child.readAllStandardError()), QString());
        QCOMPARE(child.exitCode(), 0);
        QCOMPARE(bytes_of(copy), before);
    }

    void a_read_only_folder_of_copies_is_a_failure()
    {
        store_fixture store;
        fill(store);
        write_dated_copy(store.path(), today.addDays(-1));
        store.connection.Close();
        open_to_everyone(store);
        const QString folder = folder_of_copies(store.path());
        set_mode(folder, 0555);
        QProcess child;
        start_child(child, u"copy_as_nobody"_s, store.path());
        const auto failure = child_failure(child);
        set_mode(folder, 0755);
        QVERIFY(failure == failure_kind::store_read_only);
        QCOMPARE(files_of_copies(store), QStringList{u"Verdbase-2026-06-13.db"_s});
    }

    void a_file_with_the_name_of_the_folder_is_a_failure()
    {
        store_fixture store;
        put(folder_of_copies(store.path()), "content");
        QVERIFY(failure_of([&] { write_dated_copy(store.path(), today); }) == failure_kind::store_read_only);
        QCOMPARE(bytes_of(folder_of_copies(store.path())), QByteArray("content"));
    }

    void on_a_full_disk_the_copy_fails_and_the_other_copies_remain_data() { sizes_of_files(); }
    void on_a_full_disk_the_copy_fails_and_the_other_copies_remain()
    {
        QFETCH(int, bytes);
        store_fixture store;
        fill(store);
        put(folder_of_copies(store.path()) + u"/Verdbase-2026-01-03.db"_s, "content");
        write_dated_copy(store.path(), today.addDays(-1));
        const QString before = whole_content(store.outside());
        store.connection.Close();
        const QStringList copies = files_of_copies(store);
        QProcess child;
        start_child(child, u"copy_on_full_disk"_s, store.path(), bytes);
        QVERIFY(child_failure(child) == failure_kind::store_full);
        QCOMPARE(files_of_copies(store), copies);
        QCOMPARE(whole_content(store.outside()), before);
    }

    void after_a_kill_in_the_middle_the_next_start_writes_the_copy_data() { sizes_of_files(); }
    void after_a_kill_in_the_middle_the_next_start_writes_the_copy()
    {
        QFETCH(int, bytes);
        store_fixture store;
        fill(store);
        store.connection.Close();
        QProcess child;
        start_child(child, u"copy_until_killed"_s, store.path(), bytes);
        QVERIFY(child.waitForFinished(60000));
        QCOMPARE(child.exitStatus(), QProcess::CrashExit);
        QCOMPARE(days_of_copies(store.path()).size(), std::size_t(0));
        store.connection.Open(store.path());
        QVERIFY(write_dated_copy(store.path(), today));
        QCOMPARE(content_of_copy(store), whole_content(store.outside()));
        QCOMPARE(files_of_copies(store), QStringList{u"Verdbase-2026-06-14.db"_s});
    }

    void a_store_that_changes_meanwhile_is_copied_between_two_commits()
    {
        store_fixture store;
        fill(store);
        std::atomic<int> written = 0;
        std::unique_ptr<QThread> copies(QThread::create([&] {
            for (int day = 0; day < 20; ++day)
                written += write_dated_copy(store.path(), today.addDays(day)) ? 1 : 0;
        }));
        copies->start();
        int commits = 0;
        // Each commit adds two partners and changes all of them.
        while (!copies->isFinished()) {
            store.connection.Execute(u"BEGIN"_s);
            store.add_partners({u"one"_s, u"two"_s});
            store.connection.Execute(u"update partners set AD1 = %1"_s.arg(++commits));
            store.connection.Execute(u"COMMIT"_s);
        }
        copies->wait();
        QCOMPARE(written.load(), 20);
        QVERIFY(commits > 20);
        int last = 0;
        for (int day = 0; day < 20; ++day) {
            const reader copy(path_of_copy(store.path(), today.addDays(day)));
            const int commits_in_copy = (copy.number(u"select count(*) from partners"_s) - 300) / 2;
            QCOMPARE(copy.number(u"select count(*) from partners"_s), 300 + 2 * commits_in_copy);
            QCOMPARE(copy.number(u"select count(*) from partners where coalesce(AD1, '0') <> '%1'"_s.arg(
                         commits_in_copy)),
                     0);
            QCOMPARE(copy.text(u"pragma integrity_check"_s), u"ok"_s);
            QVERIFY(commits_in_copy >= last);
            last = commits_in_copy;
        }
        QVERIFY(last > 0);
    }
};

QTEST_GUILESS_MAIN(test_dated_copies)
#include "test_dated_copies.moc"
