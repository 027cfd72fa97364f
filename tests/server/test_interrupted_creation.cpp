#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>
#include <QTest>

#include <chrono>

#include "store/Connection1.h"
#include "store/schema.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/outside_connection.h"
#include "tests/support/reader.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const int all_tables = static_cast<int>(schema().size());

/// The child process: opens the empty store, which creates its tables.
int create_tables()
{
    Connection1 connection;
    connection.Open();
    return 0;
}

int number_of_tables(const outside_connection& server)
{
    QSqlQuery query = server.run_unchanged(
        u"select count(*) from information_schema.tables where table_schema = database()"_s);
    return all_rows(query)[0][0].toInt();
}

/// Kills the program as soon as its store has that number of tables. Returns the number that it then has.
int tables_after_kill(const store_location& place, int tables)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {u"--create"_s});
    {
        const outside_connection server(place);
        const QDeadlineTimer limit(std::chrono::seconds(60));
        while (number_of_tables(server) < tables && !limit.hasExpired()) {
        }
    }
    child.kill();
    child.waitForFinished();
    reader(place).wait_until_unused();
    return number_of_tables(outside_connection(place));
}

/// Every row of every table, in the order in which they were added.
QStringList content_of(const store_location& place)
{
    QStringList content;
    for (const table& each : schema()) {
        for (const auto& row : reader(place).rows(u"select * from `%1` order by rowid"_s.arg(each.name))) {
            QString line = each.name;
            for (const QVariant& value : row)
                line += u'|' + (value.isNull() ? u"NULL"_s : value.toString());
            content << line;
        }
    }
    return content;
}

QStringList content_of_new_store()
{
    const store_location place = new_program_store();
    Connection1().Open(place);
    return content_of(place);
}

}  // namespace

/// The program is killed while it creates the tables on a server, which commits each of them by itself.
class test_interrupted_creation : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_next_start_completes_the_tables_data()
    {
        QTest::addColumn<int>("tables");
        for (const int tables : {1, 2, 6, 8, 9, 10, 11, 14, 17})
            QTest::addRow("%d tables", tables) << tables;
    }

    void the_next_start_completes_the_tables()
    {
        QFETCH(int, tables);
        const QStringList expected = content_of_new_store();
        store_location place;
        int found = all_tables;
        // A program may have created the other tables before it is killed.
        for (int tries = 0; tries < 20 && found == all_tables; ++tries) {
            place = new_program_store();
            found = tables_after_kill(place, tables);
        }
        QVERIFY2(found >= tables && found < all_tables, qPrintable(QString::number(found)));
        Connection1 connection;
        connection.Open(place);
        QCOMPARE(content_of(place), expected);
        QCOMPARE(connection.identity_script(), QString());
        connection.Close();
        connection.Open(place);
        QCOMPARE(content_of(place), expected);
    }
};

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().value(1) == u"--create")
        return create_tables();
    test_interrupted_creation test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_interrupted_creation.moc"
