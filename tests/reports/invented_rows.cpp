#include "tests/reports/invented_rows.h"

#include <QDate>

#include "store/Connection1.h"
#include "tests/reports/report_tools.h"
#include "tests/support/reader.h"

namespace verdane::testing {

namespace {

const QString longest_name =
    QStringLiteral("The Very Long And Honourable Company Of Invented Golf Courses, Variable White");

/// `update TABLE set ... where rowid = ROW`, put together column by column.
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
        return QStringLiteral("update %1 set %2 where rowid = %3")
            .arg(table_, parts_.join(QStringLiteral(", ")))
            .arg(row_);
    }

private:
    row_update& put(const QString& column, const QString& value)
    {
        parts_.append(column + QStringLiteral(" = ") + value);
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
    row_update update(QStringLiteral("r_card"), row);
    for (int i = 1; i <= 9; ++i) {
        const int hole = i + (row - 1) * 9;
        update.number(indexed("card_hole_", i), hole)
            .number(indexed("card_yards_", i), figure(kind, 300 + 10 * hole))
            .number(indexed("card_hcp_", i), figure(kind, hole, hole))
            .number(indexed("card_par_", i), figure(kind, par_of(hole), 5));
    }
    for (int club = 1; club <= 13; ++club)
        update.number(indexed("card_club_", club), figure(kind, 240 - 10 * club));
    update.text(QStringLiteral("card_name"), kind == figures::extreme ? longest_name : name)
        .text(QStringLiteral("card_slope"), kind == figures::none ? QString() : QStringLiteral("139"))
        .text(QStringLiteral("card_tee"), QStringLiteral("BLANC"))
        .text(QStringLiteral("card_rating"), kind == figures::none ? QString() : QStringLiteral("75.2"));
    return update.statement();
}

QString with_blank(double value)
{
    return u' ' + QString::number(value, 'g', 12);
}

QString first_putts_row(int row, figures kind)
{
    row_update update(QStringLiteral("s_put1"), row);
    for (int band = 1; band <= 7; ++band) {
        update.number(indexed("band_", band), figure(kind, row * band));
        update.text(indexed("mean_band_", band),
                    row < 5 ? QStringLiteral(" ") : with_blank(kind == figures::none ? 0 : band * 1.11));
    }
    update.text(QStringLiteral("mean_all"),
                row < 5 ? QStringLiteral(" ") : with_blank(kind == figures::none ? 0 : 2.5));
    if (row > 1)
        return update.statement();
    const bool extreme = kind == figures::extreme;
    return update.text(QStringLiteral("from_date"), QStringLiteral("2023-05-06 08:30:00"))
        .text(QStringLiteral("to_date"), QStringLiteral("2024-10-13 13:40:00"))
        .text(QStringLiteral("axis_first"), QStringLiteral("First axis"))
        .text(QStringLiteral("axis_after"), QStringLiteral("Axis after "))
        .text(QStringLiteral("weather_text"), QStringLiteral("Ciel variable"))
        .text(QStringLiteral("partner_text"), extreme ? longest_name : QStringLiteral("Zoé, Sept"))
        .text(QStringLiteral("course_text"), extreme ? longest_name : QStringLiteral("A & B <c>"))
        .number(QStringLiteral("round_count"), figure(kind, 12))
        .statement();
}

QString stops_row(int row, figures kind)
{
    row_update update(QStringLiteral("s_put2"), row);
    for (int band = 1; band <= 7; ++band)
        update.number(indexed("band_", band), figure(kind, row * band));
    if (row == 1)
        update.text(QStringLiteral("axis_after2"), QStringLiteral("Second axis after"))
            .text(QStringLiteral("axis_first2"), QStringLiteral("Second axis first"));
    const bool none = kind == figures::none;
    const QString score = none || row < 7 ? QStringLiteral(" ") : QStringLiteral(" 2.25");
    const QString rating = row < 7 ? QStringLiteral(" ")
                           : none  ? QStringLiteral("N/A")
                                   : QStringLiteral("MOYEN");
    return update.text(QStringLiteral("weighted_mean"), score)
        .text(QStringLiteral("rating_text"), rating)
        .statement();
}

QStringList club_figures(int club, figures kind)
{
    if (kind == figures::none || club >= 13)
        return QStringList(9, QStringLiteral("0"));
    if (kind == figures::extreme)
        return {QStringLiteral(" 32767"), QStringLiteral(" 32767"), QStringLiteral("32767"),
                QStringLiteral(" 100%"),  QStringLiteral(" 0%"),    QStringLiteral(" 0%"),
                QStringLiteral(" .003"),  QStringLiteral(" 100%"),  QStringLiteral(" 100%")};
    return {with_blank(10 * club),
            with_blank(300 - 10 * club),
            club == 12 ? QString() : QString::number(280.5 - 10 * club),
            QStringLiteral(" 50%"),
            QStringLiteral(" 33.3"),
            QStringLiteral(" 16.6"),
            QStringLiteral(" 8.33"),
            QStringLiteral(" 4%"),
            club < 10 ? QStringLiteral(" 0%") : QStringLiteral(" 2%")};
}

QString club_row(int club, figures kind)
{
    static const QStringList columns =
        QStringLiteral("shot_count longest average pct_fairway pct_right pct_left pct_missed pct_penalty "
                       "pct_holed")
            .split(u' ');
    row_update update(QStringLiteral("stat_sticks"), club);
    const QStringList values = club_figures(club, kind);
    for (qsizetype i = 0; i < columns.size(); ++i)
        update.text(columns[i], values[i]);
    update.text(QStringLiteral("club_name"), QStringLiteral("Club%1").arg(club));
    if (club > 1)
        return update.statement();
    const bool extreme = kind == figures::extreme;
    return update
        .text(QStringLiteral("heading_text"),
              QStringLiteral("STATISTIQUES SUR VOS BÂTONS DE 2023-05-06 08:30:00"))
        .text(QStringLiteral("from_date"), QStringLiteral("2023-05-06 08:30:00"))
        .text(QStringLiteral("to_date"), QStringLiteral("2024-10-13 13:40:00"))
        .text(QStringLiteral("course_text"), extreme ? longest_name : QStringLiteral("A & B <c>"))
        .text(QStringLiteral("partner_text"), extreme ? longest_name : QStringLiteral("Zoé, Sept"))
        .text(QStringLiteral("weather_text"), QStringLiteral("Ciel variable"))
        .number(QStringLiteral("round_count"), figure(kind, 12))
        .statement();
}

QString cost_row(int round, int rounds, figures kind)
{
    const QString day = QDate(2023, 6, 1).addDays(round).toString(QStringLiteral("yyyyMMdd"));
    QStringList amounts(12, QString::number(figure(kind, 0, 2147483647)));
    if (kind == figures::usual) {
        amounts[0] = QString::number(round % 2 == 0 ? 60 : 80);
        amounts[4] = QStringLiteral("5");
    }
    return QStringLiteral("insert into r_cost (date, fg, cm, vt, ft, ba, tee, tex, nrt, lg, bs, ln, au, "
                          "round_count) values (%1, %2, %3)")
        .arg(quoted(day + u"093000"), amounts.join(QStringLiteral(", ")),
             round == 0 ? QString::number(rounds) : QStringLiteral("null"));
}

}  // namespace

