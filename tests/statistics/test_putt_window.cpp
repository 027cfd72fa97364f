#include <QMessageBox>
#include <QProgressBar>
#include <QTest>

#include "store/DataEnvironment1.h"
#include "tests/statistics/putt_rounds.h"
#include "tests/statistics/report_rows.h"
#include "tests/statistics/selection_windows.h"
#include "tests/support/hand_widgets.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

f_date_range& window_under_the_box()
{
    return dynamic_cast<f_date_range&>(*open_form(u"f_date_range"));
}

/// Runs a routine with the window while a message box is open.
void look_under_the_box(hand& user, const std::function<void(f_date_range&)>& routine)
{
    user.wait_until(u"a box"_s, [] {
        const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        return box && box->isVisible();
    });
    user.look([&] { routine(window_under_the_box()); });
}

/// Without a window manager the window does not become active again when its report closes.
void close_putt_report(hand& user)
{
    close_report(user, statistics_mode::putt);
    user.look([] { active_form()->activateWindow(); });
}

void run_and_close(hand& user)
{
    run(user, statistics_mode::putt);
    close_putt_report(user);
}

/// Two courses and partners whose names contain quotes, accents and ampersands. Four rounds: on the second
/// course with partner 12, with partner 112, alone, and on the first course with 12.
void fill_with_difficult_names(const diary& book)
{
    const diary_course plain = flat_course(u"PINS-0"_s, 4, u"70"_s, u"113"_s);
    diary_course difficult = flat_course(u"L'ÎLE & \"CÔTE\"-2"_s, 4, u"70"_s, u"113"_s);
    difficult.name = u"L'Île & \"Côte\""_s;
    book.add(plain);
    book.add(difficult);
    book.add_partner(u"O'Neil"_s, u"Bérénice"_s, 12);
    book.add_partner(u"Zoë \"Zed\""_s, u"Çelik & fils"_s, 112);
    const QList<std::pair<diary_course, QString>> played{
        {difficult, u"7,12,"_s}, {difficult, u"112,"_s}, {difficult, QString()}, {plain, u"12,"_s}};
    for (int day = 1; day <= played.size(); ++day) {
        const auto& [course, partners] = played[day - 1];
        book.add(diary_round{key_of_day(day), course, holes_over(course.pars, 0), day % 4, partners});
        put_putts(book.store, key_of_day(day), 1, {10 * day});
    }
}

}  // namespace

