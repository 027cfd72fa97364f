#include <QTest>

#include "tests/store/store_child.h"
#include "tests/store/store_fixture.h"

using namespace verdane;
using testing::reader;
using testing::start_child;

/// A program that is killed while it writes.
class test_store_kill : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder_;
    QString path_ = folder_.filePath(QStringLiteral("Verdbase.db"));

private Q_SLOTS:
    void what_was_committed_stays_and_the_next_start_is_not_kept_out_data()
    {
        QTest::addColumn<int>("commits");
        for (const int commits : {1, 2, 7, 40, 200})
            QTest::addRow("after %d more commits", commits) << commits;
    }

    void what_was_committed_stays_and_the_next_start_is_not_kept_out()
    {
        QFETCH(int, commits);
        QProcess child;
        start_child(child, QStringLiteral("write"), path_);
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
        // One more may have been committed without having been said.
        const int stored = outside.number(QStringLiteral("select count(*) from partners"));
        QVERIFY(stored == last_said_ || stored == last_said_ + 1);
        QCOMPARE(outside.number(QStringLiteral("select max(code) from partners")), stored);
        QCOMPARE(
            outside.number(QStringLiteral("select count(distinct code) from partners where length(AD1)=500")),
            stored);
        QCOMPARE(outside.text(QStringLiteral("pragma integrity_check")), QStringLiteral("ok"));
    }

    void a_first_start_that_is_killed_leaves_nothing_half_laid_down_data()
    {
        QTest::addColumn<int>("milliseconds");
        for (const int milliseconds : {1, 3, 6, 10, 15, 20, 30, 50})
            QTest::addRow("about %d ms in", milliseconds) << milliseconds;
    }

    void a_first_start_that_is_killed_leaves_nothing_half_laid_down()
    {
        QFETCH(int, milliseconds);
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("Verdbase.db"));
        QProcess child;
        start_child(child, QStringLiteral("hold"), path);
        QVERIFY(child.waitForStarted());
        child.waitForReadyRead(milliseconds);
        child.kill();
        QVERIFY(child.waitForFinished(60000));
        Connection1 connection;
        connection.Open(path);
        const reader outside(path);
        QCOMPARE(outside.number(QStringLiteral("select count(*) from sqlite_master where type='table'")), 18);
        QCOMPARE(outside.number(QStringLiteral("select count(*) from sqlite_master where type='index'")), 4);
        QCOMPARE(outside.number(QStringLiteral("select count(*) from stat_sticks")), 14);
        QCOMPARE(outside.number(QStringLiteral("select count(*) from settings")), 1);
    }

private:
    int last_said_ = 0;
};

QTEST_GUILESS_MAIN(test_store_kill)
#include "test_store_kill.moc"
