#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

#include "statistics/club_statistics.h"
#include "statistics/cost_statistics.h"
#include "statistics/putt_statistics.h"
#include "statistics/selection.h"
#include "store/DataEnvironment1.h"
#include "tests/statistics/report_rows.h"
#include "tests/support/full_diary.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// A second computation, in plain SQL and plain loops, of every cell of the report tables on putts,
/// clubs and costs.
namespace {

constexpr int rounds_in_diary = 300;

struct choice {
    QString from;
    QString to;
    QString weather;
    QString partner;
    QString course;

    QString condition() const
    {
        QString text = u"g.date between '"_s + from + u"' and '" + to + u'\'';
        if (!weather.isEmpty())
            text += u" and g.conditionM = " + weather;
        if (!partner.isEmpty())
            text += u" and g.PARTNERS like '%" + partner + u"%'";
        if (!course.isEmpty())
            text += u" and g.FC = '" + course + u'\'';
        return text;
    }

    selection_arguments arguments(clause_form form) const
    {
        selection_arguments chosen = open_selection(from, to);
        chosen.weather_clause = clause_of(filter::weather, form, weather);
        chosen.partner_clause = clause_of(filter::partner, form, partner);
        chosen.course_clause = clause_of(filter::course, form, course);
        return chosen;
    }
};

/// At most 15 digits without a zero before the point.
QString number(double value)
{
    QString text = QString::number(value, 'g', 15);
    if (text.startsWith(u"0."))
        text.remove(0, 1);
    return u' ' + text;
}

QString cut(const QString& text)
{
    return text.left(5);
}

// Putts.

struct second_putt_grids {
    int rounds = 0;
    std::array<std::array<int, 8>, 6> by_first{};
    std::array<std::array<int, 8>, 8> by_start{};
    int grades = 0;
    int putts = 0;

    void add(int length, int rest)
    {
        static constexpr std::array<std::array<int, 7>, 7> grade{{{8, 7, 5, 4, 3, 1, 1},
                                                                  {9, 8, 6, 5, 4, 2, 1},
                                                                  {10, 9, 8, 6, 5, 2, 1},
                                                                  {10, 10, 9, 7, 6, 3, 1},
                                                                  {10, 10, 10, 8, 7, 5, 1},
                                                                  {10, 10, 10, 9, 8, 5, 1},
                                                                  {10, 10, 10, 10, 9, 6, 1}}};
        const auto start = static_cast<std::size_t>(start_band(length));
        const auto stop = static_cast<std::size_t>(stop_band(rest));
        ++by_start.at(start).at(stop);
        ++putts;
        grades += grade.at(start - 1).at(stop - 1);
    }

    static int start_band(int feet)
    {
        return feet >= 50 ? 1 : feet >= 10 ? 6 - feet / 10 : feet >= 5 ? 6 : 7;
    }
    static int stop_band(int feet) { return feet >= 25 ? 1 : feet >= 5 ? 6 - feet / 5 : feet >= 2 ? 6 : 7; }

