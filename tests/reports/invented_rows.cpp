#include "tests/reports/invented_rows.h"

#include <QDate>

#include "store/Connection1.h"
#include "tests/reports/report_tools.h"
#include "tests/support/reader.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

const QString longest_name =
    u"The Very Long And Honourable Company Of Invented Golf Courses, Variable White"_s;

/// `update TABLE set ... where rowid = ROW`, built column by column.
class row_update {
public:
    row_update(const QString& table, int row) : table_(table), row_(row) {}

    row_update& number(const QString& column, double value)
    {
        return put(column, QString::number(value, 'g', 12));
    }
    row_update& text(const QString& column, const QString& value) { return put(column, quoted(value)); }
    QString statement() const
    {
        return u"update %1 set %2 where rowid = %3"_s.arg(table_, parts_.join(u", "_s)).arg(row_);
    }

private:
    row_update& put(const QString& column, const QString& value)
    {
        parts_.append(column + u" = "_s + value);
        return *this;
    }

    QString table_;
    int row_;
    QStringList parts_;
};

QString indexed(const char* name, int index)
{
    return QString::fromLatin1(name) + QString::number(index);
}

int figure(figures kind, int usual, int extreme = 32767)
{
    return kind == figures::usual ? usual : kind == figures::none ? 0 : extreme;
}

int par_of(int hole)
{
    return hole == 3 || hole == 12 ? 3 : hole == 9 || hole == 18 ? 5 : 4;
}

QString card_row(int row, const QString& name, figures kind)
{
    row_update update(u"r_card"_s, row);
    for (int i = 1; i <= 9; ++i) {
        const int hole = i + (row - 1) * 9;
        update.number(indexed("card_hole_", i), hole)
            .number(indexed("card_yards_", i), figure(kind, 300 + 10 * hole))
            .number(indexed("card_hcp_", i), figure(kind, hole, hole))
            .number(indexed("card_par_", i), figure(kind, par_of(hole), 5));
    }
    for (int club = 1; club <= 13; ++club)
        update.number(indexed("card_club_", club), figure(kind, 240 - 10 * club));
    update.text(u"card_name"_s, kind == figures::extreme ? longest_name : name)
        .text(u"card_slope"_s, kind == figures::none ? QString() : u"139"_s)
        .text(u"card_tee"_s, u"BLANC"_s)
        .text(u"card_rating"_s, kind == figures::none ? QString() : u"75.2"_s);
    return update.statement();
}

QString with_blank(double value)
{
    return u' ' + QString::number(value, 'g', 12);
}

QString first_putts_row(int row, figures kind)
{
    row_update update(u"s_put1"_s, row);
    for (int band = 1; band <= 7; ++band) {
        update.number(indexed("band_", band), figure(kind, row * band));
        update.text(indexed("mean_band_", band),
                    row < 5 ? u" "_s : with_blank(kind == figures::none ? 0 : band * 1.11));
    }
    update.text(u"mean_all"_s, row < 5 ? u" "_s : with_blank(kind == figures::none ? 0 : 2.5));
    if (row > 1)
        return update.statement();
    const bool extreme = kind == figures::extreme;
    return update.text(u"from_date"_s, u"2023-05-06 08:30:00"_s)
        .text(u"to_date"_s, u"2024-10-13 13:40:00"_s)
        .text(u"axis_first"_s, u"First axis"_s)
        .text(u"axis_after"_s, u"Axis after "_s)
        .text(u"weather_text"_s, u"Ciel variable"_s)
        .text(u"partner_text"_s, extreme ? longest_name : u"Zoé, Sept"_s)
        .text(u"course_text"_s, extreme ? longest_name : u"A & B <c>"_s)
        .number(u"round_count"_s, figure(kind, 12))
        .statement();
}

QString stops_row(int row, figures kind)
{
    row_update update(u"s_put2"_s, row);
    for (int band = 1; band <= 7; ++band)
        update.number(indexed("band_", band), figure(kind, row * band));
    if (row == 1)
        update.text(u"axis_after2"_s, u"Second axis after"_s).text(u"axis_first2"_s, u"Second axis first"_s);
    const bool none = kind == figures::none;
    const QString score = none || row < 7 ? u" "_s : u" 2.25"_s;
    const QString rating = row < 7 ? u" "_s : none ? u"N/A"_s : u"MOYEN"_s;
    return update.text(u"weighted_mean"_s, score).text(u"rating_text"_s, rating).statement();
}

