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
                         const QString& transactions = u"YES"_s, const QString& collation = QString())
{
    QSqlQuery query(QSqlDatabase::database());
    if (!query.exec(u"select *, 'int', 0, '%1', '%2', 'int(11)', '%3', null, 'YES', null from (values "_s.arg(
                        engine, transactions, collation) +
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

    void a_row_column_that_is_not_numbered_or_not_unique_identifies_no_rows()
    {
        for (const QString& rows :
             {u"('games','verdane_row','PRI','')"_s, u"('games','verdane_row','','auto_increment')"_s,
              u"('games','verdane_row','MUL','auto_increment, INVISIBLE')"_s,
              u"('games','date','PRI',''),"
              "('games','verdane_row','PRI','auto_increment')"_s})
            QVERIFY2(!described(rows).has_row_column(u"games"), qPrintable(rows));
        QVERIFY(described(u"('games','date','PRI',''),('games','verdane_row','UNI','auto_increment')"_s)
                    .has_row_column(u"games"));
    }

    void a_table_with_a_primary_key_of_its_own_does_not_keep_the_order_of_its_rows()
    {
        const auto keeps = [](const QString& rows) { return described(rows).keeps_order(u"Games"); };
        QVERIFY(!keeps(u"('games','date','PRI','')"_s));
        QVERIFY(!keeps(u"('games','date','PRI',''),('games','number','PRI','auto_increment')"_s));
        QVERIFY(keeps(u"('games','date','','')"_s));
        QVERIFY(keeps(u"('games','date','',''),('games','number','PRI','auto_increment')"_s));
        QVERIFY(keeps(u"('games','date','PRI',''),('games','verdane_row','UNI','auto_increment')"_s));
    }

    void the_script_adds_a_key_of_the_kind_that_a_table_can_have()
    {
        const mariadb_tables tables =
            described(u"('games','date','PRI',''),('games2','date','',''),('cost','verdane_row','PRI',''),"
                      "('partners','code','UNI','auto_increment')"_s);
        const QString script = tables.row_column_script();
        QVERIFY(script.contains(u"ALTER TABLE `games` ADD COLUMN verdane_row BIGINT AUTO_INCREMENT UNIQUE"));
        QVERIFY(script.contains(u"`games2` ADD COLUMN verdane_row BIGINT AUTO_INCREMENT PRIMARY KEY"));
        QVERIFY(script.contains(u"ALTER TABLE `cost` DROP COLUMN verdane_row;\nALTER TABLE `cost` ADD COLUMN "
                                "verdane_row BIGINT AUTO_INCREMENT PRIMARY KEY"));
        QVERIFY(!script.contains(u"`partners`"));
        QCOMPARE(script.count(u"ADD COLUMN"), static_cast<qsizetype>(schema().size()) - 1);
    }

    void a_text_of_the_store_with_another_collation_is_noticed()
    {
        const auto noticed = [](const QString& table, const QString& collation) {
            return described(u"('%1','date','','')"_s.arg(table), u"InnoDB"_s, u"YES"_s, collation)
                .has_other_collations();
        };
        QVERIFY(noticed(u"Games"_s, u"utf8mb4_general_ci"_s));
        QVERIFY(noticed(u"games"_s, u"utf8mb4_bin"_s));
        QVERIFY(!noticed(u"games"_s, u"utf8mb4_nopad_bin"_s));
        QVERIFY(!noticed(u"games"_s, QString()));
        QVERIFY(!noticed(u"invoices"_s, u"utf8mb4_general_ci"_s));
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
