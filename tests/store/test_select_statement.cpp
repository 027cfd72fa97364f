#include "store/select_statement.h"

#include <QTest>

using namespace verdane;
using namespace Qt::StringLiterals;

class test_select_statement : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_plain_select_is_updatable_data()
    {
        QTest::addColumn<QString>("statement");
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("fetched");
        const auto row = [](const char* statement, const char* table, const char* fetched) {
            QTest::addRow("%s", statement) << QString::fromLatin1(statement) << QString::fromLatin1(table)
                                           << QString::fromLatin1(fetched);
        };
        row("select *  from games order by date", "games", "select rowid, *  from games order by date");
        row("select hnd from HAND ", "HAND", "select rowid, hnd from HAND ");
        row(" select * from hand order by hnd asc", "hand", " select rowid, * from hand order by hnd asc");
        row("Select * from games", "games", "Select rowid, * from games");
        row("SELECT * FROM STAT_ROUNDS", "STAT_ROUNDS", "SELECT rowid, * FROM STAT_ROUNDS");
        row("select NAME, code from partners", "partners", "select rowid, NAME, code from partners");
        row("Select * from Stat_rounds where ( date= '20030614093000' ) and hole = 3 order by shot",
            "Stat_rounds",
            "Select rowid, * from Stat_rounds where ( date= '20030614093000' ) and hole = 3 order by shot");
        row("select * from games where ( date>= '1' AND date <='2') AND CODEF='A group by B'", "games",
            "select rowid, * from games where ( date>= '1' AND date <='2') AND CODEF='A group by B'");
        row("select * from partners where name='it''s, from here'", "partners",
            "select rowid, * from partners where name='it''s, from here'");
        row("select\t*\nfrom games", "games", "select\trowid, *\nfrom games");
        row("select * from games where date in (select date from cost group by date)", "games",
            "select rowid, * from games where date in (select date from cost group by date)");
        row("select * from `games` limit 3", "games", "select rowid, * from `games` limit 3");
    }

    void a_plain_select_is_updatable()
    {
        QFETCH(QString, statement);
        QFETCH(QString, table);
        QFETCH(QString, fetched);
        const select_statement shape = read_select(statement);
        QVERIFY(shape.updatable);
        QCOMPARE(shape.table, table);
        QCOMPARE(with_row_number(statement, shape, u"rowid"_s), fetched);
    }

    void every_star_of_the_columns_is_qualified_and_nothing_else()
    {
        const QString statement = u"Select *, date from Games where field='*' order by date"_s;
        QCOMPARE(with_qualified_columns(statement, read_select(statement)),
                 u"Select `Games`.*, date from Games where field='*' order by date"_s);
    }

    void anything_joined_grouped_or_computed_is_read_only_data()
    {
        QTest::addColumn<QString>("statement");
        for (const char* statement :
             {"select * from games, games2", "select * from games join cost on games.date=cost.date",
              "select date from Stat_rounds group by date", "select count(*) from games",
              "select SUM(addpen) from Stat_rounds where hole=1", "select distinct date from games",
              "select date from games union select date from cost", "select hnd*2 from hand",
              "select hnd as h from hand", "select * from games g", "select * from (select 1)",
              "delete from games", "select 1", "", "select", "select from games", "select *, from games",
              "select hnd h from hand"})
            QTest::addRow("%s", statement) << QString::fromLatin1(statement);
    }

    void anything_joined_grouped_or_computed_is_read_only()
    {
        QFETCH(QString, statement);
        QVERIFY(!read_select(statement).updatable);
    }
};

QTEST_GUILESS_MAIN(test_select_statement)
#include "test_select_statement.moc"