    QString mean(int band) const
    {
        double putts_of_band = 0;
        double holes = 0;
        for (std::size_t k = 1; k <= 5; ++k) {
            for (std::size_t j = 1; j <= 7; ++j) {
                if (band == 0 || static_cast<int>(j) == band) {
                    putts_of_band += static_cast<double>(k) * by_first.at(k).at(j);
                    holes += by_first.at(k).at(j);
                }
            }
        }
        return cut(number(holes > 0 ? putts_of_band / holes : 0));
    }
};

/// The lengths of the putts are read by the names of their columns; the program computes ordinals instead.
second_putt_grids putts_of(const reader& store, const QString& condition)
{
    second_putt_grids second;
    second.rounds = store.number(u"select count(*) from games2 g where "_s + condition);
    for (int h = 1; h <= 18; ++h) {
        QStringList columns;
        for (int putt = 1; putt <= 6; ++putt)
            columns << u"putt_len_%1_%2"_s.arg(h).arg(putt);
        for (const auto& row :
             store.rows(u"select "_s + columns.join(u',') + u" from games2 g where " + condition)) {
            std::size_t putts = 0;
            while (putts < row.size() && row[putts].toInt() > 0) {
                second.add(row[putts].toInt(), putts + 1 < row.size() ? row[putts + 1].toInt() : 0);
                ++putts;
            }
            if (putts > 0)
                ++second.by_first.at(putts).at(
                    static_cast<std::size_t>(second_putt_grids::start_band(row[0].toInt())));
        }
    }
    return second;
}

template <std::size_t Size>
QStringList counts(const std::array<int, Size>& row)
{
    QStringList texts;
    for (std::size_t j = 1; j <= 7; ++j)
        texts << QString::number(row.at(j));
    return texts;
}

// Clubs.

QString distance_sql()
{
    return u"(case when s.missed or s.ts or s.dz or s.penval in (3, 4) then null else "
           u"s.before + (case when s.beyong_hole then 1 else -1 end) * "
           u"(case when s.unit in ('Yards', 'Verges') then 1.0 else 1.0 / 3 end) * s.after end)"_s;
}

/// The nine figures of a club.
QStringList club_of(const reader& store, const QString& condition, int club)
{
    const QString rows = u" from Stat_rounds s join games2 g on g.date = s.date where "_s + condition +
                         u" and s.shot_type_value <> 3 and s.stickval = %1"_s.arg(club);
    const int shots = store.number(u"select count(*)"_s + rows);
    if (shots == 0)
        return QStringList(9, u"0"_s);
    double sum = 0;
    double longest = 0;
    int clean = 0;
    for (const auto& row : store.rows(u"select "_s + distance_sql() + rows)) {
        if (row[0].isNull())
            continue;
        // A third is never half way between two whole numbers, so every rounding mode gives the same result.
        const double distance = std::nearbyint(row[0].toDouble());
        sum += distance;
        longest = std::max(longest, distance);
        ++clean;
    }
    QStringList figures{number(shots), number(longest),
                        clean > 0 ? cut(number(sum / clean).mid(1)) : QString()};
    for (const char* kind : {"s.fairval = 1", "s.fairval = 3", "s.fairval = 2", "s.missed", "s.penval > 0",
                             "s.shot_type_value = 2 and s.after = 0"}) {
        const int count =
            store.number(u"select count(*)"_s + rows + u" and (" + QString::fromLatin1(kind) + u')');
        figures << cut(number(count * 100.0 / shots) + u'%');
    }
    return figures;
}

void choices()
{
    QTest::addColumn<QStringList>("picked");
    const auto row = [](const char* name, int from, int to, const QString& weather, const QString& partner,
                        const QString& course) {
        QTest::newRow(name) << QStringList{key_in_diary(from), key_in_diary(to), weather, partner, course};
    };
    const int last = rounds_in_diary - 1;
    row("everything", 0, last, {}, {}, {});
    row("a few rounds", 17, 24, {}, {}, {});
    row("one round", 30, 30, {}, {}, {});
    row("in the rain", 0, last, u"2"_s, {}, {});
    row("with one partner", 0, last, {}, u"1129"_s, {});
    row("with partners whose number contains 12", 0, last, {}, u"12"_s, {});
    row("on one course", 0, last, {}, {}, u"PEBBLE BEACH-3"_s);
}

choice picked()
{
    const QStringList texts = *static_cast<QStringList*>(QTest::qData("picked", qMetaTypeId<QStringList>()));
    return {texts[0], texts[1], texts[2], texts[3], texts[4]};
}

}  // namespace

