#include "records/round_rows.h"

#include "records/course_rows.h"
#include "records/round_columns.h"
#include "store/DataEnvironment1.h"

namespace verdane::Round_functions {

using namespace Qt::StringLiterals;

namespace {

namespace at = round_columns;

Field games(int ordinal)
{
    return data_environment().rsgames.Fields(ordinal);
}

Field games2(int ordinal)
{
    return data_environment().rsgames2.Fields(ordinal);
}

Field field_info(int ordinal)
{
    return data_environment().rsfield_info.Fields(ordinal);
}

/// With a number outside the holes the arithmetic of the columns would meet the round's key.
int checked_hole(int16 hole)
{
    const int h = plain(hole);
    if (h < 1 || h > at::hole_count)
        throw run_time_failure(failure_kind::misuse, u"hole %1 of a round"_s.arg(h));
    return h;
}

}  // namespace

void store_strokes(int16 hole, const strokes& values)
{
    const int h = checked_hole(hole);
    games(at::long_h(h)).set(values.long_shots);
    games(at::approach_h(h)).set(values.approach);
    games(at::putt_h(h)).set(values.putts);
}

strokes read_strokes(int16 hole)
{
    const int h = checked_hole(hole);
    return {games(at::long_h(h)).int16_or_zero(), games(at::approach_h(h)).int16_or_zero(),
            games(at::putt_h(h)).int16_or_zero()};
}

void store_penalties(int16 hole, const penalties& values)
{
    const int h = checked_hole(hole);
    games(at::pen_rule_h(h)).set(values.rule);
    games(at::pen_water_h(h)).set(values.water);
    games(at::pen_bounds_h(h)).set(values.bounds);
    games(at::pen_lost_h(h)).set(values.lost);
}

penalties read_penalties(int16 hole)
{
    const int h = checked_hole(hole);
    return {games(at::pen_rule_h(h)).to_int16(), games(at::pen_water_h(h)).to_int16(),
            games(at::pen_bounds_h(h)).to_int16(), games(at::pen_lost_h(h)).to_int16()};
}

void store_situation(int16 hole, const situation_texts& boxes)
{
    const int h = checked_hole(hole);
    games2(at::fairway_h(h)).set(boxes.fairway);
    games2(at::sand_h(h)).set(boxes.sand);
    games(at::missed_h(h)).set(boxes.missed);
    games2(at::recovery_h(h)).set(boxes.recovery);
}

situation read_situation(int16 hole)
{
    const int h = checked_hole(hole);
    return {games2(at::sand_h(h)).to_int16(), games(at::missed_h(h)).to_int16(),
            games2(at::fairway_h(h)).to_int16()};
}

int16 read_recovery(int16 hole)
{
    return games2(at::recovery_h(checked_hole(hole))).to_int16();
}

hole_figures figures_from_row(int16 hole)
{
    const strokes s = read_strokes(hole);
    const penalties p = read_penalties(hole);
    return {s.long_shots, s.approach, s.putts, p.rule, p.water, p.bounds, p.lost};
}

int16 hole_par(int16 hole)
{
    return field_info(at::par_h(checked_hole(hole))).to_int16();
}

hole_card read_hole_card(int16 hole)
{
    const int h = checked_hole(hole);
    return {field_info(at::yards_h(h)).to_int16(), field_info(at::hcp_h(h)).to_int16(),
            field_info(at::par_h(h)).to_int16()};
}

bool round_incomplete()
{
    const strokes last = read_strokes(static_cast<std::int16_t>(at::hole_count));
    return last.long_shots == 0 && last.approach == 0 && last.putts == 0;
}

int16 partner_in_round(QStringView number_text)
{
    const QString partners = games2(at::partners).text_or_empty();
    if (partners.isEmpty())
        return static_cast<std::int16_t>(0);
    return static_cast<std::int16_t>(partners.indexOf(number_text) + 1);
}

QString partners_text(const QStringList& numbers)
{
    QString text;
    for (const QString& number : numbers)
        text += number + u'-';
    return text;
}

QString course_code_at(int list_index)
{
    move_to_course(list_index);
    return data_environment().rsvrd_fields.Fields(at::code).text();
}

int16 cost_total()
{
    int16 total = static_cast<std::int16_t>(0);
    for (int ordinal = at::first_amount; ordinal <= at::last_amount; ++ordinal) {
        const int32 amount = data_environment().rscost.Fields(ordinal).to_int32();
        total = static_cast<std::int16_t>(plain(total)) + amount;
    }
    return total;
}

}  // namespace verdane::Round_functions
