#include "tests/support/diary.h"

#include <QDate>

#include <numeric>

#include "scoring/limits.h"
#include "tests/support/insertion.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

QString of_hole(const QString& column, int h)
{
    return column + u'_' + QString::number(h);
}

void put_hole(insertion& games, insertion& games2, int h, const hole_entry& hole)
{
    if (hole.stored) {
        games.number(of_hole(u"long"_s, h), hole.long_shots);
        games.number(of_hole(u"approach"_s, h), hole.approach);
        games.number(of_hole(u"putt"_s, h), hole.putts);
    }
    games.number(of_hole(u"pen_rule"_s, h), hole.rule);
    games.number(of_hole(u"pen_water"_s, h), hole.water);
    games.number(of_hole(u"pen_bounds"_s, h), hole.bounds);
    games.number(of_hole(u"pen_lost"_s, h), hole.lost);
    games.number(of_hole(u"missed"_s, h), hole.missed);
    games2.number(of_hole(u"sand"_s, h), hole.sand);
    games2.number(of_hole(u"fairway"_s, h), hole.fairway);
}

}  // namespace

hole_values all_holes(int value)
{
    hole_values values;
    values.fill(value);
    return values;
}

hole_entry hole_in(int strokes)
{
    hole_entry hole;
    hole.long_shots = 1;
    hole.putts = 2;
    hole.approach = strokes - 3;
    return hole;
}

eighteen holes_over(const hole_values& pars, int over)
{
    eighteen holes;
    for (std::size_t i = 0; i < holes.size(); ++i)
        holes.at(i) = hole_in(pars.at(i) + over);
    return holes;
}

eighteen same_holes(const hole_entry& hole)
{
    eighteen holes;
    holes.fill(hole);
    return holes;
}

diary_course course_of(const QString& name, const QString& tee)
{
    const scorecard& card = published_scorecard(name, tee);
    return {.code = name.toUpper() + u'-' + QString::number(tee_code(tee)),
            .name = name,
            .name_tee = {},
            .tee = {},
            .rating = card.rating,
            .slope = card.slope,
            .pars = card.par,
            .yards = card.yards,
            .stroke_index = card.stroke_index,
            .address_1 = {}};
}

diary_course course_of_pars(const QString& pars, const QString& rating, const QString& slope)
{
    diary_course course{.name_tee = {}, .tee = {}, .rating = rating, .slope = slope, .address_1 = {}};
    for (int i = 0; i < hole_count; ++i) {
        const auto at = static_cast<std::size_t>(i);
        course.pars.at(at) = pars.at(i % pars.size()).digitValue();
        course.yards.at(at) = 101 + i;
        course.stroke_index.at(at) = hole_count - i;
    }
    return course;
}

diary_course flat_course(const QString& code, int par, const QString& rating, const QString& slope)
{
    diary_course course{.code = code,
                        .name = code.chopped(2),
                        .name_tee = {},
                        .tee = {},
                        .rating = rating,
                        .slope = slope,
                        .pars = all_holes(par),
                        .address_1 = {}};
    std::iota(course.yards.begin(), course.yards.end(), 301);
    std::iota(course.stroke_index.begin(), course.stroke_index.end(), 1);
    return course;
}

QString key_of_day(int day)
{
    return QDate(2003, 1, 1).addDays(day - 1).toString(u"yyyyMMdd"_s) + u"093000"_s;
}

QStringList statements_of(const diary_course& course)
{
    insertion fields(u"vrd_fields"_s);
    fields.text(u"code"_s, course.code);
    fields.text(u"name"_s, course.name);
    fields.text(u"name_tee"_s, course.name_tee);
    fields.text(u"tee"_s, course.tee);
    fields.text(u"rating"_s, course.rating);
    fields.text(u"slope"_s, course.slope);
    fields.text(u"address_1"_s, course.address_1);
    insertion card(u"field_info"_s);
    card.text(u"FIELD_CODE"_s, course.code);
    for (int h = 1; h <= hole_count; ++h) {
        const auto at = static_cast<std::size_t>(h - 1);
        card.number(of_hole(u"par"_s, h), course.pars.at(at));
        card.number(of_hole(u"yards"_s, h), course.yards.at(at));
        card.number(of_hole(u"hcp"_s, h), course.stroke_index.at(at));
    }
    return {fields.statement(), card.statement()};
}

