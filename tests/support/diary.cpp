#include "tests/support/diary.h"

#include <QDate>

#include <numeric>

namespace verdane::testing {

namespace {

/// `insert into TABLE (...) values (...)`, put together column by column.
class insertion {
public:
    explicit insertion(const QString& table) : table_(table) {}

    void text(const QString& column, QString value)
    {
        literal(column, u'\'' + value.replace(u'\'', QStringLiteral("''")) + u'\'');
    }
    void number(const QString& column, int value) { literal(column, QString::number(value)); }

    QString statement() const
    {
        return QStringLiteral("insert into %1 (%2) values (%3)")
            .arg(table_, columns_.join(u", "), values_.join(u", "));
    }

private:
    void literal(const QString& column, const QString& value)
    {
        columns_ << column;
        values_ << value;
    }

    QString table_;
    QStringList columns_;
    QStringList values_;
};

QString of_hole(const QString& column, int h)
{
    return column + u'_' + QString::number(h);
}

void put_hole(insertion& games, insertion& games2, int h, const hole_entry& hole)
{
    if (hole.stored) {
        games.number(of_hole(QStringLiteral("long"), h), hole.long_shots);
        games.number(of_hole(QStringLiteral("approach"), h), hole.approach);
        games.number(of_hole(QStringLiteral("putt"), h), hole.putts);
    }
    games.number(of_hole(QStringLiteral("pen_rule"), h), hole.rule);
    games.number(of_hole(QStringLiteral("pen_water"), h), hole.water);
    games.number(of_hole(QStringLiteral("pen_bounds"), h), hole.bounds);
    games.number(of_hole(QStringLiteral("pen_lost"), h), hole.lost);
    games.number(of_hole(QStringLiteral("missed"), h), hole.missed);
    games2.number(of_hole(QStringLiteral("sand"), h), hole.sand);
    games2.number(of_hole(QStringLiteral("fairway"), h), hole.fairway);
}

QStringList statements_of(const diary_round& round)
{
    insertion games(QStringLiteral("games"));
    games.text(QStringLiteral("date"), round.key);
    games.text(QStringLiteral("field"), round.course.name);
    games.text(QStringLiteral("CODEF"), round.course.code);
    insertion games2(QStringLiteral("games2"));
    games2.text(QStringLiteral("date"), round.key);
    games2.number(QStringLiteral("conditionM"), round.weather);
    games2.text(QStringLiteral("FC"), round.course.code);
    if (!round.partners.isEmpty())
        games2.text(QStringLiteral("PARTNERS"), round.partners);
    for (int h = 1; h <= 18; ++h)
        put_hole(games, games2, h, round.holes.at(static_cast<std::size_t>(h - 1)));
    return {games.statement(), games2.statement()};
}

}  // namespace

hole_entry hole_in(int strokes)
{
    hole_entry hole;
    hole.long_shots = 1;
    hole.putts = 2;
    hole.approach = strokes - 3;
    return hole;
}

eighteen holes_over(const std::array<int, 18>& pars, int over)
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
    const QString code = name.toUpper() + u'-' + QString::number(tee_code(tee));
    return {code, name, card.rating, card.slope, card.par, card.yards, card.stroke_index};
}

diary_course flat_course(const QString& code, int par, const QString& rating, const QString& slope)
{
    diary_course course{code, code.chopped(2), rating, slope};
    course.pars.fill(par);
    std::iota(course.yards.begin(), course.yards.end(), 301);
    std::iota(course.stroke_index.begin(), course.stroke_index.end(), 1);
    return course;
}

QString key_of_day(int day)
{
    return QDate(2003, 1, 1).addDays(day - 1).toString(QStringLiteral("yyyyMMdd")) + QStringLiteral("093000");
}

void diary::add(const diary_course& course) const
{
    insertion fields(QStringLiteral("vrd_fields"));
    fields.text(QStringLiteral("code"), course.code);
    fields.text(QStringLiteral("name"), course.name);
    fields.text(QStringLiteral("rating"), course.rating);
    fields.text(QStringLiteral("slope"), course.slope);
    insertion holes(QStringLiteral("field_info"));
    holes.text(QStringLiteral("FIELD_CODE"), course.code);
    for (int h = 1; h <= 18; ++h) {
        const auto at = static_cast<std::size_t>(h - 1);
        holes.number(of_hole(QStringLiteral("par"), h), course.pars.at(at));
        holes.number(of_hole(QStringLiteral("yards"), h), course.yards.at(at));
        holes.number(of_hole(QStringLiteral("hcp"), h), course.stroke_index.at(at));
    }
    store.write({fields.statement(), holes.statement()});
}

void diary::add(const diary_round& round) const
{
    store.write(statements_of(round));
}

void diary::add(const std::vector<diary_round>& rounds) const
{
    QStringList statements{QStringLiteral("begin")};
    for (const diary_round& round : rounds)
        statements << statements_of(round);
    store.write(statements << QStringLiteral("commit"));
}

void diary::add(const diary_shot& shot) const
{
    insertion row(QStringLiteral("Stat_rounds"));
    row.text(QStringLiteral("date"), shot.key);
    row.number(QStringLiteral("hole"), shot.hole);
    row.number(QStringLiteral("shot"), shot.shot);
    row.number(QStringLiteral("shot_type_value"), shot.kind);
    row.number(QStringLiteral("fairval"), shot.fairway);
    row.number(QStringLiteral("penval"), shot.penalty);
    row.number(QStringLiteral("addpen"), shot.penalty > 0 ? 1 : 0);
    row.number(QStringLiteral("ts"), shot.sand ? 1 : 0);
    row.number(QStringLiteral("missed"), shot.missed ? 1 : 0);
    row.number(QStringLiteral("normal"), shot.par);
    store.write(row.statement());
}

void diary::add_partner(const QString& surname, const QString& name, int code) const
{
    insertion row(QStringLiteral("partners"));
    row.text(QStringLiteral("NAME"), name);
    row.text(QStringLiteral("SURNAME"), surname);
    row.number(QStringLiteral("code"), code);
    store.write(row.statement());
}

std::vector<double> stats_row(const reader& store, int row)
{
    const auto rows =
        store.rows(QStringLiteral("select * from stats order by rowid limit 1 offset %1").arg(row));
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