QStringList club_figures(int club, figures kind)
{
    if (kind == figures::none || club >= 13)
        return QStringList(9, u"0"_s);
    if (kind == figures::extreme)
        return {u" 32767"_s, u" 32767"_s, u"32767"_s, u" 100%"_s, u" 0%"_s,
                u" 0%"_s,    u" .003"_s,  u" 100%"_s, u" 100%"_s};
    return {with_blank(10 * club),
            with_blank(300 - 10 * club),
            club == 12 ? QString() : QString::number(280.5 - 10 * club),
            u" 50%"_s,
            u" 33.3"_s,
            u" 16.6"_s,
            u" 8.33"_s,
            u" 4%"_s,
            club < 10 ? u" 0%"_s : u" 2%"_s};
}

QString club_row(int club, figures kind)
{
    static const QStringList columns =
        u"shot_count longest average pct_fairway pct_right pct_left pct_missed pct_penalty "
        u"pct_holed"_s.split(u' ');
    row_update update(u"stat_sticks"_s, club);
    const QStringList values = club_figures(club, kind);
    for (qsizetype i = 0; i < columns.size(); ++i)
        update.text(columns[i], values[i]);
    update.text(u"club_name"_s, u"Club%1"_s.arg(club));
    if (club > 1)
        return update.statement();
    const bool extreme = kind == figures::extreme;
    return update.text(u"heading_text"_s, u"STATISTIQUES SUR VOS BÂTONS DE 2023-05-06 08:30:00"_s)
        .text(u"from_date"_s, u"2023-05-06 08:30:00"_s)
        .text(u"to_date"_s, u"2024-10-13 13:40:00"_s)
        .text(u"course_text"_s, extreme ? longest_name : u"A & B <c>"_s)
        .text(u"partner_text"_s, extreme ? longest_name : u"Zoé, Sept"_s)
        .text(u"weather_text"_s, u"Ciel variable"_s)
        .number(u"round_count"_s, figure(kind, 12))
        .statement();
}

QString cost_row(int round, int rounds, figures kind)
{
    const QString day = QDate(2023, 6, 1).addDays(round).toString(u"yyyyMMdd"_s);
    QStringList amounts(12, QString::number(figure(kind, 0, 2147483647)));
    if (kind == figures::usual) {
        amounts[0] = QString::number(round % 2 == 0 ? 60 : 80);
        amounts[4] = u"5"_s;
    }
    return u"insert into r_cost (date, fg, cm, vt, ft, ba, tee, tex, nrt, lg, bs, ln, au, "
           u"round_count) values (%1, %2, %3)"_s.arg(quoted(day + u"093000"), amounts.join(u", "_s),
                                                     round == 0 ? QString::number(rounds) : u"null"_s);
}

}  // namespace

void fill_card(const store_location& store, const QString& name, figures kind)
{
    reader(store).write({card_row(1, name, kind), card_row(2, name, kind)});
}

void fill_putts(const store_location& store, figures kind)
{
    QStringList statements;
    for (int row = 1; row <= 5; ++row)
        statements.append(first_putts_row(row, kind));
    for (int row = 1; row <= 7; ++row)
        statements.append(stops_row(row, kind));
    reader(store).write(statements);
}

void make_one_round_putts(const store_location& store)
{
    reader(store).write({u"update s_put1 set from_date = 'Round : 2024-05-01 Pebble Beach', "
                         u"to_date = 'Weather conditions : Sunny' where rowid = 1"_s,
                         u"update s_put2 set rating_text = ' ' where rowid = 7"_s,
                         u"update s_put2 set rating_text = 'Average' where rowid = 1"_s});
}

void fill_clubs(const store_location& store, figures kind)
{
    QStringList statements;
    for (int club = 1; club <= 14; ++club)
        statements.append(club_row(club, kind));
    reader(store).write(statements);
}

void fill_costs(const store_location& store, int rounds, figures kind)
{
    QStringList statements{u"delete from r_cost"_s, u"begin"_s};
    for (int round = 0; round < rounds; ++round)
        statements.append(cost_row(round, rounds, kind));
    statements.append(u"commit"_s);
    reader(store).write(statements);
}

void fill_all_reports(const store_location& store)
{
    fill_stats(store, 40, u"Links"_s);
    fill_card(store, u"Links"_s);
    fill_putts(store);
    fill_clubs(store);
    fill_costs(store, 60);
}

}  // namespace verdane::testing
