#include <QTest>

#include <cmath>
#include <map>

#include "reports/query/report_snapshot.h"
#include "store/DataEnvironment1.h"
#include "tests/statistics/generated_diary.h"
#include "tests/statistics/second_handicap.h"
#include "tests/statistics/selection_windows.h"
#include "tests/support/stored_diary.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int rows_of_stats = 34;

/// One selection: the choices of the user, and the rounds that they select.
struct choice {
    int from = 0;
    int to = rounds_in_diary - 1;
    int course = 0;
    int partner = 0;
    int weather = 0;
};

/// The second computation: rows of the store joined by the engine, added up in plain loops.
class second_computation {
public:
    second_computation(const reader& store, const QString& condition) : store_(store)
    {
        rounds_ =
            store.number(u"select count(*) from games g join games2 s on g.date = s.date where " + condition);
        for (int h = 1; h <= 18; ++h)
            add_hole(h, condition);
    }

    int rounds() const { return rounds_; }

    /// 18 holes, front, back, all.
    std::vector<double> row(int line) const
    {
        std::vector<double> figures;
        double front = 0;
        double back = 0;
        for (int h = 1; h <= 18; ++h) {
            const double figure = cell(line, h);
            figures.push_back(figure);
            (h < 10 ? front : back) += figure;
        }
        const bool means = line >= 24 && line <= 26;
        figures.push_back(means ? mean(line, 1, 9) : front);
        figures.push_back(means ? mean(line, 10, 18) : back);
        figures.push_back(means                      ? mean(line, 1, 18)
                          : line == 0 && rounds_ > 1 ? (front + back) / rounds_
                                                     : front + back);
        return figures;
    }

private:
    struct sums {
        double value = 0;
        int holes = 0;
    };

    /// One statement for each hole selects its columns by name; the program computes ordinals instead.
    void add_hole(int h, const QString& condition)
    {
        const QString statement =
            u"select coalesce(long_%1,0), coalesce(approach_%1,0), coalesce(putt_%1,0), "
            u"pen_rule_%1, pen_water_%1, pen_bounds_%1, pen_lost_%1, missed_%1, sand_%1, "
            u"fairway_%1, par_%1 from games g join games2 s on g.date = s.date "
            u"join field_info f on f.FIELD_CODE = g.CODEF where "_s.arg(h) +
            condition;
        for (const auto& found : store_.rows(statement)) {
            std::array<int, 11> v{};
            for (std::size_t i = 0; i < v.size(); ++i)
                v.at(i) = found.at(i).toInt();
            add(h, v);
        }
    }

    void add(int h, const std::array<int, 11>& v)
    {
        const int shots = v[0] + v[1];
        const int putts = v[2];
        const int penalties = v[3] + v[4] + v[5] + v[6];
        const int gross = shots + putts + penalties;
        const int par = v[10];
        const bool played = gross != 0;
        const bool green = shots + penalties == par - 2;
        const int to_par = gross - par;
        put(0, h, gross);
        put(1, h, v[9]);
        put(2, h, v[8]);
        put(3, h, v[7]);
        put(4, h, v[4]);
        put(5, h, v[6]);
        put(6, h, v[3]);
        put(7, h, v[5]);
        put(8, h, penalties);
        put(9, h, to_par);
        put(10, h, to_par == 0);
        put(11, h, green);
        put(12, h, green && putts == 1);
        put(13, h, green && putts == 2);
        put(14, h, green && putts > 2);
        put(15, h, played && !green);
        put(16, h, played && !green && putts == 1);
        put(17, h, played && !green && putts == 2);
        put(18, h, played && !green && putts > 2);
        put(19, h, played && to_par == 0 && putts != 2);
        put(20, h, shots > 0 && putts == 0);
        for (int kind = 3; kind <= 5; ++kind) {
            put(18 + kind, h, par == kind && gross == kind);
            if (par == kind && played)
                put(21 + kind, h, gross);
        }
        put(27, h, gross == 1);
        put(28, h, played && to_par == -3);
        put(29, h, played && to_par == -2);
        put(30, h, played && to_par == -1);
        put(31, h, played && to_par == 1);
        put(32, h, played && to_par == 2);
        put(33, h, played && to_par > 2);
    }

    void put(int line, int h, int value)
    {
        sums& cell = table_[{line, h}];
        cell.value += value;
        ++cell.holes;
    }

