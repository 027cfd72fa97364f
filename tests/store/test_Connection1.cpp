#include <QTest>

#include "store/commits.h"
#include "tests/store/store_child.h"
#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::child_failure;
using testing::failure_of;
using testing::start_child;
using testing::store_fixture;

namespace {

QString setting(Connection1& connection, const char* name)
{
    Recordset pragma(connection, {u"rspragma"_s, u"PRAGMA " + QString::fromLatin1(name)});
    pragma.Open();
    return pragma.Fields(0).text();
}

}  // namespace

class test_Connection1 : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_missing_folder_is_created()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"a/b c/é/Verdbase.db"_s);
        Connection1 connection;
        connection.Open(path);
        QVERIFY(QFile::exists(path));
        QCOMPARE(connection.path(), path);
    }

    void the_default_path_is_in_the_data_folder_of_the_user()
    {
        QVERIFY(Connection1::default_path().endsWith(u"/Verdbase.db"_s));
        QVERIFY(QDir::isAbsolutePath(Connection1::default_path()));
    }

    void commits_survive_a_power_cut()
    {
        store_fixture store;
        QCOMPARE(setting(store.connection, "journal_mode"), u"wal"_s);
        QCOMPARE(setting(store.connection, "synchronous"), u"2"_s);
    }

    void the_cache_is_large_enough_for_a_full_diary()
    {
        store_fixture store;
        constexpr int kilobytes_of_full_diary = 4 * 1024;
        QVERIFY(-setting(store.connection, "cache_size").toInt() > 2 * kilobytes_of_full_diary);
    }

    void an_open_connection_cannot_be_opened()
    {
        store_fixture store;
        QVERIFY(failure_of([&] { store.connection.Open(store.path()); }) == failure_kind::misuse);
        QVERIFY(store.connection.is_open());
    }

    void closing_twice_is_harmless_and_leaves_one_file()
    {
        store_fixture store;
        store.add_partners({u"a"_s});
        store.connection.Close();
        store.connection.Close();
        QVERIFY(!store.connection.is_open());
        const QDir folder = QFileInfo(store.path()).absoluteDir();
        QCOMPARE(folder.entryList(QDir::Files), QStringList{u"Verdbase.db"_s});
        QCOMPARE(testing::stored_names(store), u"a"_s);
    }

    void another_connection_reads_while_the_program_writes()
    {
        store_fixture store;
        store.connection.Execute(u"BEGIN IMMEDIATE"_s);
        store.add_partners({u"a"_s});
        QCOMPARE(testing::stored_names(store), QString());
        store.connection.Execute(u"COMMIT"_s);
        QCOMPARE(testing::stored_names(store), u"a"_s);
    }

    void a_second_connection_of_the_same_program_is_refused()
    {
        store_fixture store;
        Connection1 second;
        QVERIFY(failure_of([&] { second.Open(store.path()); }) == failure_kind::store_locked);
        QVERIFY(!second.is_open());
        store.add_partners({u"a"_s});
        store.connection.Close();
        second.Open(store.path());
        QVERIFY(second.is_open());
    }

    void a_second_program_is_refused_until_the_first_ends()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"Verdbase.db"_s);
        QProcess first;
        start_child(first, u"hold"_s, path);
        QVERIFY(first.waitForReadyRead(60000));
        Connection1 second;
        QVERIFY(failure_of([&] { second.Open(path); }) == failure_kind::store_locked);
        QCOMPARE(testing::reader(path).number(u"select count(*) from stats"_s), 34);
        first.closeWriteChannel();
        QVERIFY(!child_failure(first));
        second.Open(path);
        QVERIFY(second.is_open());
    }

    void a_store_in_use_is_refused_as_locked()
    {
        store_fixture store;
        QProcess second;
        start_child(second, u"hold"_s, store.path());
        QVERIFY(child_failure(second) == failure_kind::store_locked);
    }

    void a_lock_file_without_a_running_owner_has_no_effect_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("cut short") << QByteArray();
        QTest::newRow("garbage") << QByteArray("\0\0\0\0", 4);
        QTest::newRow("written elsewhere") << QByteArray("1\nverdane\nanother-machine\n");
        QTest::newRow("dead owner") << QByteArray("999999999\nverdane\n\n");
    }

    void a_lock_file_without_a_running_owner_has_no_effect()
    {
        QFETCH(QByteArray, content);
        store_fixture store;
        store.connection.Close();
        QFile lock(store.path() + u".lock");
        QVERIFY(lock.open(QIODevice::WriteOnly));
        lock.write(content);
        lock.close();
        store.connection.Open(store.path());
        QVERIFY(store.connection.is_open());
    }

    void after_relaxed_commits_the_next_commit_is_safe_again()
    {
        store_fixture store;
        {
            const relaxed_commits outer(store.connection);
            {
                const relaxed_commits inner(store.connection);
                store.add_partners({u"a"_s});
            }
            QCOMPARE(setting(store.connection, "synchronous"), u"1"_s);
            QCOMPARE(testing::stored_names(store), u"a"_s);
        }
        QCOMPARE(setting(store.connection, "synchronous"), u"2"_s);
        QCOMPARE(testing::stored_names(store), u"a"_s);
    }

    void relaxed_commits_may_outlive_the_connection()
    {
        store_fixture store;
        {
            const relaxed_commits relaxed(store.connection);
            store.connection.Close();
        }
        store.connection.Open(store.path());
        QCOMPARE(setting(store.connection, "synchronous"), u"2"_s);
    }

    void the_bulk_deletes_delete_their_rows_data()
    {
        QTest::addColumn<QString>("statement");
        for (const char* statement :
             {"delete from games where date='20030614093000'",
              "delete from games2 where date='20030614093000'",
              "delete from stat_rounds where date='20030614093000'",
              "Delete from vrd_fields where code = 'BOIS-0'",
              "Delete from FIELD_INFO where FIELD_CODE = 'BOIS-0'", "DELETE FROM HAND"})
            QTest::addRow("%s", statement) << QString::fromLatin1(statement);
    }

    void the_bulk_deletes_delete_their_rows()
    {
        QFETCH(QString, statement);
        store_fixture store;
        for (const char* fill :
             {"insert into games (date) values ('20030614093000')",
              "insert into games2 (date) values ('20030614093000')",
              "insert into stat_rounds (date) values ('20030614093000')",
              "insert into vrd_fields (code) values ('BOIS-0')",
              "insert into field_info (FIELD_CODE) values ('BOIS-0')", "insert into hand values (3.5)"})
            store.connection.Execute(QString::fromLatin1(fill));
        const QString table = statement.split(u' ')[2];
        QCOMPARE(store.outside().number(u"select count(*) from " + table), 1);
        store.connection.Execute(statement);
        QCOMPARE(store.outside().number(u"select count(*) from " + table), 0);
    }

    void a_statement_on_a_missing_table_is_a_missing_part()
    {
        store_fixture store;
        QVERIFY(failure_of([&] { store.connection.Execute(u"delete from golfers"_s); }) ==
                failure_kind::missing_table);
    }

    void a_quoted_text_doubles_its_quotes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("result");
        QTest::newRow("key") << u"20030614093000"_s << u"'20030614093000'"_s;
        QTest::newRow("quote") << u"l'allée"_s << u"'l''allée'"_s;
        QTest::newRow("empty") << QString() << u"''"_s;
    }

    void a_quoted_text_doubles_its_quotes()
    {
        QFETCH(QString, text);
        QFETCH(QString, result);
        QCOMPARE(quoted(text), result);
    }
};

QTEST_GUILESS_MAIN(test_Connection1)
#include "test_Connection1.moc"
