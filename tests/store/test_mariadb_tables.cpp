#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>

#include "base/run_time_failure.h"
#include "store/engines/mariadb_tables.h"
#include "store/schema.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

/// The tables that a server describes by those rows: table, column, key, further properties. All columns are
/// whole numbers.
mariadb_tables described(const QString& rows, const QString& engine = u"InnoDB"_s,
                         const QString& transactions = u"YES"_s)
{
    QSqlQuery query(QSqlDatabase::database());
    if (!query.exec(u"select *, 'int', 0, '%1', '%2', 'int(11)' from (values "_s.arg(engine, transactions) +
                    rows + u')'))
        qFatal("wrong rows: %s", qUtf8Printable(rows));
    return mariadb_tables(query);
}

QStringList names_of(const QList<source_column>& columns)
{
    QStringList names;
    for (const source_column& column : columns)
        names << column.name;
    return names;
}

}  // namespace

/// What a server reports about its tables.
class test_mariadb_tables : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QSqlDatabase memory = QSqlDatabase::addDatabase(u"QSQLITE"_s);
        memory.setDatabaseName(u":memory:"_s);
        QVERIFY(memory.open());
    }

    void an_invisible_column_is_not_listed_among_the_columns_of_a_table()
    {
        const mariadb_tables tables =
            described(u"('Games','date','',''),('Games','verdane_row','PRI','INVISIBLE, auto_increment'),"
                      u"('Games','remark','','INVISIBLE'),('Games','field','','')"_s);
        QCOMPARE(names_of(tables.columns().value(u"games"_s)), (QStringList{u"date"_s, u"field"_s}));
        QVERIFY(tables.has_row_column(u"GAMES"));
        QVERIFY(tables.contains(u"GAMES"));
        QVERIFY(!tables.contains(u"games2"));
    }

    void a_visible_row_column_has_a_place_among_the_columns()
    {
        const mariadb_tables tables =
            described(u"('games','verdane_row','PRI','auto_increment'),('games','date','','')"_s);
        QCOMPARE(names_of(tables.columns().value(u"games"_s)), (QStringList{u"verdane_row"_s, u"date"_s}));
        QVERIFY(tables.has_row_column(u"games"));
    }

    void the_script_adds_a_key_of_the_kind_that_a_table_can_have()
    {
        const mariadb_tables tables = described(u"('games','date','PRI',''),('games2','date','','')"_s);
        const QString script = tables.row_column_script();
        QVERIFY(script.contains(u"ALTER TABLE `games` ADD COLUMN verdane_row BIGINT AUTO_INCREMENT UNIQUE"));
        QVERIFY(script.contains(u"`games2` ADD COLUMN verdane_row BIGINT AUTO_INCREMENT PRIMARY KEY"));
        QCOMPARE(script.count(u";\n"_s), static_cast<qsizetype>(schema().size()));
    }

    void a_column_has_the_type_of_the_server()
    {
        const source_column column =
            described(u"('games','date','','')"_s).columns().value(u"games"_s).value(0);
        QCOMPARE(column.type, u"int(11)"_s);
        QVERIFY(column.content == column_content::whole_numbers);
    }

    void tables_of_the_store_without_transactions_are_refused_by_name()
    {
        const QString rows = u"('Games','date','',''),('invoices','number','','')"_s;
        try {
            described(rows, u"MyISAM"_s, u"NO"_s).check_transactions();
            QFAIL("the tables were accepted");
        } catch (const run_time_failure& failure) {
            QCOMPARE(failure.kind(), failure_kind::source_storage);
            QCOMPARE(failure.details(), u"games (MyISAM)"_s);
        }
        described(rows).check_transactions();
        described(u"('invoices','number','','')"_s, u"Aria"_s, u"NO"_s).check_transactions();
    }
};

QTEST_GUILESS_MAIN(test_mariadb_tables)
#include "test_mariadb_tables.moc"
