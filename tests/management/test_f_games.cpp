#include <QTest>

#include <functional>

#include "base/language.h"
#include "controls/boxes.h"
#include "controls/Form.h"
#include "management/f_games.h"
#include "store/DataEnvironment1.h"
#include "tests/support/recording_frame.h"
#include "tests/support/store_folder.h"
#include "tests/support/stored_diary.h"
#include "tests/support/ways_to_close.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

QString list_window()
{
    return in_language(u"f_games", u"f_games_en");
}

diary_course pines()
{
    return flat_course(u"CLUB DES PINS-2"_s, 4, u"70"_s, u"113"_s);
}

diary_round round_with_last_hole(int day, const hole_entry& last)
{
    diary_course course = pines();
    course.name = u" Club des Pins "_s;
    diary_round round{key_of_day(day), course, same_holes(hole_in(4)), 0, {}};
    round.holes[17] = last;
    return round;
}

void open_list()
{
    f_games window;
    window.show_modal();
}

/// Opens the list, runs the script and closes the list by OK.
void in_list(const std::function<void(hand&)>& script)
{
    play(open_list, [&](hand& user) {
        user.wait_for_window(list_window());
        script(user);
        user.click(u"Command1_2"_s);
        user.wait_until_closed(list_window());
    });
}

}  // namespace

class test_f_games : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_round_is_marked_when_its_last_hole_has_no_strokes_data()
    {
        QTest::addColumn<QList<int>>("strokes");
        QTest::addColumn<bool>("stored");
        QTest::addColumn<bool>("marked");
        QTest::newRow("all three") << QList<int>{1, 1, 2} << true << false;
        QTest::newRow("a long shot alone") << QList<int>{1, 0, 0} << true << false;
        QTest::newRow("an approach alone") << QList<int>{0, 1, 0} << true << false;
        QTest::newRow("a putt alone") << QList<int>{0, 0, 1} << true << false;
        QTest::newRow("nothing") << QList<int>{0, 0, 0} << true << true;
        QTest::newRow("no values") << QList<int>{0, 0, 0} << false << true;
    }
    void a_round_is_marked_when_its_last_hole_has_no_strokes()
    {
        QFETCH(QList<int>, strokes);
        QFETCH(bool, stored);
        QFETCH(bool, marked);
        const stored_diary store;
        hole_entry last;
        last.long_shots = strokes[0];
        last.approach = strokes[1];
        last.putts = strokes[2];
        last.stored = stored;
        // A penalty does not complete a round.
        last.water = 1;
        store.book.add(round_with_last_hole(165, last));
        const QString line = u"2003-06-14 09:30:00 |  - Club des Pins"_s + (marked ? u"**"_s : QString());
        in_list([&](hand& user) {
            user.check(user.entries(u"List1"_s) == QStringList{line}, user.entries(u"List1"_s).join(u'\n'));
        });
    }

    void a_round_with_only_its_last_hole_filled_has_no_mark()
    {
        const stored_diary store;
        diary_round round = round_with_last_hole(1, hole_in(4));
        for (std::size_t i = 0; i < 17; ++i)
            round.holes.at(i).stored = false;
        store.book.add(round);
        in_list(
            [](hand& user) { user.check(!user.text(u"List1"_s).endsWith(u"**"), user.text(u"List1"_s)); });
    }

    void the_rounds_are_in_time_order_and_the_earliest_is_selected()
    {
        const stored_diary store;
        for (const int day : {40, 2, 365, 7})
            store.book.add(round_with_last_hole(day, hole_in(4)));
        in_list([](hand& user) {
            QStringList days;
            for (const QString& line : user.entries(u"List1"_s))
                days << line.left(10);
            user.same(days.join(u' '), u"2003-01-02 2003-01-07 2003-02-09 2003-12-31"_s, u"order"_s);
            user.same(user.selected(u"List1"_s), 0, u"selected"_s);
            user.same(user.focus(), u"List1"_s, u"focus"_s);
        });
    }

    void the_rounds_are_in_time_order_after_a_statistic_changed_the_source()
    {
        const stored_diary store;
        for (const int day : {40, 2})
            store.book.add(round_with_last_hole(day, hole_in(4)));
        data_environment().rsgames.set_Source(u"Select * from games"_s);
        in_list([](hand& user) {
            user.check(user.entries(u"List1"_s).at(0).startsWith(u"2003-01-02"), u"the earliest first"_s);
        });
    }

    void without_rounds_a_message_box_is_shown_and_no_window_opens_data() { both_languages(); }
    void without_rounds_a_message_box_is_shown_and_no_window_opens()
    {
        QFETCH(bool, french);
        const store_folder store(french);
        recording_frame frame;
        play(open_list, [&](hand& user) {
            user.answer({french ? u"Il n'y a pas de ronde enregistrée"_s : u"There is no round registered"_s,
                         QMessageBox::Information, default_title(), QMessageBox::Ok});
        });
        QCOMPARE(open_recordsets(), QStringList());
        QVERIFY(!frame.locked);
    }

    void closing_in_any_way_closes_the_recordsets_and_unlocks_the_menu_data()
    {
        every_way_to_close(
            ways_to_close(list_window, {{"OK", [](hand& user) { user.click(u"Command1_2"_s); }}}));
    }
    void closing_in_any_way_closes_the_recordsets_and_unlocks_the_menu()
    {
        QFETCH(leaving, leave);
        const stored_diary store;
        store.book.add(round_with_last_hole(1, hole_in(4)));
        recording_frame frame;
        // Twice: the list could not be opened again if a recordset were still open.
        for (int time = 0; time < 2; ++time) {
            play(open_list, [&](hand& user) {
                user.wait_for_window(list_window());
                user.check(frame.locked, u"the menu is locked"_s);
                user.check(data_environment().rsgames.is_open() && data_environment().rsfield_info.is_open(),
                           u"both recordsets are open"_s);
                user.look([&] { user.check(current_form == active_form(), u"current_form"_s); });
                leave(user);
                user.wait_until_closed(list_window());
            });
            QCOMPARE(open_recordsets(), QStringList());
            QVERIFY(!frame.locked);
        }
    }

    void closing_an_unloaded_list_does_nothing()
    {
        const stored_diary store;
        store.book.add(round_with_last_hole(1, hole_in(4)));
        f_games window;
        window.closeForm();
        data_environment().rsgames.Open();
        window.closeForm();
        window.save();
        QVERIFY(data_environment().rsgames.is_open());
    }
};

QTEST_MAIN(test_f_games)
#include "test_f_games.moc"
