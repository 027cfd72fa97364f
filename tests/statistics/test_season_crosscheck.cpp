#include <QTest>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>

#include "scoring/limits.h"
#include "statistics/season_tables.h"
#include "statistics/stats_table.h"
#include "statistics/summary_pass.h"
#include "store/DataEnvironment1.h"
#include "tests/statistics/generated_diary.h"
#include "tests/statistics/second_handicap.h"
#include "tests/support/stored_diary.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// A round as its rows have it.
struct read_round {
    QString key;
    QString code;
    QString course;
    double rating = 0;
    double slope = 0;
    /// Of the holes that were played, by hole.
    std::map<int, int> gross;
    std::map<int, int> par;
    int putts = 0;
    int greens = 0;
    int penalties = 0;

    bool whole() const { return gross.size() == 18; }
    int strokes() const
    {
        int sum = 0;
        for (const auto& [hole, strokes] : gross)
            sum += strokes;
        return sum;
    }
    int over() const
    {
        int sum = 0;
        for (const auto& [hole, strokes] : gross)
            sum += strokes - par.at(hole);
        return sum;
    }
    double differential() const { return (strokes() - rating) * 113 / slope; }
};

void read_hole(read_round& round, int h, const std::vector<QVariant>& row, std::size_t first)
{
    std::array<int, 8> v{};
    for (std::size_t i = 0; i < v.size(); ++i)
        v.at(i) = row.at(first + i).toInt();
    const int penalties = v[3] + v[4] + v[5] + v[6];
    const int gross = v[0] + v[1] + v[2] + penalties;
    if (gross == 0)
        return;
    round.gross[h] = gross;
    round.par[h] = v[7];
    round.putts += v[2];
    round.penalties += penalties;
    if (v[0] + v[1] + penalties == v[7] - 2)
        ++round.greens;
}

std::vector<read_round> rounds_in(const reader& store, const QString& condition)
{
    QStringList columns{u"g.date"_s, u"g.CODEF"_s, u"trim(c.name)"_s, u"c.rating"_s, u"c.slope"_s};
    for (int h = 1; h <= 18; ++h)
        for (const auto* name :
             {"long_", "approach_", "putt_", "pen_rule_", "pen_water_", "pen_bounds_", "pen_lost_", "par_"})
            columns << u"coalesce(%1%2, 0)"_s.arg(QString::fromLatin1(name)).arg(h);
    std::vector<read_round> rounds;
    for (const auto& row : store.rows(u"select " + columns.join(u',') +
                                      u" from games g join games2 s on g.date = s.date "
                                      u"join vrd_fields c on c.code = g.CODEF "
                                      u"join field_info f on f.FIELD_CODE = g.CODEF where " +
                                      condition + u" order by g.date")) {
        read_round round;
        round.key = row[0].toString();
        round.code = row[1].toString();
        round.course = row[2].toString();
        round.rating = row[3].toDouble();
        round.slope = row[4].toDouble();
        for (int h = 1; h <= 18; ++h)
            read_hole(round, h, row, 5 + 8 * static_cast<std::size_t>(h - 1));
        rounds.push_back(round);
    }
    return rounds;
}

/// The mean of a figure over the whole rounds; invalid if there is none.
QVariant mean_of(const std::vector<read_round>& rounds, const std::function<int(const read_round&)>& figure)
{
    double sum = 0;
    int count = 0;
    for (const read_round& round : rounds)
        if (round.whole()) {
            sum += figure(round);
            ++count;
        }
    return count == 0 ? QVariant() : QVariant(sum / count);
}

/// Compares a cell of a passed table: a missing value, a number or a text.
void compare(const passed_rows& tables, const QString& table, std::size_t row, const QString& column,
             const QVariant& expected)
{
    const auto declared = std::find_if(passed_tables().begin(), passed_tables().end(),
                                       [&](const passed_table& each) { return each.name == table; });
    QVERIFY(declared != passed_tables().end() && declared->columns.contains(column));
    const QVariant seen = tables.at(table).at(row).at(column);
    const bool is_text = expected.typeId() == QMetaType::QString;
    const bool equal = !expected.isValid() ? !seen.isValid()
                       : is_text           ? seen.toString() == expected.toString()
                                           : seen.isValid() && !seen.toString().isEmpty() &&
                                       std::abs(seen.toDouble() - expected.toDouble()) < 1e-9;
    QVERIFY2(equal, qPrintable(u"%1, row %2, %3: %4, expected %5"_s.arg(table).arg(row).arg(column).arg(
                        seen.toString(), expected.toString())));
}

QVariant cell_of(const passed_rows& tables, const QString& table, std::size_t row, const QString& column)
{
    return tables.at(table).at(row).at(column);
}

