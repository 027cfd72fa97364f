#include <QTest>

#include "tests/store/store_child.h"
#include "tests/store/store_fixture.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::reader;
using testing::start_child;

/// A program that is killed while it writes.
class test_store_kill : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder_;
    QString path_ = folder_.filePath(u"Verdbase.db"_s);

private Q_SLOTS:
    void after_a_kill_committed_rows_remain_and_the_next_start_opens_the_store_data()
    {
        QTest::addColumn<int>("commits");
        for (const int commits : {1, 2, 7, 40, 200})
            QTest::addRow("after %d more commits", commits) << commits;
    }

    void after_a_kill_committed_rows_remain_and_the_next_start_opens_the_store()
    {
        QFETCH(int, commits);
        QProcess child;
        start_child(child, u"write"_s, path_);
        for (int seen = 0; seen < commits;) {
            QVERIFY(child.waitForReadyRead(60000));
            while (child.canReadLine() && seen < commits) {
                last_said_ = child.readLine().trimmed().toInt();
                ++seen;
            }
        }
        child.kill();
        QVERIFY(child.waitForFinished(60000));
        while (child.canReadLine())
            last_said_ = child.readLine().trimmed().toInt();
        Connection1 connection;
        connection.Open(path_);
        const reader outside(path_);
        // One more may have been committed without having been printed.
        const int stored = outside.number(u"select count(*) from partners"_s);
        QVERIFY(stored == last_said_ || stored == last_said_ + 1);
        QCOMPARE(outside.number(u"select max(code) from partners"_s), stored);
        QCOMPARE(outside.number(u"select count(distinct code) from partners where length(AD1)=500"_s),
                 stored);
        QCOMPARE(outside.text(u"pragma integrity_check"_s), u"ok"_s);
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

private:
    int last_said_ = 0;
};

QTEST_GUILESS_MAIN(test_store_kill)
#include "test_store_kill.moc"
