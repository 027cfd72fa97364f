#include "store/recovery/lost_rounds.h"

#include <algorithm>
#include <map>
#include <optional>

#include "base/language.h"
#include "scoring/hole_summary.h"
#include "scoring/limits.h"
#include "scoring/round_key.h"
#include "scoring/words.h"
#include "store/Connection1.h"
#include "store/recovery/counted_rows.h"
#include "store/recovery/diary_snapshot.h"
#include "store/recovery/shot_rules.h"
#include "store/row_insertion.h"
#include "store/tables/cost.h"
#include "store/tables/games.h"
#include "store/tables/games2.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

namespace games = tables::games;
namespace games2 = tables::games2;

/// The shots of a round by hole.
using round_shots = std::map<int, shot_list>;

struct course_of_shots {
    QString code;
    QString name;
};

int16 count_of(const QVariant& value)
{
    return int16(value.toInt());
}

hole_shot shot_of(const std::vector<QVariant>& row)
{
    hole_shot shot;
    shot.after = count_of(row[1]);
    shot.unit = row[2].toString();
    shot.shot_type_value = count_of(row[3]);
    shot.fairval = count_of(row[4]);
    shot.penval = count_of(row[5]);
    shot.missed = row[6].toBool();
    shot.ts = row[7].toBool();
    shot.dz = row[8].toBool();
    return shot;
}

round_shots shots_of(const diary_snapshot& diary, const QString& key)
{
    round_shots shots;
    for (const auto& row : diary.rows(
             u"select hole, after, unit, shot_type_value, fairval, penval, missed, ts, dz from Stat_rounds "
             u"where date = %1 order by hole, shot"_s.arg(quoted(key))))
        shots[row[0].toInt()].push_back(shot_of(row));
    return shots;
}

/// The courses whose holes have the pars and lengths that the shots were stored with. A shot without a par or
/// a length fits no course.
std::vector<course_of_shots> courses_of(const diary_snapshot& diary, const QString& key)
{
    QStringList differences;
    for (int hole = 1; hole <= hole_count; ++hole)
        differences << u"(s.hole = %1 and not coalesce(s.normal = f.par_%1 and s.verges = f.yards_%1, 0))"_s
                           .arg(hole);
    std::vector<course_of_shots> courses;
    for (const auto& row : diary.rows(
             u"select c.code, c.name from vrd_fields c join field_info f on f.FIELD_CODE = c.code where not "
             u"exists (select 1 from Stat_rounds s where s.date = %1 and (%2))"_s.arg(
                 quoted(key), differences.join(u" or "_s))))
        courses.push_back({row[0].toString(), row[1].toString()});
    return courses;
}

bool has_row(const diary_snapshot& diary, const QString& table, const QString& key)
{
    return diary.number(u"select count(*) from %1 where date = %2"_s.arg(table, quoted(key))) > 0;
}

void add_rows(lost_round& round, const diary_snapshot& diary, const round_shots& shots,
              const course_of_shots& course)
{
    row_of_round strokes(games::table);
    strokes.set(games::date, round.key);
    strokes.set(games::field, course.name);
    strokes.set(games::CODEF, course.code);
    row_of_round situation(games2::table);
    situation.set(games2::date, round.key);
    situation.set(games2::FC, course.code);
    for (const auto& [hole, rows] : shots) {
        shot_list summarised = rows;
        const hole_summary counted = summarise(summarised);
        set_strokes(strokes, hole, counted);
        set_situation(situation, hole, counted);
    }
    round.rows.push_back(strokes.named());
    if (!has_row(diary, u"games2"_s, round.key))
        round.rows.push_back(situation.named());
    row_of_round costs(tables::cost::table);
    costs.set(tables::cost::date, round.key);
    if (!has_row(diary, u"cost"_s, round.key))
        round.rows.push_back(costs.named());
}

/// The holes on which no shot counts as a stroke.
QStringList holes_without_strokes(const round_shots& shots)
{
    QStringList holes;
    for (int hole = 1; hole <= hole_count; ++hole) {
        const auto found = shots.find(hole);
        const auto has_kind = [](const hole_shot& shot) { return shot.shot_type_value != 0; };
        if (found == shots.end() || std::none_of(found->second.begin(), found->second.end(), has_kind))
            holes << QString::number(hole);
    }
    return holes;
}

/// Why no round can be made; empty if one can. A round with shots on some of its holes only would count in
/// the handicap with too few strokes.
QString refusal_of(const QString& key, const round_shots& shots, std::size_t courses, int rounds)
{
    const bool known_holes = shots.begin()->first >= 1 && shots.rbegin()->first <= hole_count;
    if (!Verdane_tools::is_round_key(key) || !known_holes)
        return in_language(u"la clé ou un trou est incorrect", u"the key or a hole is wrong");
    const QStringList missing = holes_without_strokes(shots);
    if (!missing.isEmpty())
        return in_language(u"il manque les coups de ces trous : %1", u"shots are missing on these holes: %1")
            .arg(missing.join(u", "_s));
    if (rounds >= most_rounds)
        return in_language(u"le journal est plein", u"the diary is full");
    if (courses == 0)
        return in_language(u"aucun terrain n'a ces normales et ces distances",
                           u"no course has these pars and lengths");
    if (courses > 1)
        return in_language(u"%1 terrains ont ces normales et ces distances",
                           u"%1 courses have these pars and lengths")
            .arg(courses);
    return {};
}

bool has_unknown_codes(const diary_snapshot& diary, const QString& key)
{
    const QString statement =
        u"select count(*) from Stat_rounds where date = %1 and (coalesce(shot_type_value, 0) not between 0 "
        u"and %2 or coalesce(penval, 0) not between 0 and %3)"_s.arg(quoted(key), QString::number(putt),
                                                                     QString::number(out_of_bounds));
    return diary.number(statement) > 0;
}

}  // namespace

std::vector<lost_round> find_lost_rounds(const diary_snapshot& diary)
{
    std::vector<lost_round> rounds;
    int present = diary.number(u"select count(*) from games"_s);
    for (const auto& row : diary.rows(rule_of_lost_shots().violations)) {
        lost_round round{row[0].toString(), {}, {}};
        const round_shots shots = shots_of(diary, round.key);
        const auto courses = courses_of(diary, round.key);
        round.refusal = shots.empty() ? in_language(u"la clé manque", u"the key is missing")
                                      : refusal_of(round.key, shots, courses.size(), present);
        if (round.refusal.isEmpty() && has_unknown_codes(diary, round.key))
            round.refusal = in_language(u"un code est inconnu", u"a code is unknown");
        if (round.refusal.isEmpty()) {
            add_rows(round, diary, shots, courses.front());
            ++present;
        }
        rounds.push_back(round);
    }
    return rounds;
}

void make_round(const Connection1& store, const lost_round& round)
{
    for (const auto& [table, values] : round.rows) {
        row_insertion insertion(store.engine(), *find_table(table));
        insertion.add(values);
        insertion.finish();
    }
}

}  // namespace verdane
