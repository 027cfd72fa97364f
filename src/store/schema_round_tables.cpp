#include "store/schema_parts.h"

/// Rounds and shots.
///
/// A round's row starts with nothing but its key. The strokes are read with a test for Null, so they
/// stay Null until a hole is stored; everything else is read as it stands and starts at 0.
namespace verdane {

using namespace Qt::StringLiterals;

namespace {

const QVariant zero(0);

table games()
{
    return {u"games"_s, column_list()
                            .text({u"date", u"field", u"CODEF"})
                            .by_hole({u"long_", u"approach_", u"putt_"})
                            .spares(u"games_spare_a", 6)
                            .by_hole({u"pen_rule_", u"pen_water_", u"pen_bounds_", u"pen_lost_"}, zero)
                            .spares(u"games_spare_b", 18)
                            .by_hole({u"missed_"}, zero)};
}

column_list& putt_lengths(column_list& columns)
{
    for (int hole = 1; hole <= hole_count; ++hole)
        columns.run(QString(u"putt_len_" + QString::number(hole) + u"_"), 1, 6, column_type::count, zero);
    return columns;
}

table games2()
{
    column_list columns;
    columns.text({u"date"})
        .one(u"conditionM", column_type::count, zero)
        .text({u"PARTNERS"})
        .by_hole({u"sand_"}, zero)
        .by_hole({u"recovery_"}, zero)
        .spares(u"games2_spare_", 36)
        .by_hole({u"fairway_"}, zero);
    putt_lengths(columns).one(u"temperature", column_type::amount, zero).text({u"FC"});
    return {u"games2"_s, columns};
}

table cost()
{
    column_list columns;
    columns.text({u"date"});
    for (const QStringView amount :
         {u"fg", u"cm", u"vt", u"ft", u"ba", u"tee", u"tex", u"nrt", u"lg", u"bs", u"ln", u"au"})
        columns.one(amount, column_type::amount, zero);
    return {u"cost"_s, columns};
}

/// The codes start at 0, which means "not chosen yet" or "none"; `after` and `unit` start empty.
table shots()
{
    constexpr auto number = column_type::count;
    constexpr auto yes_no = column_type::yes_no;
    const QVariant no(false);
    return {u"Stat_rounds"_s, column_list()
                                  .text({u"date"})
                                  .one(u"hole", number)
                                  .one(u"before", number)
                                  .one(u"after", number)
                                  .text({u"shot_type", u"stick"})
                                  .one(u"beyong_hole", yes_no, no)
                                  .one(u"missed", yes_no, no)
                                  .one(u"ts", yes_no, no)
                                  .one(u"dz", yes_no, no)
                                  .text({u"faireway", u"penality"})
                                  .one(u"shot", number)
                                  .one(u"stickval", number, zero)
                                  .one(u"fairval", number, zero)
                                  .one(u"penval", number, zero)
                                  .one(u"shot_type_value", number, zero)
                                  .one(u"cal", yes_no, no)
                                  .one(u"normal", number)
                                  .one(u"addpen", number, zero)
                                  .text({u"unit"})
                                  .one(u"verges", number)};
}

}  // namespace

std::vector<table> round_tables()
{
    return {games(), games2(), cost(), shots()};
}

}  // namespace verdane
