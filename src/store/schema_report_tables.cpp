#include "store/schema_parts.h"

/// What the reports print from: grids whose rows are always there, and lists that each run refills.
namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr auto number = column_type::count;
constexpr auto real = column_type::real;

table round_statistics()
{
    return {u"stats"_s,
            column_list()
                .spare(u"stat_line")
                .run(u"hole_", 1, 18, real)
                .spare(u"stats_spare_a")
                .text({u"course_text", u"weather_text", u"from_text", u"to_text", u"partner_text"})
                .spare(u"stats_spare_b")
                .text({u"average_mark"})
                .one(u"front_nine", real)
                .one(u"back_nine", real)
                .one(u"all_holes", real)
                .text({u"handicap_text"})
                .one(u"round_count", number),
            34};
}

table putts_by_first_length()
{
    return {u"s_put1"_s,
            column_list()
                .spare(u"put_line")
                .run(u"band_", 1, 7, number)
                .spares(u"put_spare_", 3)
                .text({u"from_date", u"to_date"})
                .run(u"mean_band_", 1, 7, column_type::text)
                .text({u"mean_all", u"axis_first", u"axis_after", u"weather_text", u"partner_text",
                       u"course_text"})
                .one(u"round_count", number),
            5};
}

table putts_by_rest()
{
    return {u"s_put2"_s,
            column_list()
                .spare(u"put_line")
                .run(u"band_", 1, 7, number)
                .spares(u"put_spare_", 3)
                .text({u"weighted_mean", u"rating_text", u"axis_after2", u"axis_first2"}),
            7};
}

table club_statistics()
{
    return {u"stat_sticks"_s,
            column_list()
                .text({u"club_name", u"shot_count", u"longest", u"average", u"pct_fairway", u"pct_right",
                       u"pct_left", u"pct_missed", u"pct_penalty", u"pct_holed"})
                .spare(u"sticks_spare")
                .text({u"heading_text", u"from_date", u"to_date", u"course_text", u"partner_text",
                       u"weather_text"})
                .one(u"round_count", number),
            14};
}

table cost_report()
{
    column_list columns;
    columns.text({u"date"});
    for (const QStringView amount :
         {u"fg", u"cm", u"vt", u"ft", u"ba", u"tee", u"tex", u"nrt", u"lg", u"bs", u"ln", u"au"})
        columns.one(amount, column_type::amount, QVariant(0));
    columns.spare(u"cost_spare").one(u"round_count", number);
    return {u"r_cost"_s, columns};
}

/// The first row is for holes 1 to 9, the second for holes 10 to 18.
table scorecard()
{
    return {u"r_card"_s,
            column_list()
                .spare(u"card_row")
                .run(u"card_yards_", 1, 9, number)
                .run(u"card_hole_", 1, 9, number)
                .run(u"card_hcp_", 1, 9, number)
                .run(u"card_par_", 1, 9, number)
                .text({u"card_name", u"card_slope", u"card_tee", u"card_rating"})
                .spare(u"card_spare")
                .run(u"card_club_", 1, 13, real),
            2};
}

table differentials(const QString& name)
{
    return {name, column_list().one(u"hnd", real)};
}

}  // namespace

std::vector<table> report_tables()
{
    return {round_statistics(),
            putts_by_first_length(),
            putts_by_rest(),
            club_statistics(),
            cost_report(),
            scorecard(),
            differentials(u"hand"_s),
            differentials(u"Cryst_hand"_s)};
}

}  // namespace verdane
