#include "store/fresh_store.h"

#include <QTest>

#include "store/schema.h"
#include "tests/store/store_fixture.h"
#include "tests/support/recordset_columns.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::store_fixture;
using testing::whole_content;

class test_fresh_store : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_fixed_grid_has_its_rows_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<int>("rows");
        const std::initializer_list<std::pair<const char*, int>> grids = {
            {"stats", 34},   {"s_put1", 5},      {"s_put2", 7},    {"stat_sticks", 14}, {"r_card", 2},
            {"sticks", 1},   {"sticknames", 1},  {"settings", 1},  {"games", 0},        {"games2", 0},
            {"cost", 0},     {"Stat_rounds", 0}, {"hand", 0},      {"r_cost", 0},       {"Cryst_hand", 0},
            {"partners", 0}, {"vrd_fields", 0},  {"field_info", 0}};
        for (const auto& [name, rows] : grids)
            QTest::addRow("%s", name) << QString::fromLatin1(name) << rows;
    }

    void a_fixed_grid_has_its_rows()
    {
        QFETCH(QString, table);
        QFETCH(int, rows);
        store_fixture store;
        QCOMPARE(store.outside().number(u"select count(*) from " + table), rows);
        QCOMPARE(store.opened(u"select * from " + table)->RecordCount(), rows);
    }

    void the_language_is_not_chosen_yet()
    {
        store_fixture store;
        QCOMPARE(store.outside().text(u"select language from settings"_s), u"0"_s);
    }

    void the_clubs_have_fourteen_different_names_and_the_putter_is_last()
    {
        store_fixture store;
        const auto names = store.opened(u"select * from sticknames"_s);
        QStringList all;
        for (int i = 0; i < 14; ++i)
            all += names->Fields(i).text();
        QCOMPARE(all.removeDuplicates(), 0);
        QVERIFY(!all.contains(QString()));
        QCOMPARE(all.last(), u"Pu"_s);
    }

    void averages_and_shot_counts_start_at_zero()
    {
        store_fixture store;
        const auto sticks = store.opened(u"select * from sticks"_s);
        sticks->MoveLast();
        for (int i = 0; i < 14; ++i) {
            QCOMPARE(sticks->Fields(i).to_double(), 0.0);
            QCOMPARE(plain(sticks->Fields(i + 73).to_int16()), 0);
        }
    }

    void the_club_grid_starts_with_the_names_and_zeros_as_text()
    {
        store_fixture store;
        const auto names = store.opened(u"select * from sticknames"_s);
        const auto grid = store.opened(u"select * from stat_sticks"_s);
        for (int club = 0; club < 14; ++club, grid->MoveNext()) {
            QCOMPARE(grid->Fields(0).text(), names->Fields(club).text());
            for (int i = 1; i <= 9; ++i)
                QCOMPARE(grid->Fields(i).value(), QVariant(u"0"_s));
        }
        QVERIFY(grid->eof());
    }

    void every_number_of_a_fixed_grid_starts_at_zero_and_no_text_is_null_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* grid : {"stats", "s_put1", "s_put2", "stat_sticks", "r_card"})
            QTest::addRow("%s", grid) << QString::fromLatin1(grid);
    }

    void every_number_of_a_fixed_grid_starts_at_zero_and_no_text_is_null()
    {
        QFETCH(QString, name);
        store_fixture store;
        const auto grid = store.opened(u"select * from " + name);
        const int columns = testing::column_count(*grid);
        for (; !grid->eof(); grid->MoveNext()) {
            for (int i = 0; i < columns; ++i) {
                if (grid->field_type(i) == column_type::text)
                    QVERIFY2(!grid->Fields(i).is_null(),
                             qPrintable(find_table(name)->columns[static_cast<std::size_t>(i)].name));
                else if (grid->field_type(i) != column_type::any)
                    QCOMPARE(grid->Fields(i).to_double(), 0.0);
            }
        }
    }

    void the_rows_of_a_grid_are_in_the_order_of_their_creation()
    {
        store_fixture store;
        const auto stats = store.opened(u"select * from stats"_s);
        for (int row = 0; row < 34; ++row, stats->MoveNext())
            QCOMPARE(stats->Fields(0).text(), QString::number(row));
        const auto putts = store.opened(u"select * from s_put2"_s);
        putts->MoveLast();
        QCOMPARE(putts->Fields(0).text(), u"7"_s);
    }

    void the_next_start_does_not_change_the_store()
    {
        store_fixture store;
        store.connection.Execute(u"update settings set language=2"_s);
        const QString before = whole_content(store.outside());
        store.connection.Close();
        store.connection.Open(store.location());
        QCOMPARE(whole_content(store.outside()), before);
    }
};

QTEST_GUILESS_MAIN(test_fresh_store)
#include "test_fresh_store.moc"