/// The rounds of the moving mean, for a number of whole rounds.
int window_of(int whole)
{
    return whole < 30 ? 5 : whole < 120 ? 10 : 20;
}

int taken_of(std::size_t rounds)
{
    static const std::map<std::size_t, int> steps{{0, 0},  {5, 1},  {6, 2},  {8, 3},  {10, 4}, {12, 5},
                                                  {14, 6}, {16, 7}, {18, 8}, {19, 9}, {20, 10}};
    return std::prev(steps.upper_bound(rounds))->second;
}

using hole_place = std::pair<QString, int>;
struct hole_sum {
    int over = 0;
    int plays = 0;
    double mean() const { return double(over) / plays; }
};

std::map<hole_place, hole_sum> hole_sums(const std::vector<read_round>& rounds)
{
    std::map<hole_place, hole_sum> sums;
    for (const read_round& round : rounds)
        for (const auto& [hole, gross] : round.gross) {
            sums[{round.course, hole}].over += gross - round.par.at(hole);
            ++sums[{round.course, hole}].plays;
        }
    return sums;
}

/// The tables for a selection of the diary.
passed_rows tables_for(const selection_arguments& chosen)
{
    stats_table::open_cleared();
    const Statistics::filled_lines filled = Statistics::fill_round_lines(chosen);
    data_environment().rsstats.Update();
    data_environment().rsstats.Close();
    return Statistics::season_tables(filled.season);
}

void check_rounds(const passed_rows& tables, const std::vector<read_round>& rounds, const reader& store,
                  const QString& condition)
{
    const QString table = u"season_rounds"_s;
    std::vector<int> window;
    const auto whole = std::count_if(rounds.begin(), rounds.end(), [](const auto& r) { return r.whole(); });
    const auto width = static_cast<std::size_t>(window_of(static_cast<int>(whole)));
    QCOMPARE(tables.at(table).size(), rounds.size());
    for (std::size_t i = 0; i < rounds.size(); ++i) {
        const read_round& round = rounds[i];
        compare(tables, table, i, u"place"_s, static_cast<int>(i) + 1);
        const QString day = round.key.left(8);
        compare(tables, table, i, u"date"_s, u"%1-%2-%3"_s.arg(day.left(4), day.mid(4, 2), day.mid(6)));
        QVERIFY(cell_of(tables, table, i, u"course"_s).toString().startsWith(round.course + u", "));
        compare(tables, table, i, u"holes"_s, static_cast<int>(round.gross.size()));
        compare(tables, table, i, u"whole"_s, round.whole() ? 1 : 0);
        compare(tables, table, i, u"gross"_s, round.strokes());
        compare(tables, table, i, u"rating"_s, round.rating);
        compare(tables, table, i, u"slope"_s, round.slope);
        compare(tables, table, i, u"differential"_s, round.differential());
        compare(tables, table, i, u"over"_s, round.over());
        compare(tables, table, i, u"putts"_s, round.putts);
        compare(tables, table, i, u"greens"_s, round.greens);
        compare(tables, table, i, u"penalties"_s, round.penalties);
        const QString handicap = second_handicap(store, condition + u" and g.date <= '%1'"_s.arg(round.key));
        compare(tables, table, i, u"handicap"_s,
                handicap == u"N/A" ? QVariant() : QVariant(handicap.trimmed().toDouble()));
        if (round.whole())
            window.push_back(round.over());
        double sum = 0;
        for (std::size_t k = window.size() < width ? 0 : window.size() - width; k < window.size(); ++k)
            sum += window[k];
        compare(tables, table, i, u"moving_mean"_s,
                round.whole() && window.size() >= width ? QVariant(sum / double(width)) : QVariant());
    }
}

void check_handicap(const passed_rows& tables, const std::vector<read_round>& rounds, const QString& handicap)
{
    const QString table = u"season_handicap"_s;
    const int take = taken_of(rounds.size());
    double sum = 0;
    for (std::size_t i = 0; i < rounds.size(); ++i) {
        int better = 0;
        for (std::size_t k = 0; k < rounds.size(); ++k)
            if (rounds[k].differential() < rounds[i].differential() ||
                (rounds[k].differential() == rounds[i].differential() && k < i))
                ++better;
        compare(tables, u"season_rounds"_s, i, u"counting"_s,
                better < take ? QVariant(better + 1) : QVariant());
        sum += better < take ? rounds[i].differential() : 0;
    }
    compare(tables, table, 0, u"rounds"_s, static_cast<int>(rounds.size()));
    compare(tables, table, 0, u"take"_s, take);
    compare(tables, table, 0, u"sum"_s, sum);
    compare(tables, table, 0, u"mean"_s, take == 0 ? 0 : sum / take);
    compare(tables, table, 0, u"factor"_s, take <= 1 ? 1 : 0.96);
    compare(tables, table, 0, u"product"_s, take == 0 ? 0 : sum / take * (take == 1 ? 1 : 0.96));
    compare(tables, table, 0, u"handicap"_s, handicap.trimmed());
    compare(tables, table, 0, u"missing"_s, std::max(0, 5 - static_cast<int>(rounds.size())));
    compare(tables, table, 0, u"least_rounds"_s, 5);
}