/// The putt statistics as a golfer runs them.
class test_putt_window : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_bar_moves_through_its_values_and_the_report_opens_data() { both_languages(); }
    void the_bar_moves_through_its_values_and_the_report_opens()
    {
        QFETCH(bool, french);
        const stored_rounds rounds(2, french);
        rounds.putts(1, 1, {20, 3});
        const auto steps = bar_in_selection_window(
            [](hand& user) {
                select_range(user, 0, 1);
                run_and_close(user);
                user.check(!user.visible(u"Status"_s), u"the bar is hidden"_s);
            },
            statistics_mode::putt);
        QList<int> values;
        for (const bar_step& step : steps) {
            QVERIFY(step.seen);
            values << step.value;
        }
        QCOMPARE(values, (QList<int>{5, 10, 20, 10, 20, 30, 40, 60, 70, 80, 90, 100}));
        QCOMPARE(rounds.by_first(1)[25], french ? u"TOUS LES TERRAINS"_s : u"ALL COURSES"_s);
    }

    void without_putts_a_message_is_shown_and_no_report_opens_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::newRow("reversed range, French") << true << 2 << 0;
        QTest::newRow("reversed range, English") << false << 2 << 0;
        QTest::newRow("no putts in the range, French") << true << 0 << 2;
        QTest::newRow("no putts in the range, English") << false << 0 << 2;
    }
    void without_putts_a_message_is_shown_and_no_report_opens()
    {
        QFETCH(bool, french);
        QFETCH(int, from);
        QFETCH(int, to);
        const stored_rounds rounds(3, french);
        in_selection_window(
            [&](hand& user) {
                select_range(user, from, to);
                run(user, statistics_mode::putt);
                look_under_the_box(user, [&](f_date_range& window) {
                    user.check(!find_control<QProgressBar>(window, u"Status"_s).isVisible(),
                               u"the bar is hidden before the box opens"_s);
                    // The report is set up before the count, and not launched.
                    user.check(window.cr3().ReportFileName().endsWith(french ? u"statPuts.rpt"_s
                                                                             : u"statPuts_en.rpt"_s),
                               u"template"_s);
                    user.check(window.cr3().preview() == nullptr, u"no report"_s);
                });
                answer_no_putts(user);
                user.check(!user.visible(u"Status"_s), u"the bar is hidden"_s);
                user.check(!user.is_open(u"report_preview"_s), u"no report"_s);
                user.check(open_recordsets().isEmpty(), u"nothing is open"_s);
            },
            statistics_mode::putt);
    }

    void each_run_uses_the_selection_of_its_moment()
    {
        const stored_rounds rounds(3);
        rounds.putts(1, 1, {60, 20, 3});
        rounds.putts(2, 1, {4});
        in_selection_window(
            [&](hand& user) {
                run_and_close(user);
                user.same(rounds.by_first(3)[1], u"1"_s, u"three putts from afar"_s);
                select_range(user, 1, 2);
                // Even days only.
                user.choose(u"conditions"_s, 1);
                run_and_close(user);
                user.same(bands(rounds.by_first(3)).join(u' '), u"0 0 0 0 0 0 0"_s, u"of the first run"_s);
                user.same(bands(rounds.by_first(1)).join(u' '), u"0 0 0 0 0 0 1"_s, u"of the second run"_s);
                user.same(rounds.rounds_counted(), 1, u"rounds"_s);
                user.same(rounds.by_first(1)[23], u"Ensoleillé"_s, u"weather"_s);
                // A selection without rounds does not affect the next run.
                user.choose(u"conditions"_s, 4);
                run(user, statistics_mode::putt);
                answer_no_putts(user);
                user.choose(u"conditions"_s, 0);
                run_and_close(user);
                user.same(rounds.rounds_counted(), 2, u"rounds"_s);
                user.same(rounds.by_first(1)[23], u"Toutes"_s, u"weather"_s);
            },
            statistics_mode::putt);
    }

    void quotes_and_accents_in_names_reach_the_filters_and_the_report_data()
    {
        QTest::addColumn<int>("course");
        QTest::addColumn<int>("partner");
        QTest::addColumn<int>("weather");
        QTest::addColumn<int>("rounds");
        QTest::addColumn<QStringList>("heading");
        const QStringList open{u"Toutes"_s, u"TOUS LES PARTENAIRES"_s, u"TOUS LES TERRAINS"_s};
        const auto heading = [open](int place, const QString& text) {
            QStringList texts = open;
            texts[place] = text;
            return texts;
        };
        QTest::newRow("all rounds") << 0 << 0 << 0 << 4 << open;
        QTest::newRow("a course with quotes in its code")
            << 2 << 0 << 0 << 3 << heading(2, u"L'Île & \"Côte\"      , ROUGE"_s);
        QTest::newRow("partner 12, whose number is found in 112 too")
            << 0 << 1 << 0 << 3 << heading(1, u"O'Neil, Bérénice"_s);
        QTest::newRow("partner 112") << 0 << 2 << 0 << 1 << heading(1, u"Zoë \"Zed\", Çelik & fils"_s);
        QTest::newRow("the sun, which is stored as 0") << 0 << 0 << 1 << 1 << heading(0, u"Ensoleillé"_s);
        QTest::newRow("course, partner and weather together")
            << 2 << 1 << 3 << 1
            << QStringList{u"Pluie"_s, u"O'Neil, Bérénice"_s, u"L'Île & \"Côte\"      , ROUGE"_s};
    }
    void quotes_and_accents_in_names_reach_the_filters_and_the_report()
    {
        QFETCH(int, course);
        QFETCH(int, partner);
        QFETCH(int, weather);
        QFETCH(int, rounds);
        QFETCH(QStringList, heading);
        const stored_rounds stored(0);
        stored.book.store.write({u"delete from vrd_fields"_s, u"delete from field_info"_s});
        fill_with_difficult_names(stored.book);
        in_selection_window(
            [&](hand& user) {
                select_range(user, 0, 3);
                user.choose(u"cmb_courses"_s, course);
                user.choose(u"pList"_s, partner);
                user.choose(u"conditions"_s, weather);
                run_and_close(user);
            },
            statistics_mode::putt);
        QCOMPARE(stored.rounds_counted(), rounds);
        QCOMPARE(stored.by_first(1).mid(23, 3), heading);
    }

    void a_run_by_the_keyboard_alone_counts_the_selected_rounds()
    {
        const stored_rounds rounds(3);
        rounds.putts(2, 1, {9});
        in_selection_window(
            [&](hand& user) {
                user.same(user.focus(), u"List1"_s, u"focus after opening"_s);
                user.key(Qt::Key_Down);
                user.key(Qt::Key_Tab);
                user.same(user.focus(), u"List2"_s, u"second stop"_s);
                user.key(Qt::Key_End);
                for (const QString& next : {u"cmb_courses"_s, u"pList"_s, u"conditions"_s, u"OKButton"_s}) {
                    user.key(Qt::Key_Tab);
                    user.same(user.focus(), next, u"next stop"_s);
                }
                user.key(Qt::Key_Return);
                close_putt_report(user);
                user.key(Qt::Key_Tab);
                user.same(user.focus(), u"CancelButton"_s, u"last stop"_s);
            },
            statistics_mode::putt);
        QCOMPARE(rounds.rounds_counted(), 2);
    }
};

QTEST_MAIN(test_putt_window)
#include "test_putt_window.moc"
