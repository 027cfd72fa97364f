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
    testing::test_store place_;

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
        start_child(child, u"write"_s, place_.location().name);
        for (int seen = 0; seen < commits;) {
            QVERIFY(child.waitForReadyRead(60000));
            while (child.canReadLine() && seen < commits) {
                last_printed_ = child.readLine().trimmed().toInt();
                ++seen;
            }
        }
        child.kill();
        QVERIFY(child.waitForFinished(60000));
        while (child.canReadLine())
            last_printed_ = child.readLine().trimmed().toInt();
        Connection1 connection;
        connection.Open(place_.location());
        const reader outside(place_.location());
        // One more may have been committed without having been printed.
        const int stored = outside.number(u"select count(*) from partners"_s);
        QVERIFY(stored == last_printed_ || stored == last_printed_ + 1);
        QCOMPARE(outside.number(u"select max(code) from partners"_s), stored);
        QCOMPARE(outside.number(u"select count(distinct code) from partners where length(AD1)=500"_s),
                 stored);
        QCOMPARE(outside.damage(), QString());
    }

private:
    int last_printed_ = 0;
};

QTEST_GUILESS_MAIN(test_store_kill)
#include "test_store_kill.moc"
