#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "store/fresh_store.h"
#include "tests/store/store_child.h"
#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::reader;
using testing::start_child;
using testing::store_fixture;
using testing::whole_content;

/// The tables of a new file are created together.
class test_new_file : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void an_empty_file_gets_the_tables()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"Verdbase.db"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        Connection1 connection;
        connection.Open(path);
        QCOMPARE(reader(path).number(u"select count(*) from stats"_s), 34);
    }

    void after_a_failure_half_way_no_table_exists_and_the_next_start_creates_all()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"Verdbase.db"_s);
        {
            // The file has no tables and must not grow, so creating the tables fails half way.
            store_fixture other;
            Connection1& connection = other.connection;
            for (const auto& row :
                 other.outside().rows(u"select name from sqlite_master where type='table'"_s))
                connection.Execute(u"drop table " + row[0].toString());
            connection.Execute(u"vacuum"_s);
            connection.Execute(u"pragma max_page_count=6"_s);
            const auto run = [&](const QString& statement) { connection.Execute(statement); };
            QVERIFY(failure_of([&] { create_tables(connection.engine(), run); }) == failure_kind::store_full);
            QCOMPARE(other.outside().number(u"select count(*) from sqlite_master"_s), 0);
            connection.Close();
            QVERIFY(QFile::copy(other.path(), path));
        }
        Connection1 connection;
        connection.Open(path);
        QCOMPARE(reader(path).number(u"select count(*) from stat_sticks"_s), 14);
    }

    void a_store_that_lacks_a_table_is_not_repaired()
    {
        store_fixture store;
        store.connection.Execute(u"drop table partners"_s);
        store.connection.Close();
        const QString before = whole_content(store.outside());
        store.connection.Open(store.path());
        const auto partners = store.recordset(u"select * from partners order by name"_s);
        QVERIFY(failure_of([&] { partners->Open(); }) == failure_kind::missing_table);
        QVERIFY(!partners->is_open());
        QCOMPARE(whole_content(store.outside()), before);
    }

    void after_a_kill_during_the_first_start_the_next_start_creates_the_whole_store_data()
    {
        QTest::addColumn<int>("milliseconds");
        for (const int milliseconds : {1, 3, 6, 10, 15, 20, 30, 50})
            QTest::addRow("about %d ms in", milliseconds) << milliseconds;
    }

    void after_a_kill_during_the_first_start_the_next_start_creates_the_whole_store()
    {
        QFETCH(int, milliseconds);
        QTemporaryDir folder;
        const QString path = folder.filePath(u"Verdbase.db"_s);
        QProcess child;
        start_child(child, u"hold"_s, path);
        QVERIFY(child.waitForStarted());
        child.waitForReadyRead(milliseconds);
        child.kill();
        QVERIFY(child.waitForFinished(60000));
        Connection1 connection;
        connection.Open(path);
        const reader outside(path);
        QCOMPARE(outside.number(u"select count(*) from sqlite_master where type='table'"_s), 18);
        QCOMPARE(outside.number(u"select count(*) from sqlite_master where type='index'"_s), 4);
        QCOMPARE(outside.number(u"select count(*) from stat_sticks"_s), 14);
        QCOMPARE(outside.number(u"select count(*) from settings"_s), 1);
    }
};

QTEST_GUILESS_MAIN(test_new_file)
#include "test_new_file.moc"
