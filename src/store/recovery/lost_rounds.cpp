#include "store/recovery/lost_rounds.h"

#include <QRegularExpression>

#include <map>
#include <optional>

#include "base/language.h"
#include "scoring/hole_summary.h"
#include "scoring/limits.h"
#include "scoring/words.h"
#include "store/Connection1.h"
#include "store/engines/engine.h"
#include "store/recovery/diary_rules.h"
#include "store/recovery/diary_snapshot.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

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
             "where date = %1 order by hole, shot"_s.arg(quoted(key))))
        shots[row[0].toInt()].push_back(shot_of(row));
    return shots;
}

/// The courses whose holes have the pars and lengths that the shots were stored with.
std::vector<course_of_shots> courses_of(const diary_snapshot& diary, const QString& key)
{
    QStringList differences;
    for (int hole = 1; hole <= hole_count; ++hole)
        differences << u"(s.hole = %1 and (s.normal <> f.par_%1 or s.verges <> f.yards_%1))"_s.arg(hole);
    std::vector<course_of_shots> courses;
    for (const auto& row : diary.rows(
             u"select c.code, c.name from vrd_fields c join field_info f on f.FIELD_CODE = c.code where not "
             "exists (select 1 from Stat_rounds s where s.date = %1 and (%2))"_s.arg(
                 quoted(key), differences.join(u" or "_s))))
        courses.push_back({row[0].toString(), row[1].toString()});
    return courses;
}

/// A statement that inserts one row.
class insertion {
public:
    explicit insertion(QString table) : table_(std::move(table)) {}

    void set(const QString& column, const QVariant& value)
    {
        columns_ << u'`' + column + u'`';
        values_.push_back(value);
    }
    void set(const QString& column, int16 value) { set(column, QVariant(plain(value))); }

    void run(Connection1& store) const
    {
        statement_with_values statement;
        statement.text = u"INSERT INTO `%1` (%2) VALUES "_s.arg(table_, columns_.join(u','));
        QStringView before = u"(";
        for (const QVariant& value : values_) {
            statement.text += before;
            store.engine().add_value(statement, value);
            before = u",";
        }
        statement.text += u')';
        store.engine().change(statement, table_);
    }

private:
    QString table_;
    QStringList columns_;
    std::vector<QVariant> values_;
};

QString column_of(QStringView prefix, int hole)
{
    return prefix.toString() + QString::number(hole);
}

void set_strokes(insertion& games, int hole, const hole_summary& counted)
{
    games.set(column_of(u"long_", hole), counted.kinds[long_shot].sum);
    games.set(column_of(u"approach_", hole), counted.kinds[approach_shot].sum);
    games.set(column_of(u"putt_", hole), counted.kinds[putt].sum);
    games.set(column_of(u"pen_water_", hole), counted.penalties[water_hazard].sum);
    games.set(column_of(u"pen_lost_", hole), counted.penalties[lost_ball].sum);
    games.set(column_of(u"pen_rule_", hole), counted.penalties[against_the_rules].sum);
    games.set(column_of(u"pen_bounds_", hole), counted.penalties[out_of_bounds].sum);
    games.set(column_of(u"missed_", hole), counted.missed);
}

void set_situation(insertion& games2, int hole, const hole_summary& counted)
{
    games2.set(column_of(u"sand_", hole), counted.sand);
    games2.set(column_of(u"recovery_", hole), counted.recovery);
    games2.set(column_of(u"fairway_", hole), counted.fairway);
    int number = 0;
    for (const int16 length : counted.putt_lengths)
        games2.set(column_of(u"putt_len_", hole) + u'_' + QString::number(++number), length);
}

bool has_row(const diary_snapshot& diary, const QString& table, const QString& key)
{
    return diary.number(u"select count(*) from %1 where date = %2"_s.arg(table, quoted(key))) > 0;
}

/// What is left of the other rows of the round is kept.
void make_round(Connection1& store, const diary_snapshot& diary, const QString& key, const round_shots& shots,
                const course_of_shots& course)
{
    insertion games(u"games"_s);
    games.set(u"date"_s, QVariant(key));
    games.set(u"field"_s, QVariant(course.name));
    games.set(u"CODEF"_s, QVariant(course.code));
    insertion games2(u"games2"_s);
    games2.set(u"date"_s, QVariant(key));
    games2.set(u"conditionM"_s, int16(0));
    games2.set(u"FC"_s, QVariant(course.code));
    for (const auto& [hole, rows] : shots) {
        shot_list summarised = rows;
        const hole_summary counted = summarise(summarised);
        set_strokes(games, hole, counted);
        set_situation(games2, hole, counted);
    }
    games.run(store);
    if (!has_row(diary, u"games2"_s, key))
        games2.run(store);
    insertion cost(u"cost"_s);
    cost.set(u"date"_s, QVariant(key));
    if (!has_row(diary, u"cost"_s, key))
        cost.run(store);
}

/// Why no round can be made; empty if one can.
QString refusal_of(const QString& key, const round_shots& shots, std::size_t courses, int rounds)
{
    static const QRegularExpression digits(u"^[0-9]{14}$"_s);
    const bool known_holes = shots.begin()->first >= 1 && shots.rbegin()->first <= hole_count;
    if (!digits.match(key).hasMatch() || !known_holes)
        return in_language(u"la clé ou un trou est incorrect", u"the key or a hole is wrong");
    if (rounds >= most_rounds)
        return in_language(u"le journal est plein", u"the diary is full");
    if (courses != 1)
        return in_language(u"%1 terrains ont ces normales et ces distances",
                           u"%1 courses have these pars and lengths")
            .arg(courses);
    return {};
}

bool has_unknown_codes(const diary_snapshot& diary, const QString& key)
{
    return diary.number(
               u"select count(*) from Stat_rounds where date = %1 and (coalesce(shot_type_value, 0) "
               "not between 0 and 3 or coalesce(penval, 0) not between 0 and 4)"_s.arg(quoted(key))) > 0;
}

}  // namespace

std::vector<lost_round> make_lost_rounds(Connection1& store, const diary_snapshot& diary)
{
    std::vector<lost_round> rounds;
    int present = diary.number(u"select count(*) from games"_s);
    for (const auto& row : diary.rows(rule_of_lost_shots().violations)) {
        const QString key = row[0].toString();
        const round_shots shots = shots_of(diary, key);
        const auto courses = courses_of(diary, key);
        QString refusal = shots.empty() ? in_language(u"la clé manque", u"the key is missing")
                                        : refusal_of(key, shots, courses.size(), present);
        if (refusal.isEmpty() && has_unknown_codes(diary, key))
            refusal = in_language(u"un code est inconnu", u"a code is unknown");
        if (refusal.isEmpty()) {
            make_round(store, diary, key, shots, courses.front());
            ++present;
        }
        rounds.push_back({key, refusal});
    }
    return rounds;
}

}  // namespace verdane
