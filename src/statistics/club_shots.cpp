#include "statistics/club_shots.h"

#include "base/failure_subject.h"
#include "records/round_subject.h"
#include "scoring/words.h"
#include "store/DataEnvironment1.h"
#include "store/scoped_source.h"

namespace verdane::Statistics {

using namespace Qt::StringLiterals;

namespace {

constexpr std::u16string_view columns =
    u"select stat_rounds.date,stat_rounds.hole,stat_rounds.before, "
    u"stat_rounds.after,stat_rounds.shot_type,stat_rounds.stick, "
    u"stat_rounds.beyong_hole,stat_rounds.missed,stat_rounds.ts,stat_rounds.dz, "
    u"stat_rounds.faireway,stat_rounds.penality,stat_rounds.shot,"
    u" stat_rounds.stickval, stat_rounds.fairval,stat_rounds.penval,stat_rounds.shot_type_value,"
    u"stat_rounds.cal, games2.date,  stat_rounds.verges, stat_rounds.unit  from  games2, stat_rounds ";

/// The ordinals in this list, which differ from those of the table.
enum column {
    date = place_in(columns, u"date"),
    hole = place_in(columns, u"hole"),
    before = place_in(columns, u"before"),
    after = place_in(columns, u"after"),
    beyong_hole = place_in(columns, u"beyong_hole"),
    missed = place_in(columns, u"missed"),
    ts = place_in(columns, u"ts"),
    dz = place_in(columns, u"dz"),
    stickval = place_in(columns, u"stickval"),
    fairval = place_in(columns, u"fairval"),
    penval = place_in(columns, u"penval"),
    shot_type_value = place_in(columns, u"shot_type_value"),
    unit = place_in(columns, u"unit"),
};
static_assert(before == 2 && shot_type_value == 16 && unit == 20);

std::optional<int16> length(const Field& field)
{
    return field.is_null() ? std::nullopt : std::optional<int16>(field.to_int16());
}

club_shot read_shot(Recordset& shots)
{
    club_shot shot;
    shot.club = shots.Fields(stickval).int16_or_zero();
    shot.before = length(shots.Fields(before));
    shot.after = length(shots.Fields(after));
    const Field written_unit = shots.Fields(unit);
    // A shot without a unit counts as yards.
    shot.after_in_yards = written_unit.is_null() || is_yards_word(written_unit.text());
    shot.beyond_hole = shots.Fields(beyong_hole).yes();
    shot.missed = shots.Fields(missed).yes();
    shot.sand = shots.Fields(ts).yes();
    shot.no_gain = shots.Fields(dz).yes();
    shot.position = shots.Fields(fairval).int16_or_zero();
    shot.penalty = shots.Fields(penval).int16_or_zero();
    shot.kind = shots.Fields(shot_type_value).int16_or_zero();
    return shot;
}

failure_subject subject_of_shot(Recordset& shots)
{
    return Round_functions::subject_of_round(shots.Fields(date).trimmed(),
                                             plain(shots.Fields(hole).int16_or_zero()));
}

gathered_shots add_up(Recordset& shots)
{
    gathered_shots gathered;
    QString previous = u"X"_s;
    for (; !shots.eof(); shots.MoveNext()) {
        gathered.any_shot = true;
        const QString round = shots.Fields(date).trimmed();
        if (round != previous) {
            gathered.rounds = gathered.rounds + 1;
            previous = round;
        }
        concerning([&shots] { return subject_of_shot(shots); },
                   [&] {
                       const club_shot shot = read_shot(shots);
                       gathered.clubs[plain(shot.club)].add(shot);
                   });
    }
    return gathered;
}

}  // namespace

QString club_shot_select(const selection_arguments& chosen)
{
    // The code in the last condition.
    static_assert(putt == 3);
    return QStringView(columns) + u"where ( games2.date>= " + quoted(chosen.from_key) +
           u" AND games2.date <=" + quoted(chosen.to_key) + u"  AND  stat_rounds.date=games2.date) " +
           chosen.weather_clause + chosen.partner_clause + chosen.course_clause +
           u"  AND (NOT stat_rounds.shot_type_value = 3 ) ORDER BY STAT_ROUNDS.DATE,STAT_ROUNDS.HOLE ";
}

gathered_shots gather_club_shots(const selection_arguments& chosen)
{
    Recordset& shots = data_environment().rsStat_rounds;
    const scoped_source selection(shots, club_shot_select(chosen), shots.settings().source);
    shots.Open(row_reading::one_by_one);
    const gathered_shots gathered = add_up(shots);
    shots.Close();
    return gathered;
}

}  // namespace verdane::Statistics
