#include "store/schema.h"

#include <QTest>

#include "store/tables/cost.h"
#include "store/tables/courses.h"
#include "store/tables/games.h"
#include "store/tables/games2.h"
#include "store/tables/golf_bag.h"
#include "store/tables/hand.h"
#include "store/tables/partners.h"
#include "store/tables/putts.h"
#include "store/tables/r_card.h"
#include "store/tables/settings.h"
#include "store/tables/Stat_rounds.h"
#include "store/tables/stat_sticks.h"
#include "store/tables/stats.h"

using namespace verdane;
using namespace verdane::tables;
using namespace Qt::StringLiterals;

namespace {

struct named_column {
    const char* table;
    const char* column;
    int ordinal;
};

constexpr named_column named_columns[] = {
    {"games", "date", games::date},
    {"games", "field", games::field},
    {"games", "CODEF", games::CODEF},
    {"games2", "date", games2::date},
    {"games2", "conditionM", games2::conditionM},
    {"games2", "PARTNERS", games2::PARTNERS},
    {"games2", "temperature", games2::temperature},
    {"games2", "FC", games2::FC},
    {"cost", "date", cost::date},
    {"cost", "fg", cost::first_amount},
    {"cost", "au", cost::last_amount},
    {"r_cost", "round_count", r_cost::round_count},
    {"Stat_rounds", "date", Stat_rounds::date},
    {"Stat_rounds", "hole", Stat_rounds::hole},
    {"Stat_rounds", "before", Stat_rounds::before},
    {"Stat_rounds", "after", Stat_rounds::after},
    {"Stat_rounds", "shot_type", Stat_rounds::shot_type},
    {"Stat_rounds", "stick", Stat_rounds::stick},
    {"Stat_rounds", "beyong_hole", Stat_rounds::beyong_hole},
    {"Stat_rounds", "missed", Stat_rounds::missed},
    {"Stat_rounds", "ts", Stat_rounds::ts},
    {"Stat_rounds", "dz", Stat_rounds::dz},
    {"Stat_rounds", "faireway", Stat_rounds::faireway},
    {"Stat_rounds", "penality", Stat_rounds::penality},
    {"Stat_rounds", "shot", Stat_rounds::shot},
    {"Stat_rounds", "stickval", Stat_rounds::stickval},
    {"Stat_rounds", "fairval", Stat_rounds::fairval},
    {"Stat_rounds", "penval", Stat_rounds::penval},
    {"Stat_rounds", "shot_type_value", Stat_rounds::shot_type_value},
    {"Stat_rounds", "cal", Stat_rounds::cal},
    {"Stat_rounds", "normal", Stat_rounds::normal},
    {"Stat_rounds", "addpen", Stat_rounds::addpen},
    {"Stat_rounds", "unit", Stat_rounds::unit},
    {"Stat_rounds", "verges", Stat_rounds::verges},
    {"vrd_fields", "code", vrd_fields::code},
    {"vrd_fields", "name", vrd_fields::name},
    {"vrd_fields", "address_1", vrd_fields::address_1},
    {"vrd_fields", "address_2", vrd_fields::address_2},
    {"vrd_fields", "address_3", vrd_fields::address_3},
    {"vrd_fields", "name_tee", vrd_fields::name_tee},
    {"vrd_fields", "rating", vrd_fields::rating},
    {"vrd_fields", "slope", vrd_fields::slope},
    {"vrd_fields", "tee", vrd_fields::tee},
    {"field_info", "FIELD_CODE", field_info::FIELD_CODE},
    {"partners", "NAME", partners::NAME},
    {"partners", "SURNAME", partners::SURNAME},
    {"partners", "code", partners::code},
    {"settings", "language", settings::language},
    {"stats", "course_text", stats::course_text},
    {"stats", "weather_text", stats::weather_text},
    {"stats", "from_text", stats::from_text},
    {"stats", "to_text", stats::to_text},
    {"stats", "partner_text", stats::partner_text},
    {"stats", "average_mark", stats::average_mark},
    {"stats", "front_nine", stats::front_nine},
    {"stats", "back_nine", stats::back_nine},
    {"stats", "all_holes", stats::all_holes},
    {"stats", "handicap_text", stats::handicap_text},
    {"stats", "round_count", stats::round_count},
    {"s_put1", "from_date", s_put1::from_date},
    {"s_put1", "to_date", s_put1::to_date},
    {"s_put1", "mean_all", s_put1::mean_all},
    {"s_put1", "axis_first", s_put1::axis_first},
    {"s_put1", "axis_after", s_put1::axis_after},
    {"s_put1", "weather_text", s_put1::weather_text},
    {"s_put1", "partner_text", s_put1::partner_text},
    {"s_put1", "course_text", s_put1::course_text},
    {"s_put1", "round_count", s_put1::round_count},
    {"s_put2", "weighted_mean", s_put2::weighted_mean},
    {"s_put2", "rating_text", s_put2::rating_text},
    {"s_put2", "axis_after2", s_put2::axis_after2},
    {"s_put2", "axis_first2", s_put2::axis_first2},
    {"stat_sticks", "club_name", stat_sticks::club_name},
    {"stat_sticks", "shot_count", stat_sticks::shot_count},
    {"stat_sticks", "longest", stat_sticks::longest},
    {"stat_sticks", "average", stat_sticks::average},
    {"stat_sticks", "pct_fairway", stat_sticks::pct_fairway},
    {"stat_sticks", "pct_right", stat_sticks::pct_right},
    {"stat_sticks", "pct_left", stat_sticks::pct_left},
    {"stat_sticks", "pct_missed", stat_sticks::pct_missed},
    {"stat_sticks", "pct_penalty", stat_sticks::pct_penalty},
    {"stat_sticks", "pct_holed", stat_sticks::pct_holed},
    {"stat_sticks", "heading_text", stat_sticks::heading_text},
    {"stat_sticks", "from_date", stat_sticks::from_date},
    {"stat_sticks", "to_date", stat_sticks::to_date},
    {"stat_sticks", "course_text", stat_sticks::course_text},
    {"stat_sticks", "partner_text", stat_sticks::partner_text},
    {"stat_sticks", "weather_text", stat_sticks::weather_text},
    {"stat_sticks", "round_count", stat_sticks::round_count},
    {"r_card", "card_name", r_card::card_name},
    {"r_card", "card_slope", r_card::card_slope},
    {"r_card", "card_tee", r_card::card_tee},
    {"r_card", "card_rating", r_card::card_rating},
    {"hand", "hnd", hand::hnd},
};

struct named_run {
    const char* table;
    QStringView prefix;
    column_run ordinal;
    int last;
};

constexpr named_run named_runs[] = {
    {"games", u"long_", games::long_h, hole_count},
    {"games", u"approach_", games::approach_h, hole_count},
    {"games", u"putt_", games::putt_h, hole_count},
    {"games", u"pen_rule_", games::pen_rule_h, hole_count},
    {"games", u"pen_water_", games::pen_water_h, hole_count},
    {"games", u"pen_bounds_", games::pen_bounds_h, hole_count},
    {"games", u"pen_lost_", games::pen_lost_h, hole_count},
    {"games", u"missed_", games::missed_h, hole_count},
    {"games2", u"sand_", games2::sand_h, hole_count},
    {"games2", u"recovery_", games2::recovery_h, hole_count},
    {"games2", u"fairway_", games2::fairway_h, hole_count},
    {"field_info", u"yards_", field_info::yards_h, hole_count},
    {"field_info", u"hcp_", field_info::hcp_h, hole_count},
    {"field_info", u"par_", field_info::par_h, hole_count},
    {"sticks", u"avg_", sticks::avg, club_count},
    {"sticks", u"shots_", sticks::shots, club_count},
    {"sticknames", u"club_", sticknames::club, club_count},
    {"stats", u"hole_", stats::hole_h, hole_count},
    {"s_put1", u"band_", s_put1::band_j, putt_band_count},
    {"s_put1", u"mean_band_", s_put1::mean_band_j, putt_band_count},
    {"s_put2", u"band_", s_put2::band_j, putt_band_count},
    {"r_card", u"card_yards_", r_card::card_yards, nine_holes},
    {"r_card", u"card_hole_", r_card::card_hole, nine_holes},
    {"r_card", u"card_hcp_", r_card::card_hcp, nine_holes},
    {"r_card", u"card_par_", r_card::card_par, nine_holes},
    {"r_card", u"card_club_", r_card::card_club, r_card::clubs_on_card},
};

}  // namespace

