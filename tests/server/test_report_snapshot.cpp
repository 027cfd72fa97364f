#include <QSemaphore>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>
#include <QThread>

#include <memory>

#include "store/DataEnvironment1.h"
#include "store/table_copy.h"
#include "tests/server/own_server.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failures.h"
#include "tests/support/outside_connection.h"
#include "tests/support/reader.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// A new store on the server, which the program has open.
class open_store {
public:
    open_store() { data_environment().connection.Open(place); }
    ~open_store()
    {
        data_environment().connection.Close();
        remove_store_place(place);
    }
    open_store(const open_store&) = delete;
    open_store& operator=(const open_store&) = delete;

    const store_location place = new_program_store();
};

/// The database in memory to which a report copies its tables.
class memory {
public:
    memory() : database(QSqlDatabase::addDatabase(u"QSQLITE"_s, u"memory"_s))
    {
        database.setConnectOptions(u"QSQLITE_OPEN_URI"_s);
        database.setDatabaseName(u":memory:"_s);
        database.open();
    }
    ~memory()
    {
        database = {};
        QSqlDatabase::removeDatabase(u"memory"_s);
    }
    memory(const memory&) = delete;
    memory& operator=(const memory&) = delete;

    QString text(const QString& question) const
    {
        QSqlQuery query(database);
        return query.exec(question) && query.next() ? query.value(0).toString() : u"no row"_s;
    }

    QSqlDatabase database;
};

void copy(const store_location& place, const QStringList& tables, memory& target)
{
    copy_tables(place, {tables, 100}, target.database, {});
}

}  // namespace

/// The copy of the tables for a report.
class test_report_snapshot : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { administer(u"set global transaction isolation level read committed"_s); }

    void a_commit_between_two_tables_is_not_copied_on_a_server_that_reads_committed_rows()
    {
        const open_store store;
        const reader outside(store.place);
        outside.write(
            {u"insert into games (date) values ('1')"_s, u"insert into games2 (date) values ('1')"_s});
        // The copy waits for the second table, which the other connection then changes.
        const std::unique_ptr<QThread> thread(QThread::create([&] {
            const outside_connection server(store.place);
            server.run_unchanged(u"lock tables games2 write"_s);
            locked_.release();
            wait_until_a_table_is_awaited();
            server.run_unchanged(u"update games2 set date = '2'"_s);
            server.run_unchanged(u"unlock tables"_s);
        }));
        thread->start();
        locked_.acquire();
        memory target;
        copy(store.place, {u"games"_s, u"games2"_s}, target);
        thread->wait();
        QCOMPARE(outside.text(u"select date from games2"_s), u"2"_s);
        QCOMPARE(target.text(u"select date from games"_s), u"1"_s);
        QCOMPARE(target.text(u"select date from games2"_s), u"1"_s);
    }

    void after_a_copy_that_fails_the_program_commits_as_before()
    {
        const open_store store;
        const reader outside(store.place);
        outside.write(u"alter table partners rename column TEL to phone"_s);
        {
            memory target;
            QVERIFY(failure_of([&] {
                        copy(store.place, {u"settings"_s, u"partners"_s}, target);
                    }) == failure_kind::source_part);
        }
        data_environment().connection.Execute(u"update settings set language = 2"_s);
        QCOMPARE(outside.number(u"select language from settings"_s), 2);
        memory target;
        copy(store.place, {u"settings"_s}, target);
        QCOMPARE(target.text(u"select language from settings"_s), u"2"_s);
    }

private:
    QSemaphore locked_;
};

QTEST_GUILESS_MAIN(test_report_snapshot)
#include "test_report_snapshot.moc"
