#include "store/schema.h"

#include <QTest>

#include "tests/store/store_fixture.h"
#include "tests/support/recordset_columns.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::store_fixture;

namespace {

struct place {
    const char* table;
    const char* column;
    int ordinal;
};

constexpr place places[] = {
    {"games", "date", 0},
    {"games", "field", 1},
    {"games", "CODEF", 2},
    {"games", "long_1", 3},
    {"games", "approach_1", 4},
    {"games", "putt_1", 5},
    {"games", "long_18", 54},
    {"games", "approach_18", 55},
    {"games", "putt_18", 56},
    {"games", "games_spare_a1", 57},
    {"games", "games_spare_a6", 62},
    {"games", "pen_rule_1", 63},
    {"games", "pen_water_1", 64},
    {"games", "pen_bounds_1", 65},
    {"games", "pen_lost_1", 66},
    {"games", "pen_rule_18", 131},
    {"games", "pen_lost_18", 134},
    {"games", "games_spare_b1", 135},
    {"games", "games_spare_b18", 152},
    {"games", "missed_1", 153},
    {"games", "missed_18", 170},
    {"games2", "date", 0},
    {"games2", "conditionM", 1},
    {"games2", "PARTNERS", 2},
    {"games2", "sand_1", 3},
    {"games2", "sand_18", 20},
    {"games2", "recovery_1", 21},
    {"games2", "recovery_18", 38},
    {"games2", "games2_spare_1", 39},
    {"games2", "games2_spare_36", 74},
    {"games2", "fairway_1", 75},
    {"games2", "fairway_18", 92},
    {"games2", "putt_len_1_1", 93},
    {"games2", "putt_len_1_6", 98},
    {"games2", "putt_len_18_1", 195},
    {"games2", "putt_len_18_6", 200},
    {"games2", "temperature", 201},
    {"games2", "FC", 202},
    {"cost", "date", 0},
    {"cost", "fg", 1},
    {"cost", "tee", 6},
    {"cost", "au", 12},
    {"Stat_rounds", "date", 0},
    {"Stat_rounds", "hole", 1},
    {"Stat_rounds", "before", 2},
    {"Stat_rounds", "after", 3},
    {"Stat_rounds", "shot_type", 4},
    {"Stat_rounds", "stick", 5},
    {"Stat_rounds", "beyong_hole", 6},
    {"Stat_rounds", "missed", 7},
    {"Stat_rounds", "ts", 8},
    {"Stat_rounds", "dz", 9},
    {"Stat_rounds", "faireway", 10},
    {"Stat_rounds", "penality", 11},
    {"Stat_rounds", "shot", 12},
    {"Stat_rounds", "stickval", 13},
    {"Stat_rounds", "fairval", 14},
    {"Stat_rounds", "penval", 15},
    {"Stat_rounds", "shot_type_value", 16},
    {"Stat_rounds", "cal", 17},
    {"Stat_rounds", "normal", 18},
    {"Stat_rounds", "addpen", 19},
    {"Stat_rounds", "unit", 20},
    {"Stat_rounds", "verges", 21},
    {"vrd_fields", "code", 0},
    {"vrd_fields", "name", 1},
    {"vrd_fields", "vrd_spare_a", 2},
    {"vrd_fields", "address_3", 3},
    {"vrd_fields", "address_1", 4},
    {"vrd_fields", "address_2", 5},
    {"vrd_fields", "vrd_spare_b", 6},
    {"vrd_fields", "name_tee", 7},
    {"vrd_fields", "rating", 8},
    {"vrd_fields", "slope", 9},
    {"vrd_fields", "tee", 10},
    {"field_info", "FIELD_CODE", 0},
    {"field_info", "yards_1", 1},
    {"field_info", "yards_18", 18},
    {"field_info", "hcp_1", 19},
    {"field_info", "hcp_18", 36},
    {"field_info", "info_spare", 37},
    {"field_info", "par_1", 38},
    {"field_info", "par_18", 55},
    {"partners", "NAME", 0},
    {"partners", "SURNAME", 1},
    {"partners", "AD1", 2},
    {"partners", "AD2", 3},
    {"partners", "TEL", 4},
    {"partners", "MAIL", 5},
    {"partners", "code", 6},
    {"sticks", "avg_1", 0},
    {"sticks", "avg_14", 13},
    {"sticks", "sticks_spare_1", 14},
    {"sticks", "sticks_spare_59", 72},
    {"sticks", "shots_1", 73},
    {"sticks", "shots_14", 86},
    {"sticknames", "club_1", 0},
    {"sticknames", "club_14", 13},
    {"settings", "language", 0},
    {"stats", "stat_line", 0},
    {"stats", "hole_1", 1},
    {"stats", "hole_18", 18},
    {"stats", "stats_spare_a", 19},
    {"stats", "course_text", 20},
    {"stats", "weather_text", 21},
    {"stats", "from_text", 22},
    {"stats", "to_text", 23},
    {"stats", "partner_text", 24},
    {"stats", "stats_spare_b", 25},
    {"stats", "average_mark", 26},
    {"stats", "front_nine", 27},
    {"stats", "back_nine", 28},
    {"stats", "all_holes", 29},
    {"stats", "handicap_text", 30},
    {"stats", "round_count", 31},
    {"s_put1", "put_line", 0},
    {"s_put1", "band_1", 1},
    {"s_put1", "band_7", 7},
    {"s_put1", "put_spare_1", 8},
    {"s_put1", "put_spare_3", 10},
    {"s_put1", "from_date", 11},
    {"s_put1", "to_date", 12},
    {"s_put1", "mean_band_1", 13},
    {"s_put1", "mean_band_7", 19},
    {"s_put1", "mean_all", 20},
    {"s_put1", "axis_first", 21},
    {"s_put1", "axis_after", 22},
    {"s_put1", "weather_text", 23},
    {"s_put1", "partner_text", 24},
    {"s_put1", "course_text", 25},
    {"s_put1", "round_count", 26},
    {"s_put2", "put_line", 0},
    {"s_put2", "band_7", 7},
    {"s_put2", "put_spare_3", 10},
    {"s_put2", "weighted_mean", 11},
    {"s_put2", "rating_text", 12},
    {"s_put2", "axis_after2", 13},
    {"s_put2", "axis_first2", 14},
    {"stat_sticks", "club_name", 0},
    {"stat_sticks", "shot_count", 1},
    {"stat_sticks", "longest", 2},
    {"stat_sticks", "average", 3},
    {"stat_sticks", "pct_fairway", 4},
    {"stat_sticks", "pct_right", 5},
    {"stat_sticks", "pct_left", 6},
    {"stat_sticks", "pct_missed", 7},
    {"stat_sticks", "pct_penalty", 8},
    {"stat_sticks", "pct_holed", 9},
    {"stat_sticks", "sticks_spare", 10},
    {"stat_sticks", "heading_text", 11},
    {"stat_sticks", "from_date", 12},
    {"stat_sticks", "to_date", 13},
    {"stat_sticks", "course_text", 14},
    {"stat_sticks", "partner_text", 15},
    {"stat_sticks", "weather_text", 16},
    {"stat_sticks", "round_count", 17},
    {"r_cost", "date", 0},
    {"r_cost", "fg", 1},
    {"r_cost", "au", 12},
    {"r_cost", "cost_spare", 13},
    {"r_cost", "round_count", 14},
    {"hand", "hnd", 0},
    {"r_card", "card_row", 0},
    {"r_card", "card_yards_1", 1},
    {"r_card", "card_yards_9", 9},
    {"r_card", "card_hole_1", 10},
    {"r_card", "card_hole_9", 18},
    {"r_card", "card_hcp_1", 19},
    {"r_card", "card_hcp_9", 27},
    {"r_card", "card_par_1", 28},
    {"r_card", "card_par_9", 36},
    {"r_card", "card_name", 37},
    {"r_card", "card_slope", 38},
    {"r_card", "card_tee", 39},
    {"r_card", "card_rating", 40},
    {"r_card", "card_spare", 41},
    {"r_card", "card_club_1", 42},
    {"r_card", "card_club_13", 54},
};

struct width {
    const char* table;
    int columns;
};

constexpr width widths[] = {
    {"games", 171},     {"games2", 203}, {"cost", 13},      {"Stat_rounds", 22}, {"vrd_fields", 11},
    {"field_info", 56}, {"partners", 7}, {"sticks", 87},    {"sticknames", 14},  {"settings", 1},
    {"stats", 32},      {"s_put1", 27},  {"s_put2", 15},    {"stat_sticks", 18}, {"r_cost", 15},
    {"r_card", 55},     {"hand", 1},     {"Cryst_hand", 1},
};

}  // namespace