/// The ordinals that are computed while compiling, against the columns from which the tables are created.
class test_tables : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_constant_is_the_ordinal_of_its_column_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("column");
        QTest::addColumn<int>("ordinal");
        for (const named_column& each : named_columns)
            add_row(QString::fromLatin1(each.table), QString::fromLatin1(each.column), each.ordinal);
        for (const named_run& run : named_runs) {
            for (int number = 1; number <= run.last; ++number)
                add_row(QString::fromLatin1(run.table), run.prefix + QString::number(number),
                        run.ordinal(number));
        }
        for (int hole = 1; hole <= hole_count; ++hole) {
            for (int putt = 1; putt <= putt_lengths_kept; ++putt)
                add_row(u"games2"_s, u"putt_len_%1_%2"_s.arg(hole).arg(putt), games2::putt_len(hole, putt));
        }
    }

    void a_constant_is_the_ordinal_of_its_column()
    {
        QFETCH(QString, table);
        QFETCH(QString, column);
        QFETCH(int, ordinal);
        QCOMPARE(find_table(table)->columns.at(static_cast<std::size_t>(ordinal)).name, column);
    }

    void the_number_of_declared_columns_is_that_of_the_table()
    {
        QCOMPARE(games::columns.size(), static_cast<int>(find_table(u"games")->columns.size()));
        QCOMPARE(games2::columns.size(), static_cast<int>(find_table(u"games2")->columns.size()));
    }

    void the_amounts_of_a_round_are_adjacent()
    {
        QCOMPARE(cost::last_amount - cost::first_amount + 1, cost::amount_count);
        QCOMPARE(cost::amount_count, 12);
    }

private:
    static void add_row(const QString& table, const QString& column, int ordinal)
    {
        QTest::addRow("%s.%s", qPrintable(table), qPrintable(column)) << table << column << ordinal;
    }
};

QTEST_GUILESS_MAIN(test_tables)
#include "test_tables.moc"