void fill_card(const QString& store, const QString& name, figures kind)
{
    reader(store).write({card_row(1, name, kind), card_row(2, name, kind)});
}

void fill_putts(const QString& store, figures kind)
{
    QStringList statements;
    for (int row = 1; row <= 5; ++row)
        statements.append(first_putts_row(row, kind));
    for (int row = 1; row <= 7; ++row)
        statements.append(stops_row(row, kind));
    reader(store).write(statements);
}

void make_one_round_putts(const QString& store)
{
    reader(store).write({QStringLiteral("update s_put1 set from_date = 'Round : 2024-05-01 Pebble Beach', "
                                        "to_date = 'Weather conditions : Sunny' where rowid = 1"),
                         QStringLiteral("update s_put2 set rating_text = ' ' where rowid = 7"),
                         QStringLiteral("update s_put2 set rating_text = 'Average' where rowid = 1")});
}

void fill_clubs(const QString& store, figures kind)
{
    QStringList statements;
    for (int club = 1; club <= 14; ++club)
        statements.append(club_row(club, kind));
    reader(store).write(statements);
}

void fill_costs(const QString& store, int rounds, figures kind)
{
    QStringList statements{QStringLiteral("delete from r_cost"), QStringLiteral("begin")};
    for (int round = 0; round < rounds; ++round)
        statements.append(cost_row(round, rounds, kind));
    statements.append(QStringLiteral("commit"));
    reader(store).write(statements);
}

void fill_all_reports(const QString& store)
{
    fill_stats(store, 40, QStringLiteral("Links"));
    fill_card(store, QStringLiteral("Links"));
    fill_putts(store);
    fill_clubs(store);
    fill_costs(store, 60);
}

}  // namespace verdane::testing