void check_ladder(const passed_rows& tables, std::size_t rounds)
{
    const QString table = u"season_ladder"_s;
    QCOMPARE(tables.at(table).size(), std::size_t{11});
    for (std::size_t i = 0; i < 11; ++i) {
        const std::size_t first = cell_of(tables, table, i, u"first_rounds"_s).toULongLong();
        const QVariant last = cell_of(tables, table, i, u"last_rounds"_s);
        compare(tables, table, i, u"take"_s, taken_of(first));
        if (last.isValid())
            QCOMPARE(taken_of(last.toULongLong()), taken_of(first));
        QCOMPARE(last.isValid(), i < 10);
        compare(tables, table, i, u"is_current"_s, taken_of(rounds) == taken_of(first) ? 1 : 0);
    }
}

void check_totals(const passed_rows& tables, const std::vector<read_round>& rounds)
{
    const QString table = u"season"_s;
    int whole = 0;
    int holes = 0;
    for (const read_round& round : rounds) {
        whole += round.whole() ? 1 : 0;
        holes += static_cast<int>(round.gross.size());
    }
    int most = 0;
    for (const auto& [place, sum] : hole_sums(rounds))
        most = std::max(most, sum.plays);
    compare(tables, table, 0, u"rounds"_s, static_cast<int>(rounds.size()));
    compare(tables, table, 0, u"whole_rounds"_s, whole);
    compare(tables, table, 0, u"holes"_s, holes);
    compare(tables, table, 0, u"mean_window"_s, window_of(whole));
    compare(tables, table, 0, u"least_plays"_s, std::min(most, 3));
    compare(tables, table, 0, u"gross"_s, mean_of(rounds, [](const auto& r) { return r.strokes(); }));
    compare(tables, table, 0, u"over"_s, mean_of(rounds, [](const auto& r) { return r.over(); }));
    compare(tables, table, 0, u"putts"_s, mean_of(rounds, [](const auto& r) { return r.putts; }));
    compare(tables, table, 0, u"greens"_s, mean_of(rounds, [](const auto& r) { return r.greens; }));
    compare(tables, table, 0, u"penalties"_s, mean_of(rounds, [](const auto& r) { return r.penalties; }));
}

/// Every listed hole has its figures, and no other hole would be before the last one of its list.
void check_holes(const passed_rows& tables, const std::vector<read_round>& rounds)
{
    const QString table = u"season_holes"_s;
    std::map<hole_place, hole_sum> left = hole_sums(rounds);
    const int least = cell_of(tables, u"season"_s, 0, u"least_plays"_s).toInt();
    std::erase_if(left, [&](const auto& hole) { return hole.second.plays < least; });
    compare(tables, u"season"_s, 0, u"ranked_holes"_s, static_cast<int>(left.size()));
    QCOMPARE(tables.at(table).size(), std::min<std::size_t>(left.size(), 10));
    for (std::size_t i = 0; i < tables.at(table).size(); ++i) {
        const bool is_best = cell_of(tables, table, i, u"is_best"_s).toInt() == 1;
        const QString course = cell_of(tables, table, i, u"course"_s).toString().section(u", "_s, 0, 0);
        const hole_place place{course, cell_of(tables, table, i, u"hole"_s).toInt()};
        QVERIFY(left.contains(place));
        const hole_sum sum = left.at(place);
        QCOMPARE(is_best, i < 5);
        compare(tables, table, i, u"rank"_s, static_cast<int>(i % 5) + 1);
        compare(tables, table, i, u"plays"_s, sum.plays);
        compare(tables, table, i, u"mean_over"_s, sum.mean());
        for (const auto& [other, figures] : left)
            QVERIFY(is_best ? figures.mean() >= sum.mean() : figures.mean() <= sum.mean());
        left.erase(place);
    }
}

