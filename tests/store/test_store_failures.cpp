#include <QTest>

#include <functional>
#include <sys/stat.h>

#include "tests/store/store_child.h"
#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"
#include "tests/support/outside_connection.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::bytes_of;
using testing::child_failure;
using testing::failure_of;
using testing::outside_connection;
using testing::start_child;
using testing::store_fixture;
using testing::whole_content;

namespace {

/// Adds enough partners for several pages and closes the store, so that all of it is in one file.
void fill_and_close(store_fixture& store)
{
    QStringList names;
    for (int i = 0; i < 300; ++i)
        names += u"partner number %1 with a rather long name"_s.arg(i);
    store.connection.Execute(u"BEGIN"_s);
    store.add_partners(names);
    store.connection.Execute(u"COMMIT"_s);
    store.connection.Close();
}

void overwrite(const QString& path, qint64 from, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) || !file.seek(from) || file.write(bytes) != bytes.size())
        qFatal("cannot damage the file");
}

void replace_content(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        qFatal("cannot write the file");
}

/// The position of the first leaf page of the partners.
qint64 partners_page(const QString& path)
{
    return bytes_of(path).indexOf("partner number 7 ") / 4096 * 4096;
}

void set_mode(const QString& path, mode_t mode)
{
    if (chmod(QFile::encodeName(path).constData(), mode) != 0)
        qFatal("cannot change the permissions");
}

QString folder_of(const store_fixture& store)
{
    return QFileInfo(store.path()).absolutePath();
}

/// Gives everyone access to the folder of the store, so that `nobody` has the same access as the owner.
void give_everyone_access(const store_fixture& store)
{
    set_mode(QFileInfo(folder_of(store)).absolutePath(), 0755);
}

/// A notice of a user who gives up at once.
class notice_that_gives_up final : public lock_notice {
public:
    bool keep_waiting() override { return false; }
};

}  // namespace

