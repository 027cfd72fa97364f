#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <benchmark/benchmark.h>

#include "DataEnvironment1.h"
#include "diaries.h"
#include "f_new_round.h"
#include "full_diary.h"
#include "Main_module.h"
#include "pairs.h"
#include "plain_store.h"
#include "Round_records.h"
#include "stopwatch.h"
#include "stored_round.h"

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

enum class until { shown_in_boxes, painted };

void leave_holes(benchmark::State& state, f_new_round& window, until end)
{
    int hole = 1;
    for (auto _ : state) {
        // Every save takes a place in the list of keys; a measurement has more saves than a day.
        Main_module::round_key_count = static_cast<std::int16_t>(diaries::rounds_with_room);
        change_figure(window.text_vrd(0));
        change_figure(window.text_p(3));
        Form::paint_now();
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
    const QString key = testing::key_in_diary(round_in_diary);
    data_environment().rsgames.Open();
    data_environment().rsfield_info.Open();
    open_rows_of_round(key);
    f_new_round window;
    load_stored_round(window, key);
    load_round_header(window);
    QTimer::singleShot(0, &window, [&] {
        leave_holes(state, window, end);
        window.unload();
    });
    window.show_modal();
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