void check_courses(const passed_rows& tables, const std::vector<read_round>& rounds)
{
    const QString table = u"season_courses"_s;
    std::map<QString, std::vector<read_round>> by_course;
    for (const read_round& round : rounds)
        by_course[round.course].push_back(round);
    QCOMPARE(tables.at(table).size(), by_course.size());
    for (std::size_t i = 0; i < tables.at(table).size(); ++i) {
        const auto& played =
            by_course.at(cell_of(tables, table, i, u"course"_s).toString().section(u", "_s, 0, 0));
        QVariant best_gross;
        QVariant lowest;
        int whole = 0;
        for (const read_round& round : played) {
            if (!round.whole())
                continue;
            lowest =
                lowest.isValid() ? std::min(lowest.toDouble(), round.differential()) : round.differential();
            ++whole;
            best_gross =
                best_gross.isValid() ? std::min(best_gross.toInt(), round.strokes()) : round.strokes();
        }
        compare(tables, table, i, u"rounds"_s, static_cast<int>(played.size()));
        compare(tables, table, i, u"whole_rounds"_s, whole);
        compare(tables, table, i, u"gross"_s, mean_of(played, [](const auto& r) { return r.strokes(); }));
        compare(tables, table, i, u"best_gross"_s, best_gross);
        compare(tables, table, i, u"over"_s, mean_of(played, [](const auto& r) { return r.over(); }));
        compare(tables, table, i, u"putts"_s, mean_of(played, [](const auto& r) { return r.putts; }));
        compare(tables, table, i, u"greens"_s, mean_of(played, [](const auto& r) { return r.greens; }));
        compare(tables, table, i, u"penalties"_s, mean_of(played, [](const auto& r) { return r.penalties; }));
        compare(tables, table, i, u"best_differential"_s, lowest);
        if (i > 0)
            QVERIFY(cell_of(tables, table, i - 1, u"rounds"_s).toInt() >= static_cast<int>(played.size()));
    }
}

}  // namespace

/// The figures of the pages about the handicap and the season, computed a second time from the rows.
class test_season_crosscheck : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_figure_agrees_with_a_second_computation_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("last");
        QTest::addColumn<int>("course");
        QTest::addColumn<bool>("is_full");
        QTest::newRow("everything") << 0 << rounds_in_diary - 1 << 0 << false;
        QTest::newRow("one round") << 30 << 30 << 0 << false;
        QTest::newRow("four rounds") << 10 << 13 << 0 << false;
        QTest::newRow("five rounds") << 10 << 14 << 0 << false;
        QTest::newRow("one course") << 0 << rounds_in_diary - 1 << 2 << false;
        QTest::newRow("full diary with ten courses") << 0 << most_rounds - 1 << 0 << true;
        QTest::newRow("one of ten courses") << 0 << most_rounds - 1 << 7 << true;
        QTest::newRow("one round without strokes") << 35 << 35 << 0 << true;
        QTest::newRow("five rounds, one without strokes") << 33 << 37 << 0 << true;
        QTest::newRow("one unfinished round") << 8 << 8 << 0 << true;
    }
    void every_figure_agrees_with_a_second_computation()
    {
        QFETCH(int, first);
        QFETCH(int, last);
        QFETCH(int, course);
        QFETCH(bool, is_full);
        const stored_diary store;
        const auto courses = is_full ? ten_courses() : courses_of_generated_diary();
        for (const diary_course& each : courses)
            store.book.add(each);
        auto rounds = is_full ? full_generated_diary() : generated_diary();
        selection_arguments chosen;
        chosen.from_key = rounds.at(static_cast<std::size_t>(first)).key;
        chosen.to_key = rounds.at(static_cast<std::size_t>(last)).key;
        QString condition = u"g.date between '%1' and '%2'"_s.arg(chosen.from_key, chosen.to_key);
        if (course > 0) {
            chosen.course_code = courses.at(static_cast<std::size_t>(course)).code;
            condition += u" and g.CODEF = '%1'"_s.arg(chosen.course_code);
        }
        // The statistics read the rounds in the order of the table, which need not be that of time.
        std::reverse(rounds.begin(), rounds.begin() + 20);
        store.book.add(rounds);
        const passed_rows tables = tables_for(chosen);
        const std::vector<read_round> expected = rounds_in(store.store, condition);
        QVERIFY(course > 0 ? !expected.empty() : static_cast<int>(expected.size()) == last - first + 1);
        check_rounds(tables, expected, store.store, condition);
        check_handicap(tables, expected, second_handicap(store.store, condition));
        check_ladder(tables, expected.size());
        check_totals(tables, expected);
        check_holes(tables, expected);
        check_courses(tables, expected);
    }

    void a_selection_without_rounds_has_no_rows()
    {
        const stored_diary store;
        QVERIFY(tables_for({}).empty());
    }
};

QTEST_MAIN(test_season_crosscheck)
#include "test_season_crosscheck.moc"
