#include "records/round_rows.h"

#include "base/failure_subject.h"
#include "records/course_rows.h"
#include "store/DataEnvironment1.h"
#include "store/tables/cost.h"
#include "store/tables/courses.h"
#include "store/tables/games.h"
#include "store/tables/games2.h"

namespace verdane::Round_functions {

using namespace Qt::StringLiterals;

namespace {

namespace games = tables::games;
namespace games2 = tables::games2;
namespace field_info = tables::field_info;
namespace cost = tables::cost;

Field in_games(int ordinal)
{
    return data_environment().rsgames.Fields(ordinal);
}

Field in_games2(int ordinal)
{
    return data_environment().rsgames2.Fields(ordinal);
}

Field in_field_info(int ordinal)
{
    return data_environment().rsfield_info.Fields(ordinal);
}

/// A number outside the holes would select other columns of the row.
int checked_hole(int16 hole)
{
    const int h = plain(hole);
    if (h < 1 || h > hole_count)
        throw run_time_failure(failure_kind::misuse, u"hole %1 of a round"_s.arg(h));
    return h;
}

/// Reads figures of a hole; a failure names the hole.
template <typename Reading>
auto in_hole(int16 hole, Reading read)
{
    return concerning([hole] { return failure_subject{.hole = plain(hole)}; }, read);
}

}  // namespace

void store_strokes(int16 hole, const stroke_counts& counts)
{
    const int h = checked_hole(hole);
    in_games(games::long_h(h)).set(counts.long_shots);
    in_games(games::approach_h(h)).set(counts.approach);
    in_games(games::putt_h(h)).set(counts.putts);
}

stroke_counts read_strokes(int16 hole)
{
    const int h = checked_hole(hole);
    return {in_games(games::long_h(h)).int16_or_zero(), in_games(games::approach_h(h)).int16_or_zero(),
            in_games(games::putt_h(h)).int16_or_zero()};
}

void store_penalties(int16 hole, const penalty_counts& counts)
{
    const int h = checked_hole(hole);
    in_games(games::pen_rule_h(h)).set(counts.pen_rule);
    in_games(games::pen_water_h(h)).set(counts.pen_water);
    in_games(games::pen_bounds_h(h)).set(counts.pen_bounds);
    in_games(games::pen_lost_h(h)).set(counts.pen_lost);
}

penalty_counts read_penalties(int16 hole)
{
    const int h = checked_hole(hole);
    return {in_games(games::pen_rule_h(h)).to_int16(), in_games(games::pen_water_h(h)).to_int16(),
            in_games(games::pen_bounds_h(h)).to_int16(), in_games(games::pen_lost_h(h)).to_int16()};
}

void store_situation(int16 hole, const situation_texts& boxes)
{
    const int h = checked_hole(hole);
    in_games2(games2::fairway_h(h)).set(boxes.fairway);
    in_games2(games2::sand_h(h)).set(boxes.sand);
    in_games(games::missed_h(h)).set(boxes.missed);
    in_games2(games2::recovery_h(h)).set(boxes.recovery);
}

situation_counts read_situation(int16 hole)
{
    const int h = checked_hole(hole);
    situation_counts counts;
    counts.sand = in_games2(games2::sand_h(h)).to_int16();
    counts.missed = in_games(games::missed_h(h)).to_int16();
    counts.fairway = in_games2(games2::fairway_h(h)).to_int16();
    return counts;
}

std::vector<int> situation_columns()
{
    std::vector<int> ordinals;
    for (int h = 1; h <= hole_count; ++h)
        ordinals.insert(ordinals.end(), {games2::sand_h(h), games2::fairway_h(h)});
    return ordinals;
}

void store_putt_lengths(int16 hole, const std::array<int16, putt_lengths_kept>& lengths)
{
    const int h = checked_hole(hole);
    int number = 0;
    for (const int16 length : lengths)
        in_games2(games2::putt_len(h, ++number)).set(length);
}

hole_figures figures_from_row(int16 hole)
{
    return in_hole(hole, [hole]() -> hole_figures { return {read_strokes(hole), read_penalties(hole)}; });
}

hole_counts read_hole(int16 hole)
{
    return in_hole(hole, [hole] {
        hole_counts counts{figures_from_row(hole), read_situation(hole)};
        counts.recovery = in_games2(games2::recovery_h(checked_hole(hole))).to_int16();
        return counts;
    });
}

int16 hole_par(int16 hole)
{
    return in_hole(hole, [hole] { return in_field_info(field_info::par_h(checked_hole(hole))).to_int16(); });
}

hole_card read_hole_card(int16 hole)
{
    const int h = checked_hole(hole);
    return in_hole(hole, [h]() -> hole_card {
        return {in_field_info(field_info::yards_h(h)).to_int16(),
                in_field_info(field_info::hcp_h(h)).to_int16(),
                in_field_info(field_info::par_h(h)).to_int16()};
    });
}

bool round_incomplete()
{
    const stroke_counts last = read_strokes(hole_count);
    return last.long_shots == 0 && last.approach == 0 && last.putts == 0;
}

int16 partner_in_round(QStringView number_text)
{
    const QString partners = in_games2(games2::PARTNERS).text_or_empty();
    if (partners.isEmpty())
        return 0;
    return static_cast<int>(partners.indexOf(number_text)) + 1;
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
    return data_environment().rsvrd_fields.Fields(tables::vrd_fields::code).text();
}

int16 cost_total()
{
    int16 total = 0;
    for (int ordinal = cost::first_amount; ordinal <= cost::last_amount; ++ordinal) {
        const int32 amount = data_environment().rscost.Fields(ordinal).to_int32();
        total = plain(total) + amount;
    }
    return total;
}

}  // namespace verdane::Round_functions
