#include <QTest>

#include <set>

#include "tests/support/full_diary.h"
#include "tests/support/reader.h"
#include "tests/support/test_store.h"

using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int holes = 18;

/// "PREFIX_1 + PREFIX_2 + ... + PREFIX_18".
QString over_the_holes(const QString& prefix)
{
    QStringList columns;
    for (int h = 1; h <= holes; ++h)
        columns << u"%1_%2"_s.arg(prefix).arg(h);
    return columns.join(u" + "_s);
}

/// The columns of a table that belong to the holes, as rows of `date`, `hole` and `figure`. `column` is the
/// name of such a column with %1 for the hole.
QString figures_by_hole(const QString& table, const QString& column)
{
    QStringList parts;
    for (int h = 1; h <= holes; ++h)
        parts << u"select date, %1 as hole, "_s.arg(h) + column.arg(h) + u" as figure from " + table;
    return parts.join(u" union all "_s);
}

}  // namespace

class test_full_diary : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { create_diary(diary_.location(), rounds_of_full_diary, true); }

    void a_full_diary_has_366_rounds_in_each_table()
    {
        for (const QString& table : {u"games"_s, u"games2"_s, u"cost"_s}) {
            const QString name = table;
            QCOMPARE(store().number(u"select count(*) from " + name), rounds_of_full_diary);
            QCOMPARE(store().number(u"select count(distinct date) from " + name), rounds_of_full_diary);
        }
        QCOMPARE(store().number(u"select count(distinct date) from Stat_rounds"_s), rounds_of_full_diary);
    }

    void every_key_has_14_digits()
    {
        QCOMPARE(
            store().number(u"select count(*) from games where length(date) <> 14 or date glob '*[^0-9]*'"_s),
            0);
        QCOMPARE(store().text(u"select min(date) from games"_s), key_in_diary(0));
    }

    void a_full_diary_has_about_31000_shots()
    {
        const int shots = store().number(u"select count(*) from Stat_rounds"_s);
        QVERIFY2(shots >= 30000 && shots <= 36000, qPrintable(QString::number(shots)));
    }

    void the_sum_of_all_strokes_fits_the_statistics_of_rounds()
    {
        QStringList figures;
        for (const QString& figure : {u"long"_s, u"approach"_s, u"putt"_s, u"pen_rule"_s, u"pen_water"_s,
                                      u"pen_bounds"_s, u"pen_lost"_s})
            figures << over_the_holes(figure);
        const int strokes = store().number(u"select sum(" + figures.join(u" + "_s) + u") from games");
        QVERIFY2(strokes <= 32767, qPrintable(QString::number(strokes)));
    }

    void the_figures_of_a_hole_are_the_sums_of_its_shots_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("figure");
        QTest::addColumn<QString>("shots");
        const auto row = [](const char* table, const char* figure, const char* shots) {
            QTest::newRow(figure) << table << figure << shots;
        };
        row("games", "long", "shot_type_value = 1");
        row("games", "approach", "shot_type_value = 2");
        row("games", "putt", "shot_type_value = 3");
        row("games", "pen_water", "penval = 1");
        row("games", "pen_lost", "penval = 2");
        row("games", "pen_rule", "penval = 3");
        row("games", "pen_bounds", "penval = 4");
        row("games", "missed", "missed");
        row("games2", "sand", "ts");
        row("games2", "recovery", "dz");
        row("games2", "fairway", "fairval = 1 and shot_type_value <> 3");
    }
    void the_figures_of_a_hole_are_the_sums_of_its_shots()
    {
        QFETCH(QString, table);
        QFETCH(QString, figure);
        QFETCH(QString, shots);
        const QString counted =
            u"select date, hole, sum(%1) as figure from Stat_rounds group by date, hole"_s.arg(shots);
        const auto sums = store().rows(
            u"select sum(r.figure is null or r.figure <> coalesce(s.figure, 0)), sum(r.figure) from (%1) r "
            u"left join (%2) s on s.date = r.date and s.hole = r.hole"_s.arg(
                figures_by_hole(table, figure + u"_%1"), counted));
        QCOMPARE(sums[0][0].toInt(), 0);
        const int all = sums[0][1].toInt();
        QVERIFY2(all > 0, "the diary has values of this figure");
    }

    void a_shot_starts_where_the_previous_one_ended()
    {
        const QString gaps =
            u"select count(*) from Stat_rounds s join Stat_rounds p on p.date = s.date and p.hole = s.hole "
            u"and p.shot = s.shot - 1 where s.before <> p.after"_s;
        QCOMPARE(store().number(gaps), 0);
        QCOMPARE(store().number(u"select count(*) from Stat_rounds where shot = 1 and before <> verges"_s),
                 0);
    }

    void the_last_shot_of_a_hole_and_no_other_is_holed()
    {
        const QString holed = u"select count(*) from Stat_rounds where after = 0"_s;
        QCOMPARE(store().number(holed), rounds_of_full_diary * holes);
        const QString later =
            u"select count(*) from Stat_rounds p join Stat_rounds s on p.date = s.date and p.hole = s.hole "
            u"and s.shot > p.shot where p.after = 0"_s;
        QCOMPARE(store().number(later), 0);
    }

    void the_lengths_of_the_putts_are_the_distances_before_them()
    {
        const QString first = u"select date, hole, before, min(shot) from Stat_rounds "
                              "where shot_type_value = 3 group by date, hole"_s;
        QCOMPARE(store().number(
                     u"select count(*) from (%1) r left join (%2) s on s.date = r.date and s.hole = r.hole "
                     u"where r.figure is null or r.figure <> coalesce(s.before, 0)"_s.arg(
                         figures_by_hole(u"games2"_s, u"putt_len_%1_1"_s), first)),
                 0);
    }

    void rounds_are_in_both_languages_with_all_weathers_and_many_partners()
    {
        std::set<QString> units;
        for (const auto& row : store().rows(u"select distinct unit from Stat_rounds"_s))
            units.insert(row.front().toString());
        QCOMPARE(units, (std::set<QString>{u"Feets"_s, u"Pieds"_s, u"Verges"_s, u"Yards"_s}));
        QCOMPARE(store().number(u"select count(distinct conditionM) from games2"_s), 4);
        QVERIFY(store().number(u"select count(distinct PARTNERS) from games2"_s) > 10);
    }

    void a_diary_without_shots_has_the_same_figures()
    {
        const test_store place;
        create_diary(place.location(), 20, false);
        const reader quick(place.location());
        QCOMPARE(quick.number(u"select count(*) from Stat_rounds"_s), 0);
        const QString first = u"select * from games order by date limit 20"_s;
        QCOMPARE(quick.rows(first), store().rows(first));
    }

private:
    reader store() const { return reader(diary_.location()); }

    test_store diary_;
};

QTEST_GUILESS_MAIN(test_full_diary)
#include "test_full_diary.moc"
