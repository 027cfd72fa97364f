#include <QLineEdit>
#include <QTest>

#include "controls/data_grid.h"
#include "round/f_new_round.h"
#include "store/DataEnvironment1.h"
#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"
#include "tests/support/refused_change.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString next = u"CommandSuiv"_s;
const QString away = u"CommandSup"_s;

/// A store with two courses, club names and a round whose shots are opened.
struct round_with_shots {
    explicit round_with_shots(bool french = true) : store(french)
    {
        store.add_two_courses();
        name_the_clubs(store);
        store.add_round(key_of_keyed_round());
    }

    /// Opens the round on its detailed page, runs the script and unloads the window.
    void play(const std::function<void(hand&)>& script) const
    {
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            open_detailed_page(user);
            script(user);
            with_round(user, [](f_new_round& window) { window.unload(); });
        });
    }

    void add(int shot, int club, int after, const QString& unit, int kind) const
    {
        add_complete_shot(store, 1, shot, club, after, unit, kind);
    }

    round_store store;
};

bool put_mode(hand& user)
{
    bool on = false;
    with_round(user, [&on](f_new_round& window) { on = window.PUT_MODE(); });
    return on;
}

const QString yards = u"Verges"_s;
const QString feet = u"Pieds"_s;

}  // namespace

class test_shot_entry : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_next_shot_is_added_after_the_last_data() { both_languages(); }
    void the_next_shot_is_added_after_the_last()
    {
        QFETCH(bool, french);
        const round_with_shots round(french);
        round.add(1, 1, 60, french ? yards : u"Yards"_s, 1);
        round.play([&](hand& user) {
            user.click(next);
            user.same(user.grid_row(details, 1),
                      french ? u"2 |  |  |  |  | Non | Non | Non | Non | Dans l'allé | "_s
                             : u"2 |  |  |  |  | No | No | No | No | Fairway | "_s,
                      u"new row"_s);
            user.same(user.cursor(details), u"1,2"_s, u"cursor"_s);
            user.same(user.focus(), details, u"focus"_s);
            user.same(boxes(user), u"1 0 0 1 0 0 0 0 0 0 0"_s, u"boxes"_s);
        });
        QCOMPARE(stored_shots(round.store, 1).split(u'\n').last(), u"2 60>- - -/0 -/0"_s);
        QCOMPARE(round.store.text(u"select normal || ' ' || verges || ' ' || date from Stat_rounds "
                                  u"where shot = 2"_s),
                 u"4 101 "_s + key_of_keyed_round());
    }

    void no_shot_is_added_after_an_incomplete_one_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QString>("values");
        for (const bool french : {true, false}) {
            const char* language = french ? "French" : "English";
            QTest::addRow("%s, blank", language) << french << "fairval = 1";
            QTest::addRow("%s, no club", language) << french << "after = 60, shot_type_value = 1";
            QTest::addRow("%s, no kind", language) << french << "after = 60, stickval = 1";
            QTest::addRow("%s, holed", language) << french << "after = 0, stickval = 14, shot_type_value = 3";
        }
    }
    void no_shot_is_added_after_an_incomplete_one()
    {
        QFETCH(bool, french);
        QFETCH(QString, values);
        const round_with_shots round(french);
        add_shot(round.store, 1, 1, values);
        round.play([&](hand& user) {
            user.click(next);
            user.answer(refusal_of_shot());
            user.same(user.grid_rows(details), 1, u"rows"_s);
            user.same(user.focus(), details, u"focus"_s);
        });
    }

    void the_shot_after_a_putt_is_a_putt_data() { both_languages(); }
    void the_shot_after_a_putt_is_a_putt()
    {
        QFETCH(bool, french);
        const round_with_shots round(french);
        round.add(1, 9, 10, french ? yards : u"Yards"_s, 2);
        round.add(2, 14, 6, french ? feet : u"Feets"_s, 3);
        round.play([&](hand& user) {
            user.click(next);
            user.same(user.cursor(details), u"2,3"_s, u"cursor"_s);
            user.check(put_mode(user), u"PUT_MODE"_s);
        });
        const QString unit = french ? feet : u"Feets"_s;
        const QStringList stored = stored_shots(round.store, 1).split(u'\n');
        QCOMPARE(stored[0].section(u' ', 1, 2), QString(u"101>30 " + unit));
        QCOMPARE(stored[2], QString(u"3 6>- " + unit + u" Pu/14 Putt/3"));
        QCOMPARE(round.store.text(u"select fairval || faireway || '|' from Stat_rounds where shot = 2"_s),
                 u"0 |"_s);
    }

    void on_the_green_putts_are_entered_by_distances_alone()
    {
        const round_with_shots round;
        round.add(1, 9, 30, yards, 2);
        round.play([&](hand& user) {
            user.click(next);
            user.type(u"p"_s);
            for (const QString& left : {u"9"_s, u"3"_s, u"1"_s}) {
                user.type(left);
                user.key(Qt::Key_Return);
            }
            user.same(user.grid_rows(details), 5, u"rows"_s);
            user.same(user.cursor(details), u"4,3"_s, u"cursor"_s);
        });
        const QStringList stored = stored_shots(round.store, 1).split(u'\n');
        QCOMPARE(stored[0].section(u' ', 1, 2), u"101>90 Pieds"_s);
        QCOMPARE(stored[4].section(u' ', 1, 1), u"1>-"_s);
    }

    void a_distance_of_0_after_the_last_putt_shows_a_message_and_adds_no_row_data() { both_languages(); }
    void a_distance_of_0_after_the_last_putt_shows_a_message_and_adds_no_row()
    {
        QFETCH(bool, french);
        const round_with_shots round(french);
        round.add(1, 14, 6, french ? feet : u"Feets"_s, 3);
        round.play([&](hand& user) {
            user.click_cell(details, 0, 3);
            user.type(u"0"_s);
            user.key(Qt::Key_Return);
            user.answer(refusal_of_shot());
            user.same(user.grid_rows(details), 1, u"rows"_s);
        });
    }

    void a_distance_of_an_earlier_putt_adds_no_row()
    {
        const round_with_shots round;
        round.add(1, 14, 6, feet, 3);
        round.add(2, 14, 2, feet, 3);
        round.play([&](hand& user) {
            user.click_cell(details, 0, 3);
            user.type(u"7"_s);
            user.key(Qt::Key_Return);
            user.same(user.grid_rows(details), 2, u"rows"_s);
            user.same(user.cell(details, 0, 3), u"7"_s, u"distance"_s);
        });
    }

    void a_row_with_the_putter_becomes_a_putt_when_its_distance_is_typed()
    {
        const round_with_shots round;
        add_shot(round.store, 1, 1, u"stickval = 14, stick = 'Pu', unit = 'Verges'"_s);
        round.play([&](hand& user) {
            user.click_cell(details, 0, 3);
            user.type(u"5"_s);
            user.key(Qt::Key_Return);
            user.same(user.cell(details, 0, 4) + user.cell(details, 0, 5), u"PiedsPutt"_s, u"row"_s);
            user.same(user.grid_rows(details), 2, u"rows"_s);
        });
    }

    void choosing_the_kind_putt_adds_the_next_putt_data() { both_languages(); }
    void choosing_the_kind_putt_adds_the_next_putt()
    {
        QFETCH(bool, french);
        const round_with_shots round(french);
        round.play([&](hand& user) {
            enter_shot(user, 0, 5, u"20"_s, 3);
            user.same(user.grid_rows(details), 2, u"rows"_s);
            user.same(user.cell(details, 0, 2) + user.cell(details, 0, 5), u"F5Putt"_s, u"first row"_s);
            user.same(user.cell(details, 1, 2) + user.cell(details, 1, 4) + user.cell(details, 1, 5),
                      french ? u"PuPiedsPutt"_s : u"PuFeetsPutt"_s, u"second row"_s);
            user.same(user.cursor(details), u"1,3"_s, u"cursor"_s);
        });
    }

    void choosing_the_kind_putt_without_a_distance_shows_a_message_and_fills_the_row_data()
    {
        both_languages();
    }
    void choosing_the_kind_putt_without_a_distance_shows_a_message_and_fills_the_row()
    {
        QFETCH(bool, french);
        const round_with_shots round(french);
        round.play([&](hand& user) {
            enter_shot(user, 0, 5, QString(), 3);
            user.answer(refusal_of_shot());
            user.same(user.grid_rows(details), 1, u"rows"_s);
            user.same(user.cell(details, 0, 2) + user.cell(details, 0, 4) + user.cell(details, 0, 5),
                      french ? u"PuPiedsPutt"_s : u"PuFeetsPutt"_s, u"row"_s);
            user.same(user.cursor(details), u"0,3"_s, u"cursor"_s);
        });
    }

    void a_shot_is_removed_and_the_others_are_renumbered_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("left");
        QTest::addColumn<bool>("putt_last");
        QTest::newRow("first") << 0 << "1 101>90 Pieds F9/9 Approche/2\n2 90>0 Pieds Pu/14 Putt/3" << true;
        QTest::newRow("middle") << 1 << "1 101>180 Pieds D/1 Long/1\n2 60>0 Pieds Pu/14 Putt/3" << true;
        QTest::newRow("last: feet are converted back to yards")
            << 2 << "1 101>60 Verges D/1 Long/1\n2 60>30 Verges F9/9 Approche/2" << false;
    }
    void a_shot_is_removed_and_the_others_are_renumbered()
    {
        QFETCH(int, row);
        QFETCH(QString, left);
        QFETCH(bool, putt_last);
        const round_with_shots round;
        round.add(1, 1, 60, yards, 1);
        round.add(2, 9, 90, feet, 2);
        round.add(3, 14, 0, feet, 3);
        round.play([&](hand& user) {
            user.click_cell(details, row, 1);
            user.click(away);
            user.same(user.grid_rows(details), 2, u"rows"_s);
            user.check(put_mode(user) == putt_last, u"PUT_MODE"_s);
            user.same(user.cursor(details).front(), u"1"_s, u"cursor"_s);
        });
        QCOMPARE(stored_shots(round.store, 1).remove(u" fairway=0"_s), left);
    }

    void after_the_only_shot_is_removed_the_next_shot_is_a_blank_one()
    {
        const round_with_shots round;
        round.add(1, 14, 5, feet, 3);
        round.play([&](hand& user) {
            user.click(away);
            user.same(user.grid_rows(details), 0, u"rows"_s);
            user.check(!put_mode(user), u"no putt"_s);
            user.click(away);
            user.answer({u"Choisissez le coup que vous voulez supprimer."_s, QMessageBox::Critical,
                         u"Verdane"_s, QMessageBox::Ok});
            user.same(round.store.number(u"select count(*) from Stat_rounds"_s), 0, u"stored"_s);
            user.click(next);
            user.same(user.grid_row(details, 0), u"1 |  |  |  |  | Non | Non | Non | Non | Dans l'allé | "_s,
                      u"blank"_s);
        });
    }

    void a_removal_without_shots_shows_the_English_message()
    {
        const round_with_shots round(false);
        round.play([&](hand& user) {
            user.click(away);
            user.click(away);
            user.answer({u"Please select the shot you wish to remove."_s, QMessageBox::Critical, u"Verdane"_s,
                         QMessageBox::Ok});
        });
    }

    void a_removal_after_an_incomplete_shot_names_that_shot()
    {
        const round_with_shots round;
        round.add(1, 1, 60, yards, 1);
        add_shot(round.store, 1, 2, u"after = 5"_s);
        round.add(3, 9, 3, yards, 2);
        round.play([&](hand& user) {
            user.click_cell(details, 2, 1);
            user.click(away);
            user.answer(refusal_of_shot(u" 2"_s));
            user.same(user.cursor(details), u"1,1"_s, u"cursor"_s);
        });
    }

    void the_button_for_the_end_of_the_round_sums_up_the_last_hole()
    {
        const round_with_shots round;
        add_complete_shot(round.store, 18, 1, 1, 30, yards, 1);
        add_complete_shot(round.store, 18, 2, 14, 4, feet, 3);
        add_complete_shot(round.store, 18, 3, 14, 0, feet, 3);
        round.play([&](hand& user) {
            user.check(!user.visible(u"b_carte"_s), u"the button is hidden on hole 1"_s);
            user.click_tab(u"TabStrip1"_s, 18);
            user.answer(refusal_of_shot(u" 1"_s));
            user.same(user.grid_rows(details), 3, u"rows"_s);
            user.click(u"b_carte"_s);
            user.same(boxes(user), u"1 0 2 1 0 0 0 0 0 0 0"_s, u"boxes"_s);
            user.click_cell(details, 2, 1);
            user.click(away);
            user.click(away);
            user.click(away);
            user.click(u"b_carte"_s);
            user.same(boxes(user), u"0 0 0 0 0 0 0 0 0 0 0"_s, u"boxes"_s);
            user.same(user.grid_rows(details), 1, u"a blank row"_s);
        });
    }

    void a_hole_entered_in_the_other_language_is_continued_in_this_one()
    {
        const round_with_shots round(false);
        round.add(1, 1, 60, yards, 1);
        round.add(2, 9, 30, yards, 2);
        round.play([&](hand& user) {
            user.click(next);
            user.type(u"p"_s);
            user.type(u"4"_s);
            user.key(Qt::Key_Return);
            user.same(user.cell(details, 0, 4), u"Yards"_s, u"unit of the drive"_s);
            user.same(user.cell(details, 1, 3) + user.cell(details, 1, 4), u"90Feets"_s, u"the approach"_s);
        });
    }

    void a_pending_change_that_cannot_be_stored_is_discarded_when_the_shots_are_opened()
    {
        const round_with_shots round;
        round.add(1, 1, 60, yards, 1);
        round.play([&](hand& user) {
            round.store.store.write(refuse(u"update"_s, u"Stat_rounds"_s));
            with_round(user, [](f_new_round& window) {
                data_environment().rsStat_rounds.Fields(u"after").set(61);
                QVERIFY(window.check_shots());
                QVERIFY(window.open_hole_shots());
            });
            user.same(user.cell(details, 0, 3), u"60"_s, u"distance"_s);
            round.store.store.write(refuse_no_more());
        });
    }
};

QTEST_MAIN(test_shot_entry)

#include "test_shot_entry.moc"