class test_report_tables_crosscheck : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        path_ = folder_.filePath(u"diary.db"_s);
        create_diary(path_, rounds_in_diary, true);
        take_sixth_putts_away();
        data_environment().connection.Open(path_);
    }
    void cleanupTestCase() { data_environment().connection.Close(); }

    void every_cell_of_the_putt_grids_agrees_data() { choices(); }
    void every_cell_of_the_putt_grids_agrees()
    {
        const reader store(path_);
        const choice chosen = picked();
        QString condition = chosen.condition();
        // If the filters exclude the last round, the walk continues to the end.
        if (store.number(u"select count(*) from games2 g where "_s + condition + u" and g.date = '" +
                         chosen.to + u'\'') == 0) {
            choice open_end = chosen;
            open_end.to = u"99999999999999"_s;
            condition = open_end.condition();
        }
        const second_putt_grids second = putts_of(store, condition);
        QVERIFY(second.putts > 0);
        QVERIFY(Statistics::fill_putt_tables(chosen.arguments(clause_form::alone), no_bar_));
        const auto by_first = table_rows(store, u"s_put1"_s);
        for (int k = 1; k <= 5; ++k)
            QCOMPARE(by_first[k - 1].mid(1, 7), counts(second.by_first.at(static_cast<std::size_t>(k))));
        for (int band = 1; band <= 7; ++band)
            QCOMPARE(by_first[4][12 + band], second.mean(band));
        QCOMPARE(by_first[4][20], second.mean(0));
        QCOMPARE(by_first[0][26].toInt(), second.rounds);
        const auto by_start = table_rows(store, u"s_put2"_s);
        for (int i = 1; i <= 7; ++i)
            QCOMPARE(by_start[i - 1].mid(1, 7), counts(second.by_start.at(static_cast<std::size_t>(i))));
        QCOMPARE(by_start[6][11], number(static_cast<double>(second.grades) / second.putts));
    }

    void every_cell_of_the_club_table_agrees_data() { choices(); }
    void every_cell_of_the_club_table_agrees()
    {
        const reader store(path_);
        const choice chosen = picked();
        QVERIFY(Statistics::fill_stat_sticks(chosen.arguments(clause_form::appended), false, no_bar_));
        const auto table = table_rows(store, u"stat_sticks"_s);
        for (int club = 1; club <= 13; ++club)
            QCOMPARE(table[club - 1].mid(1, 9), club_of(store, chosen.condition(), club));
        QCOMPARE(table[0][17].toInt(),
                 store.number(u"select count(distinct s.date) from Stat_rounds s join games2 g on g.date = "
                              u"s.date where s.shot_type_value <> 3 and "_s +
                              chosen.condition()));
    }

    void every_cell_of_the_cost_table_agrees_data() { choices(); }
    void every_cell_of_the_cost_table_agrees()
    {
        const reader store(path_);
        const choice chosen = picked();
        QVERIFY(Statistics::fill_r_cost(chosen.arguments(clause_form::appended), no_bar_));
        const auto expected = store.rows(u"select c.* from cost c join games2 g on g.date = c.date where "_s +
                                         chosen.condition() + u" order by c.date");
        auto seen = table_rows(store, u"r_cost"_s);
        QCOMPARE(static_cast<std::size_t>(seen.size()), expected.size());
        QCOMPARE(seen[0][14].toInt(), static_cast<int>(expected.size()));
        // The rows come in the store's order.
        std::sort(seen.begin(), seen.end(),
                  [](const QStringList& one, const QStringList& other) { return one[0] < other[0]; });
        for (int row = 0; row < seen.size(); ++row) {
            for (int ordinal = 0; ordinal <= 12; ++ordinal)
                QCOMPARE(
                    seen[row][ordinal],
                    expected[static_cast<std::size_t>(row)][static_cast<std::size_t>(ordinal)].toString());
        }
    }

private:
    /// A hole of the diary may have six putts, which the statistics refuse.
    void take_sixth_putts_away() const
    {
        QStringList assignments;
        for (int h = 1; h <= 18; ++h)
            assignments << u"putt_len_%1_6 = 0"_s.arg(h);
        reader(path_).write(u"update games2 set "_s + assignments.join(u','));
    }

    QTemporaryDir folder_;
    QString path_;
    run_progress no_bar_;
};

QTEST_MAIN(test_report_tables_crosscheck)
#include "test_report_tables_crosscheck.moc"
