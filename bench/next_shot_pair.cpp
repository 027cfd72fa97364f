#include <QTest>

#include <benchmark/benchmark.h>

#include "bench/diaries.h"
#include "bench/pairs.h"
#include "bench/plain_store.h"
#include "bench/round_in_window.h"
#include "bench/stopwatch.h"
#include "round/f_new_round.h"
#include "round/shot_grid.h"
#include "store/DataEnvironment1.h"

/// The key that adds the next row: Enter after the remaining distance of a putt, until the next putt is in
/// the grid with the cursor on it. The floor is the two plain commits of both rows.
namespace verdane::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int round_in_diary = 183;
constexpr int putts_entered = 3;

QString of_hole()
{
    return u" where date = " + quoted(testing::key_in_diary(round_in_diary)) + u" and hole = 1";
}

/// A drive, an approach and the first putt, whose remaining distance is not entered yet.
QStringList hole_before_its_putts()
{
    const QString shot = u"insert into Stat_rounds (date, hole, shot, before, after, unit, stick, stickval, "
                         u"shot_type, shot_type_value, faireway, fairval, normal, verges) "
                         u"values ('%1', 1, "_s.arg(testing::key_in_diary(round_in_diary));
    return {u"delete from Stat_rounds" + of_hole(),
            shot + u"1, 380, 140, 'Yards', 'D', 1, 'Long', 1, 'Fairway', 1, 4, 380)",
            shot + u"2, 140, 60, 'Feets', 'F7', 7, 'Approach', 2, 'Fairway', 1, 4, 380)",
            shot + u"3, 60, null, 'Feets', 'Pu', 14, 'Putt', 3, ' ', 0, 4, 380)"};
}

/// Types a digit into the distance of the last shot and returns the cell's editor.
QWidget* type_distance(f_new_round& window, char digit)
{
    auto& grid = dynamic_cast<shot_grid&>(*window.findChild<QWidget*>(u"details"_s));
    grid.bound_model().move_to(data_environment().rsStat_rounds.RecordCount() - 1);
    grid.ReBind();
    grid.set_Col(shot_grid::distance_column);
    Form::paint_now();
    QTest::keyClick(&grid, digit);
    return window.focusWidget();
}

/// Enters three putts, each by the key that is measured, and types the distance of the
/// next one.
QWidget* enter_until_last_key(f_new_round& window)
{
    Recordset& shots = data_environment().rsStat_rounds;
    shots.CancelUpdate();
    for (const QString& statement : hole_before_its_putts())
        data_environment().connection.Execute(statement);
    window.open_hole_shots();
    for (int putt = 1; putt <= putts_entered; ++putt)
        QTest::keyClick(type_distance(window, '9'), Qt::Key_Return);
    QWidget* box = type_distance(window, '4');
    Form::paint_now();
    return box;
}

enum class until { in_grid, painted };

void next_shots(benchmark::State& state, until end)
{
    const opened_store store(diaries_of_run().full());
    open_tables_of_list();
    on_detailed_page_of(testing::key_in_diary(round_in_diary), [&](f_new_round& window) {
        for (auto _ : state) {
            QWidget* box = enter_until_last_key(window);
            const int shots = data_environment().rsStat_rounds.RecordCount();
            const stopwatch watch;
            QTest::keyClick(box, Qt::Key_Return);
            if (end == until::painted)
                Form::paint_now();
            state.SetIterationTime(watch.seconds());
            if (data_environment().rsStat_rounds.RecordCount() != shots + 1)
                state.SkipWithError("no row was made");
        }
    });
}

void next_shot(benchmark::State& state)
{
    next_shots(state, until::in_grid);
}

void next_shot_painted(benchmark::State& state)
{
    next_shots(state, until::painted);
}

/// Commits the distance of the last row, and the new row.
void next_shot_floor(benchmark::State& state)
{
    const plain_store store(diaries_of_run().full());
    const QString key = testing::key_in_diary(round_in_diary);
    QSqlQuery last = store.run(u"select rowid from Stat_rounds where date = ? and hole = 2"_s, {key});
    last.next();
    const QVariant number = last.value(0);
    last.finish();
    int distance = 0;
    for (auto _ : state) {
        const stopwatch watch;
        store.run(u"update Stat_rounds set after = ? where rowid = ?"_s, {++distance % 9, number});
        store.run(u"insert into Stat_rounds (date, hole, shot, before, unit, stick, stickval, shot_type, "
                  u"shot_type_value, faireway, fairval, normal, verges) "
                  u"values (?, 1, 20, 4, 'Feets', 'Pu', 14, 'Putt', 3, ' ', 0, 4, 380)"_s,
                  {key});
        state.SetIterationTime(watch.seconds());
        store.run(u"delete from Stat_rounds where date = ? and hole = 1 and shot = 20"_s, {key});
    }
}

}  // namespace

void register_next_shot()
{
    register_timed("next_shot", next_shot);
    register_timed("next_shot_painted", next_shot_painted);
    register_timed("next_shot_floor", next_shot_floor);
}

}  // namespace verdane::bench
