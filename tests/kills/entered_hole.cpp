#include "tests/kills/entered_hole.h"

#include <QStringList>

#include <algorithm>

#include "scoring/words.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int feet_in_a_yard = 3;
constexpr int values_of_a_shot = 6;

/// A tee shot, some more and one that reaches the green or the hole.
void play_to_the_green(entered_hole& hole, QRandomGenerator& random, bool holed)
{
    const int shots = random.bounded(1, 4);
    for (int left = shots; left > 0; --left) {
        entered_shot shot;
        shot.club = random.bounded(1, putter);
        shot.kind = left == shots ? long_shot : random.bounded(1, 3);
        shot.distance = left == 1 ? (holed ? 0 : random.bounded(1, 40)) : random.bounded(50, 300);
        shot.position = random.bounded(1, 4);
        shot.penalty = random.bounded(3) == 0 ? random.bounded(1, 5) : 0;
        shot.sand = random.bounded(4) == 0;
        hole.push_back(shot);
    }
}

bool is_putt(const entered_shot& shot)
{
    return shot.kind == putt;
}

/// The index of the first putt, or the number of shots if there is none.
std::size_t first_putt(const entered_hole& hole)
{
    return static_cast<std::size_t>(std::find_if(hole.begin(), hole.end(), is_putt) - hole.begin());
}

stored_shot stored(const entered_shot& shot, int number)
{
    const bool on_the_green = is_putt(shot);
    return {number,       shot.club, shot.kind, shot.distance, on_the_green, on_the_green ? 0 : shot.position,
            shot.penalty, shot.sand};
}

/// Whether a row has the values of the shot. The distance before the first putt may be in yards or feet.
bool agrees(const stored_shot& row, const entered_shot& shot)
{
    stored_shot wanted = stored(shot, row.number);
    if (row.in_feet && !is_putt(shot)) {
        wanted.in_feet = true;
        wanted.after *= feet_in_a_yard;
    }
    return row == wanted;
}

/// Whether a row has the default values or some values of the shot.
bool is_beginning_of(const stored_shot& row, const entered_shot& shot)
{
    const auto either = [](int value, int unset, int entered) { return value == unset || value == entered; };
    const bool distance =
        either(row.after, 0, shot.distance) || (row.in_feet && row.after == feet_in_a_yard * shot.distance);
    return either(row.club, 0, shot.club) && either(row.kind, 0, shot.kind) && distance &&
           (row.position == in_the_fairway || either(row.position, 0, shot.position)) &&
           either(row.penalty, 0, shot.penalty) && (!row.sand || shot.sand);
}

/// Yards and feet of one distance are the same.
bool is_same_shot(stored_shot row, const stored_shot& older)
{
    if (row.in_feet != older.in_feet) {
        const int feet = row.in_feet ? row.after : feet_in_a_yard * row.after;
        const int older_feet = older.in_feet ? older.after : feet_in_a_yard * older.after;
        if (feet != older_feet)
            return false;
        row.after = older.after;
        row.in_feet = older.in_feet;
    }
    return row == older;
}

bool numbered_from_one(const stored_shots& rows)
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].number != static_cast<int>(i) + 1)
            return false;
    }
    return true;
}

QStringList figure_columns(int hole)
{
    QStringList columns;
    for (const QString& name :
         {u"games.long_"_s, u"games.approach_"_s, u"games.putt_"_s, u"games2.fairway_"_s, u"games2.sand_"_s,
          u"games.missed_"_s, u"games2.recovery_"_s, u"games.pen_water_"_s, u"games.pen_lost_"_s,
          u"games.pen_rule_"_s, u"games.pen_bounds_"_s})
        columns << u"coalesce(%1%2, 0)"_s.arg(name).arg(hole);
    for (int length = 1; length <= putts_of_a_hole; ++length)
        columns << u"coalesce(games2.putt_len_%1_%2, 0)"_s.arg(hole).arg(length);
    return columns;
}

stored_shots read_shots(const reader& store, int hole)
{
    stored_shots shots;
    const auto rows =
        store.rows(u"select shot, stickval, shot_type_value, after, unit, fairval, penval, ts from "
                   u"Stat_rounds where hole = %1 order by shot"_s.arg(hole));
    for (const auto& row : rows)
        shots.push_back({row[0].toInt(), row[1].toInt(), row[2].toInt(), row[3].toInt(),
                         is_feet_word(row[4].toString()), row[5].toInt(), row[6].toInt(), row[7].toBool()});
    return shots;
}

