#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <benchmark/benchmark.h>

#include "diaries.h"
#include "f_new_round.h"
#include "full_diary.h"
#include "Main_module.h"
#include "pairs.h"
#include "plain_store.h"
#include "round_in_window.h"
#include "stopwatch.h"

/// Leaving a hole of which two figures were changed, one in each wide row, from the click on the next
/// tab until that hole is in the boxes; against the two bare commits. And the same until it is painted.
namespace verdane::bench {

namespace {

constexpr int holes = 18;
constexpr int round_in_diary = 150;

/// Another digit than the one in the box, typed as a user types it.
void change_figure(QLineEdit& box)
{
    const char digit = box.text() == u"2" ? '3' : '2';
    box.setFocus();
    box.selectAll();
    QTest::keyClick(&box, digit);
}

void change_figures(f_new_round& window)
{
    // Every save takes a place in the list of keys; a measurement has more saves than a day.
    Main_module::round_key_count = static_cast<std::int16_t>(diaries::rounds_with_room);
    change_figure(window.text_vrd(0));
    change_figure(window.text_p(3));
    Form::paint_now();
}

enum class until { shown_in_boxes, painted };

void leave_holes(benchmark::State& state, f_new_round& window, until end)
{
    // The first commit of a connection makes its log; that is once a day.
    int hole = 2;
    change_figures(window);
    window.TabStrip1->click(hole);
    for (auto _ : state) {
        change_figures(window);
        hole = hole % holes + 1;
        const stopwatch watch;
        window.TabStrip1->click(hole);
        if (end == until::painted)
            Form::paint_now();
        state.SetIterationTime(watch.seconds());
    }
}

void leave_holes_of_stored_round(benchmark::State& state, until end)
{
    const opened_store store(diaries_of_run().with_room());
    open_tables_of_list();
    in_round_window(testing::key_in_diary(round_in_diary),
                    [&](f_new_round& window) { leave_holes(state, window, end); });
}

void leave_hole(benchmark::State& state)
{
    leave_holes_of_stored_round(state, until::shown_in_boxes);
}

void leave_hole_painted(benchmark::State& state)
{
    leave_holes_of_stored_round(state, until::painted);
}

void leave_hole_floor(benchmark::State& state)
{
    const plain_store store(diaries_of_run().with_room());
    QSqlQuery row = store.run(QStringLiteral("select rowid from games where date = ?"),
                              {testing::key_in_diary(round_in_diary)});
    row.next();
    const QVariant number = row.value(0);
    row.finish();
    int step = 0;
    for (auto _ : state) {
        const int hole = step % holes + 1;
        const int figure = 2 + step / holes % 2;
        ++step;
        const stopwatch watch;
        store.run(QStringLiteral("update games set long_%1 = ? where rowid = ?").arg(hole), {figure, number});
        store.run(QStringLiteral("update games2 set fairway_%1 = ? where rowid = ?").arg(hole),
                  {figure, number});
        state.SetIterationTime(watch.seconds());
    }
}

}  // namespace

void register_hole()
{
    register_timed("leave_hole", leave_hole);
    register_timed("leave_hole_painted", leave_hole_painted);
    register_timed("leave_hole_floor", leave_hole_floor);
}

}  // namespace verdane::bench