QStringList statements_of(const diary_round& round)
{
    insertion games(u"games"_s);
    games.text(u"date"_s, round.key);
    games.text(u"field"_s, round.course.name);
    games.text(u"CODEF"_s, round.course.code);
    insertion games2(u"games2"_s);
    games2.text(u"date"_s, round.key);
    games2.number(u"conditionM"_s, round.weather);
    games2.text(u"FC"_s, round.course.code);
    if (!round.partners.isEmpty())
        games2.text(u"PARTNERS"_s, round.partners);
    for (int h = 1; h <= hole_count; ++h)
        put_hole(games, games2, h, round.holes.at(static_cast<std::size_t>(h - 1)));
    return {games.statement(), games2.statement()};
}

QStringList statements_of(const blank_round& round)
{
    insertion games(u"games"_s);
    games.text(u"date"_s, round.key);
    games.text(u"field"_s, round.course_name);
    games.text(u"CODEF"_s, round.course_code);
    insertion games2(u"games2"_s);
    games2.text(u"date"_s, round.key);
    games2.text(u"FC"_s, round.course_code);
    if (round.conditions) {
        games2.number(u"conditionM"_s, round.conditions->weather);
        games2.number(u"temperature"_s, round.conditions->temperature);
        games2.text(u"PARTNERS"_s, round.conditions->partners);
    }
    insertion cost(u"cost"_s);
    cost.text(u"date"_s, round.key);
    return {games.statement(), games2.statement(), cost.statement()};
}

void diary::add(const diary_course& course) const
{
    store.write(statements_of(course));
}

void diary::add(const blank_round& round) const
{
    store.write(statements_of(round));
}

void diary::add_days(const diary_course& course, int days) const
{
    std::vector<diary_round> rounds;
    for (int day = 1; day <= days; ++day)
        rounds.push_back({key_of_day(day), course, holes_over(course.pars, 0), day % 2, {}});
    add(rounds);
}

void diary::add(const diary_round& round) const
{
    store.write(statements_of(round));
}

void diary::add(const std::vector<diary_round>& rounds) const
{
    QStringList statements{u"begin"_s};
    for (const diary_round& round : rounds)
        statements << statements_of(round);
    store.write(statements << u"commit"_s);
}

void diary::add(const diary_shot& shot) const
{
    insertion row(u"Stat_rounds"_s);
    row.text(u"date"_s, shot.key);
    row.number(u"hole"_s, shot.hole);
    row.number(u"shot"_s, shot.shot);
    row.number(u"shot_type_value"_s, shot.kind);
    row.number(u"fairval"_s, shot.fairway);
    row.number(u"penval"_s, shot.penalty);
    row.number(u"addpen"_s, shot.penalty > 0 ? 1 : 0);
    row.number(u"ts"_s, shot.sand ? 1 : 0);
    row.number(u"missed"_s, shot.missed ? 1 : 0);
    row.number(u"normal"_s, shot.par);
    store.write(row.statement());
}

void diary::add_partner(const QString& surname, const QString& name, int code) const
{
    insertion row(u"partners"_s);
    row.text(u"NAME"_s, name);
    row.text(u"SURNAME"_s, surname);
    row.number(u"code"_s, code);
    store.write(row.statement());
}

std::vector<double> stats_row(const reader& store, int row)
{
    const auto rows = store.rows(u"select * from stats order by rowid limit 1 offset %1"_s.arg(row));
    std::vector<double> figures;
    for (int ordinal = 1; ordinal <= 18; ++ordinal)
        figures.push_back(rows.at(0).at(static_cast<std::size_t>(ordinal)).toDouble());
    for (const std::size_t ordinal : {27U, 28U, 29U})
        figures.push_back(rows.at(0).at(ordinal).toDouble());
    return figures;
}

QVariant stats_head(const reader& store, const QString& column)
{
    return store.value(u"select " + column + u" from stats order by rowid limit 1");
}

}  // namespace verdane::testing