class test_store_failures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_damaged_file_is_refused_and_unchanged_data()
    {
        using damage = std::function<void(const QString&)>;
        QTest::addColumn<damage>("harm");
        QTest::newRow("a text") << damage(
            [](const QString& p) { replace_content(p, "my diary, hole 1: 5"); });
        QTest::newRow("a long text") << damage(
            [](const QString& p) { replace_content(p, QByteArray(9000, 'x')); });
        QTest::newRow("one byte") << damage([](const QString& p) { replace_content(p, "S"); });
        QTest::newRow("head overwritten")
            << damage([](const QString& p) { overwrite(p, 0, QByteArray(100, '\0')); });
        QTest::newRow("head half overwritten")
            << damage([](const QString& p) { overwrite(p, 16, QByteArray(84, '\xff')); });
        QTest::newRow("catalogue overwritten")
            << damage([](const QString& p) { overwrite(p, 100, QByteArray(3000, '\xee')); });
        QTest::newRow("a page overwritten")
            << damage([](const QString& p) { overwrite(p, partners_page(p), QByteArray(4096, '\xaa')); });
        QTest::newRow("a page emptied")
            << damage([](const QString& p) { overwrite(p, partners_page(p), QByteArray(4096, '\0')); });
        QTest::newRow("cut in the middle")
            << damage([](const QString& p) { QFile::resize(p, QFileInfo(p).size() / 2 / 4096 * 4096); });
        QTest::newRow("cut inside a page") << damage([](const QString& p) { QFile::resize(p, 5000); });
        QTest::newRow("only the head left") << damage([](const QString& p) { QFile::resize(p, 100); });
    }

    void a_damaged_file_is_refused_and_unchanged()
    {
        QFETCH(std::function<void(const QString&)>, harm);
        store_fixture store;
        fill_and_close(store);
        harm(store.path());
        const QByteArray before = bytes_of(store.path());
        QVERIFY(failure_of([&] { store.connection.Open(store.path()); }) == failure_kind::store_damaged);
        QVERIFY(!store.connection.is_open());
        QCOMPARE(bytes_of(store.path()), before);
        QVERIFY(!QFile::exists(store.path() + u".lock"));
    }

    void the_file_of_another_program_is_refused_and_unchanged()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"music.db"_s);
        testing::reader(path).write(u"create table songs (title)"_s);
        const QByteArray before = bytes_of(path);
        Connection1 connection;
        QVERIFY(failure_of([&] { connection.Open(path); }) == failure_kind::store_damaged);
        QCOMPARE(bytes_of(path), before);
    }

    void damage_to_an_open_store_is_a_failure_of_the_statement_that_reads_it()
    {
        store_fixture store;
        fill_and_close(store);
        store.connection.Open(store.path());
        overwrite(store.path(), partners_page(store.path()), QByteArray(4096, '\xaa'));
        store.connection.Execute(u"PRAGMA shrink_memory"_s);
        const auto partners = store.recordset(u"select * from partners order by name"_s);
        QVERIFY(failure_of([&] { partners->Open(); }) == failure_kind::store_damaged);
        QVERIFY(!partners->is_open());
    }

    void a_folder_with_the_name_of_the_file_cannot_be_opened()
    {
        QTemporaryDir folder;
        Connection1 connection;
        QVERIFY(failure_of([&] { connection.Open(folder.path()); }) == failure_kind::store_unreachable);
        QVERIFY(QDir(folder.path()).exists());
    }

    void a_file_with_the_name_of_the_folder_cannot_be_opened()
    {
        store_fixture store;
        const QString inside = store.path() + u"/Verdbase.db";
        Connection1 connection;
        QVERIFY(failure_of([&] { connection.Open(inside); }) == failure_kind::store_unreachable);
    }

    void a_read_only_store_is_refused_before_anything_is_written_data()
    {
        QTest::addColumn<int>("folder_mode");
        QTest::addColumn<int>("file_mode");
        QTest::addColumn<int>("kind");
        QTest::newRow("folder") << 0555 << 0666 << static_cast<int>(failure_kind::store_read_only);
        QTest::newRow("file") << 0777 << 0444 << static_cast<int>(failure_kind::store_read_only);
        QTest::newRow("both") << 0555 << 0444 << static_cast<int>(failure_kind::store_read_only);
        QTest::newRow("unreadable file") << 0777 << 0000 << static_cast<int>(failure_kind::store_unreachable);
    }

    void a_read_only_store_is_refused_before_anything_is_written()
    {
        QFETCH(int, folder_mode);
        QFETCH(int, file_mode);
        QFETCH(int, kind);
        store_fixture store;
        fill_and_close(store);
        const QByteArray before = bytes_of(store.path());
        give_everyone_access(store);
        set_mode(store.path(), static_cast<mode_t>(file_mode));
        set_mode(folder_of(store), static_cast<mode_t>(folder_mode));
        QProcess child;
        start_child(child, u"nobody"_s, store.path());
        const auto failure = child_failure(child);
        set_mode(folder_of(store), 0777);
        set_mode(store.path(), 0666);
        QVERIFY(failure == static_cast<failure_kind>(kind));
        QCOMPARE(bytes_of(store.path()), before);
        QCOMPARE(QDir(folder_of(store)).entryList(QDir::Files), QStringList{u"Verdbase.db"_s});
    }

    void a_folder_that_cannot_be_created_is_a_read_only_store()
    {
        QTemporaryDir folder;
        set_mode(folder.path(), 0555);
        QProcess child;
        start_child(child, u"nobody"_s, folder.filePath(u"diary/Verdbase.db"_s));
        const auto failure = child_failure(child);
        set_mode(folder.path(), 0755);
        QVERIFY(failure == failure_kind::store_read_only);
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void while_another_program_writes_the_store_cannot_be_opened()
    {
        store_fixture store;
        fill_and_close(store);
        // It does not use the lock file.
        const outside_connection tool(store_location::file(store.path()));
        tool.run(u"BEGIN EXCLUSIVE"_s);
        QVERIFY(failure_of([&] { store.connection.Open(store.path()); }) == failure_kind::store_locked);
        QVERIFY(!store.connection.is_open());
        tool.run(u"ROLLBACK"_s);
        store.connection.Open(store.path());
    }

    void while_another_program_writes_a_row_stays_pending()
    {
        store_fixture store;
        store.add_partners({u"a"_s, u"b"_s});
        const auto partners = store.opened(u"select * from partners"_s);
        const QString before = whole_content(store.outside());
        store.connection.waiting().set_notice_maker([] { return std::make_unique<notice_that_gives_up>(); });
        // It does not use the lock file.
        const outside_connection tool(store_location::file(store.path()));
        tool.run(u"BEGIN EXCLUSIVE"_s);
        partners->Fields(u"name").set(u"typed"_s);
        QVERIFY(failure_of([&] { partners->Update(); }) == failure_kind::store_locked);
        QVERIFY(failure_of([&] { partners->MoveNext(); }) == failure_kind::store_locked);
        QVERIFY(partners->pending());
        QCOMPARE(partners->position(), 0);
        partners->CancelUpdate();
        QVERIFY(failure_of([&] { partners->Delete(); }) == failure_kind::store_locked);
        QCOMPARE(partners->RecordCount(), 2);
        QCOMPARE(whole_content(store.outside()), before);
        tool.run(u"ROLLBACK"_s);
        partners->Fields(u"name").set(u"typed"_s);
        partners->Update();
        QCOMPARE(testing::stored_names(store), u"typed b"_s);
    }

    void a_full_store_refuses_the_row_and_keeps_what_was_committed()
    {
        store_fixture store;
        store.add_partners({u"a"_s});
        const QString before = whole_content(store.outside());
        const int pages = store.outside().number(u"pragma page_count"_s);
        store.connection.Execute(u"pragma max_page_count=%1"_s.arg(pages));
        const auto partners = store.opened(u"select * from partners"_s);
        partners->AddNew();
        partners->Fields(u"name").set(QString(100000, u'x'));
        QVERIFY(failure_of([&] { partners->Update(); }) == failure_kind::store_full);
        QVERIFY(partners->pending());
        QCOMPARE(whole_content(store.outside()), before);
        store.connection.Execute(u"pragma max_page_count=100000"_s);
        partners->Update();
        QCOMPARE(store.outside().number(u"select count(*) from partners"_s), 2);
    }

    void a_full_store_refuses_a_whole_batch()
    {
        store_fixture store;
        const QString before = whole_content(store.outside());
        const int pages = store.outside().number(u"pragma page_count"_s);
        store.connection.Execute(u"pragma max_page_count=%1"_s.arg(pages + 2));
        const auto partners = store.opened(u"select * from partners"_s, lock_type::batch_optimistic);
        for (int i = 0; i < 10; ++i) {
            partners->AddNew();
            partners->Fields(u"name").set(QString(2000, u'x'));
        }
        QVERIFY(failure_of([&] { partners->UpdateBatch(); }) == failure_kind::store_full);
        QCOMPARE(whole_content(store.outside()), before);
        QVERIFY(partners->pending());
        QCOMPARE(partners->RecordCount(), 10);
    }

    void a_full_disk_loses_no_committed_row_data()
    {
        QTest::addColumn<int>("bytes");
        for (const int bytes : {200000, 400000, 700001, 1000000})
            QTest::addRow("%d bytes", bytes) << bytes;
    }

    void a_full_disk_loses_no_committed_row()
    {
        QFETCH(int, bytes);
        store_fixture store;
        store.connection.Close();
        QProcess child;
        start_child(child, u"fill"_s, store.path(), bytes);
        QVERIFY(child_failure(child) == failure_kind::store_full);
        const auto said = child.readAllStandardOutput().trimmed().split('\n');
        store.connection.Open(store.path());
        QCOMPARE(store.outside().number(u"select count(*) from partners"_s), said.last().toInt());
        QCOMPARE(store.outside().text(u"pragma integrity_check"_s), u"ok"_s);
    }
};

QTEST_GUILESS_MAIN(test_store_failures)
#include "test_store_failures.moc"