class test_schema_columns : public QObject {
    Q_OBJECT

private:
    store_fixture store_;

private Q_SLOTS:
    void a_column_has_its_ordinal_in_the_file_and_in_a_recordset_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("column");
        QTest::addColumn<int>("ordinal");
        for (const place& p : places)
            QTest::addRow("%s.%s", p.table, p.column)
                << QString::fromLatin1(p.table) << QString::fromLatin1(p.column) << p.ordinal;
    }

    void a_column_has_its_ordinal_in_the_file_and_in_a_recordset()
    {
        QFETCH(QString, table);
        QFETCH(QString, column);
        QFETCH(int, ordinal);
        const QString question = u"select cid from pragma_table_info('%1') where name='%2'"_s;
        QCOMPARE(store_.outside().number(question.arg(table, column)), ordinal);
        const auto recordset = store_.opened(u"select * from " + table);
        QCOMPARE(recordset->Fields(column.toUpper()).ordinal(), ordinal);
    }

    void a_table_has_exactly_this_number_of_columns_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("columns");
        for (const width& w : widths)
            QTest::addRow("%s", w.table) << QString::fromLatin1(w.table) << w.columns;
    }

    void a_table_has_exactly_this_number_of_columns()
    {
        QFETCH(QString, name);
        QFETCH(int, columns);
        const QString question = u"select count(*) from pragma_table_info('%1')"_s.arg(name);
        QCOMPARE(store_.outside().number(question), columns);
        QCOMPARE(testing::column_count(*store_.opened(u"select * from " + name)), columns);
    }

    void the_file_has_exactly_these_eighteen_tables()
    {
        QCOMPARE(store_.outside().number(u"select count(*) from sqlite_master where type='table'"_s),
                 static_cast<int>(std::size(widths)));
    }

    void every_column_of_the_file_is_the_declared_one()
    {
        for (const table& t : schema()) {
            const auto rows =
                store_.outside().rows(u"select name from pragma_table_info('%1') order by cid"_s.arg(t.name));
            QCOMPARE(rows.size(), t.columns.size());
            for (std::size_t i = 0; i < rows.size(); ++i)
                QCOMPARE(rows[i][0].toString(), t.columns[i].name);
        }
    }
};

QTEST_GUILESS_MAIN(test_schema_columns)
#include "test_schema_columns.moc"