    sums at(int line, int h) const
    {
        const auto found = table_.find({line, h});
        return found == table_.end() ? sums{} : found->second;
    }

    double cell(int line, int h) const
    {
        const sums found = at(line, h);
        if (line == 9)
            return rounds_ > 0 ? found.value / rounds_ : 0;
        if (line >= 24 && line <= 26)
            return found.holes > 0 ? std::nearbyint(found.value / found.holes) : 0;
        return found.value;
    }

    double mean(int line, int first, int last) const
    {
        sums all;
        for (int h = first; h <= last; ++h) {
            all.value += at(line, h).value;
            all.holes += at(line, h).holes;
        }
        return all.holes > 0 ? all.value / all.holes : 0;
    }

    const reader& store_;
    int rounds_ = 0;
    std::map<std::pair<int, int>, sums> table_;
};

QString condition_of(const choice& chosen, const std::vector<diary_round>& rounds)
{
    QString condition =
        u"g.date between '%1' and '%2'"_s.arg(rounds.at(static_cast<std::size_t>(chosen.from)).key,
                                              rounds.at(static_cast<std::size_t>(chosen.to)).key);
    if (chosen.course > 0)
        condition += u" and g.CODEF = '%1'"_s.arg(
            courses_of_generated_diary().at(static_cast<std::size_t>(chosen.course - 1)).code);
    if (chosen.partner > 0)
        condition += u" and s.PARTNERS like '%%1%'"_s.arg(chosen.partner == 1 ? 12 : 7);
    if (chosen.weather > 0)
        condition += u" and s.conditionM = %1"_s.arg(chosen.weather - 1);
    return condition;
}

}  // namespace

class test_statistics_crosscheck : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_cell_agrees_with_a_second_computation_data()
    {
        QTest::addColumn<QList<int>>("picked");
        const int last = rounds_in_diary - 1;
        // First round, last round, course, partner, weather.
        QTest::newRow("everything") << QList<int>{0, last, 0, 0, 0};
        QTest::newRow("a few rounds") << QList<int>{17, 24, 0, 0, 0};
        QTest::newRow("one round") << QList<int>{30, 30, 0, 0, 0};
        QTest::newRow("one course") << QList<int>{0, last, 2, 0, 0};
        QTest::newRow("partner 12, and 112") << QList<int>{0, last, 0, 1, 0};
        QTest::newRow("partner 7 in the rain") << QList<int>{0, last, 0, 2, 3};
        QTest::newRow("all filters") << QList<int>{1, 58, 3, 2, 1};
    }
    void every_cell_agrees_with_a_second_computation()
    {
        QFETCH(QList<int>, picked);
        const choice chosen{picked[0], picked[1], picked[2], picked[3], picked[4]};
        const stored_diary store;
        set_report_store(store.location());
        const diary book(store.location());
        for (const diary_course& course : courses_of_generated_diary())
            store.book.add(course);
        store.book.add_partner(u"Anne"_s, u"Douze"_s, 12);
        store.book.add_partner(u"Zoé"_s, u"Sept"_s, 7);
        const auto rounds = generated_diary();
        store.book.add(rounds);
        in_selection_window([&](hand& user) {
            select_range(user, chosen.from, chosen.to);
            user.choose(u"cmb_courses"_s, chosen.course);
            user.choose(u"pList"_s, chosen.partner);
            user.choose(u"conditions"_s, chosen.weather);
            run_without_detail(user);
        });
        const QString condition = condition_of(chosen, rounds);
        QCOMPARE(stats_head(store.store, u"handicap_text"_s).toString(),
                 second_handicap(store.store, condition));
        const second_computation second(store.store, condition);
        QVERIFY(second.rounds() > 0);
        QCOMPARE(stats_head(store.store, u"round_count"_s).toInt(), second.rounds());
        for (int line = 0; line < rows_of_stats; ++line) {
            const auto expected = second.row(line);
            const auto seen = stats_row(store.store, line);
            for (std::size_t i = 0; i < expected.size(); ++i) {
                const QString where = u"row %1, column %2: %3, expected %4"_s.arg(line)
                                          .arg(i + 1)
                                          .arg(seen.at(i))
                                          .arg(expected.at(i));
                QVERIFY2(std::abs(seen.at(i) - expected.at(i)) < 1e-9, qPrintable(where));
            }
        }
    }
};

QTEST_MAIN(test_statistics_crosscheck)
#include "test_statistics_crosscheck.moc"