template <typename Numbers>
QString joined(const Numbers& numbers)
{
    QStringList texts;
    for (const int number : numbers)
        texts << QString::number(number);
    return texts.join(u' ');
}

}  // namespace

entered_hole random_hole(QRandomGenerator& random)
{
    entered_hole hole;
    const int putts = random.bounded(4);
    play_to_the_green(hole, random, putts == 0);
    for (int left = putts; left > 0; --left)
        hole.push_back({putter, left == 1 ? 0 : random.bounded(1, 30), putt});
    return hole;
}

QString text_of(const entered_hole& hole)
{
    QStringList shots;
    for (const entered_shot& shot : hole)
        shots << u"%1,%2,%3,%4,%5,%6"_s.arg(shot.club)
                     .arg(shot.distance)
                     .arg(shot.kind)
                     .arg(shot.position)
                     .arg(shot.penalty)
                     .arg(shot.sand ? 1 : 0);
    return shots.join(u';');
}

entered_hole hole_from(const QString& word)
{
    entered_hole hole;
    for (const QString& shot : word.split(u';')) {
        const QStringList values = shot.split(u',');
        if (values.size() != values_of_a_shot)
            return {};
        hole.push_back({values[0].toInt(), values[1].toInt(), values[2].toInt(), values[3].toInt(),
                        values[4].toInt(), values[5].toInt() != 0});
    }
    return hole;
}

stored_hole outcome_of(const entered_hole& hole)
{
    // Indices among the figures: three kinds and four penalties are in the order of their codes.
    constexpr std::size_t kinds = 0, fairway = 3, sand = 4, penalties = 7;
    stored_hole outcome;
    for (std::size_t i = 0; i < hole.size(); ++i) {
        const entered_shot& shot = hole[i];
        outcome.shots.push_back(stored(shot, static_cast<int>(i) + 1));
        ++outcome.figures[kinds + static_cast<std::size_t>(shot.kind) - 1];
        outcome.figures[fairway] += !is_putt(shot) && shot.position == in_the_fairway ? 1 : 0;
        outcome.figures[sand] += shot.sand ? 1 : 0;
        if (shot.penalty > 0)
            ++outcome.figures[penalties + static_cast<std::size_t>(shot.penalty) - 1];
    }
    const std::size_t green = first_putt(hole);
    for (std::size_t i = green; i < hole.size() && i > 0; ++i) {
        stored_shot& before = outcome.shots[i - 1];
        if (!before.in_feet) {
            before.in_feet = true;
            before.after *= feet_in_a_yard;
        }
        outcome.putts[i - green] = before.after;
    }
    return outcome;
}

stored_hole read_hole(const reader& store, int hole)
{
    stored_hole found;
    const auto rows = store.rows(u"select " + figure_columns(hole).join(u", ") +
                                 u" from games, games2 where games.date = games2.date");
    const auto& values = rows.at(0);
    std::transform(values.begin(), values.begin() + figures_of_a_hole, found.figures.begin(),
                   [](const QVariant& value) { return value.toInt(); });
    std::transform(values.begin() + figures_of_a_hole, values.end(), found.putts.begin(),
                   [](const QVariant& value) { return value.toInt(); });
    found.shots = read_shots(store, hole);
    return found;
}

QString described(const stored_hole& hole)
{
    QString log = joined(hole.figures) + u" | " + joined(hole.putts);
    for (const stored_shot& shot : hole.shots)
        log += u" | " + joined(std::array{shot.number, shot.club, shot.kind, shot.after,
                                          static_cast<int>(shot.in_feet), shot.position, shot.penalty,
                                          static_cast<int>(shot.sand)});
    return log;
}

bool is_start_of(const stored_shots& rows, const entered_hole& hole)
{
    if (rows.empty())
        return true;
    if (rows.size() > hole.size() || !numbered_from_one(rows))
        return false;
    return std::equal(rows.begin(), rows.end() - 1, hole.begin(), agrees) &&
           is_beginning_of(rows.back(), hole[rows.size() - 1]);
}

bool is_rest_of(const stored_shots& rows, const stored_shots& older)
{
    return rows.size() <= older.size() && numbered_from_one(rows) &&
           std::equal(rows.begin(), rows.end(), older.begin(), is_same_shot);
}

}  // namespace verdane::testing
