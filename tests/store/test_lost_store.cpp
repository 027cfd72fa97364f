#include <QTest>

#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::bytes_of;
using testing::failure_of;
using testing::reader;

namespace {

void put(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        qFatal("cannot write the file");
}

/// The write-ahead log of a store that was written.
QByteArray log_with_content()
{
    testing::store_fixture store;
    store.add_partners(testing::three_names);
    return bytes_of(store.path() + u"-wal");
}

/// A rollback journal of a file that had this number of pages, with the content of none of them.
QByteArray journal_of_pages(char pages)
{
    return QByteArray::fromHex("d9d505f920a163d7ffffffff00000000000000") + pages +
           QByteArray::fromHex("0000020000001000") + QByteArray(484, '\0');
}

}  // namespace

/// A file that is empty or missing: a new store is created only if no other file shows that there was one.
class test_lost_store : public QObject {
    Q_OBJECT

private:
    static void add_columns()
    {
        QTest::addColumn<bool>("file");
        QTest::addColumn<QByteArray>("log");
        QTest::addColumn<QString>("copy");
        QTest::addColumn<QByteArray>("content_of_copy");
        QTest::addColumn<QByteArray>("journal");
    }

    /// Creates the files of the data row.
    static void prepare(const QString& path)
    {
        QFETCH(bool, file);
        QFETCH(QByteArray, log);
        QFETCH(QString, copy);
        QFETCH(QByteArray, content_of_copy);
        QFETCH(QByteArray, journal);
        if (file)
            put(path, {});
        if (!log.isNull())
            put(path + u"-wal", log);
        if (!journal.isNull())
            put(path + u"-journal", journal);
        if (!copy.isEmpty())
            put(QFileInfo(path).absolutePath() + u"/copies/" + copy, content_of_copy);
    }

private Q_SLOTS:
    void a_lost_store_is_refused_and_its_files_are_unchanged_data()
    {
        add_columns();
        const QString copy = u"Verdbase-2026-06-14.db"_s;
        QTest::newRow("empty file, log with content")
            << true << log_with_content() << QString() << QByteArray() << QByteArray();
        QTest::newRow("no file, log with content")
            << false << log_with_content() << QString() << QByteArray() << QByteArray();
        QTest::newRow("empty file, copy with content")
            << true << QByteArray() << copy << QByteArray("content") << QByteArray();
        QTest::newRow("empty file, empty log, copy with content")
            << true << QByteArray("") << copy << QByteArray("content") << QByteArray();
        QTest::newRow("empty file, journal with pages")
            << true << QByteArray() << QString() << QByteArray() << journal_of_pages(3);
        QTest::newRow("no file, journal with pages")
            << false << QByteArray() << QString() << QByteArray() << journal_of_pages(3);
        QTest::newRow("no file, journal that is cut")
            << false << QByteArray() << QString() << QByteArray() << journal_of_pages(3).first(20);
    }

    void a_lost_store_is_refused_and_its_files_are_unchanged()
    {
        QFETCH(bool, file);
        QFETCH(QByteArray, log);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"Verdbase.db"_s);
        prepare(path);
        for (const soundness_check check : {soundness_check::while_opening, soundness_check::later}) {
            Connection1 connection;
            QVERIFY(failure_of([&] { connection.Open(path, check); }) == failure_kind::store_damaged);
        }
        QCOMPARE(QFile::exists(path), file);
        QCOMPARE(QFileInfo(path).size(), 0);
        QCOMPARE(bytes_of(path + u"-wal"), log);
        QFETCH(QByteArray, journal);
        QCOMPARE(bytes_of(path + u"-journal"), journal);
    }

    void a_diary_is_created_where_there_was_none_data()
    {
        add_columns();
        QTest::newRow("no file") << false << QByteArray() << QString() << QByteArray() << QByteArray();
        QTest::newRow("empty file") << true << QByteArray() << QString() << QByteArray() << QByteArray();
        QTest::newRow("empty file, empty log")
            << true << QByteArray("") << QString() << QByteArray() << QByteArray();
        QTest::newRow("no file, empty log")
            << false << QByteArray("") << QString() << QByteArray() << QByteArray();
        QTest::newRow("no file, journal of a file that was created")
            << false << QByteArray() << QString() << QByteArray() << journal_of_pages(0);
        QTest::newRow("no file, journal that was not begun")
            << false << QByteArray() << QString() << QByteArray() << QByteArray(512, '\0');
        // A user who removes the file wants a new diary.
        QTest::newRow("no file, copy with content")
            << false << QByteArray() << u"Verdbase-2026-06-14.db"_s << QByteArray("content") << QByteArray();
        QTest::newRow("empty file, empty copy")
            << true << QByteArray() << u"Verdbase-2026-06-14.db"_s << QByteArray() << QByteArray();
        QTest::newRow("empty file, another program's copy")
            << true << QByteArray() << u"Music-2026-06-14.db"_s << QByteArray("content") << QByteArray();
    }

    void a_diary_is_created_where_there_was_none()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"Verdbase.db"_s);
        prepare(path);
        Connection1 connection;
        connection.Open(path);
        QCOMPARE(reader(path).number(u"select count(*) from settings"_s), 1);
    }

    void a_store_that_is_open_is_refused_by_a_link_data()
    {
        QTest::addColumn<bool>("open_by_link");
        QTest::newRow("open by its name") << false;
        QTest::newRow("open by the link") << true;
    }

    void a_store_that_is_open_is_refused_by_a_link()
    {
        QFETCH(bool, open_by_link);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"Verdbase.db"_s);
        const QString other = folder.filePath(u"link.db"_s);
        Connection1().Open(path);
        QVERIFY(QFile::link(path, other));
        Connection1 user;
        user.Open(open_by_link ? other : path);
        Connection1 second;
        QVERIFY(failure_of([&] { second.Open(open_by_link ? path : other); }) == failure_kind::store_locked);
        QVERIFY(QFile::exists(path) && QFileInfo(other).isSymLink());
    }

    void the_log_of_a_linked_file_is_found_in_the_folder_of_its_target()
    {
        const QTemporaryDir folder;
        const QString target = folder.filePath(u"target.db"_s);
        const QString path = folder.filePath(u"Verdbase.db"_s);
        put(target, {});
        const QByteArray log = log_with_content();
        put(target + u"-wal", log);
        QVERIFY(QFile::link(target, path));
        Connection1 connection;
        QVERIFY(failure_of([&] { connection.Open(path); }) == failure_kind::store_damaged);
        QCOMPARE(bytes_of(target + u"-wal"), log);
    }
};

QTEST_GUILESS_MAIN(test_lost_store)
#include "test_lost_store.moc"
