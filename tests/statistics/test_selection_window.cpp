#include <QComboBox>
#include <QLabel>
#include <QTest>

#include "controls/boxes.h"
#include "controls/Form.h"
#include "statistics/f_date_range.h"
#include "store/DataEnvironment1.h"
#include "tests/statistics/selection_windows.h"
#include "tests/statistics/three_rounds.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/recording_frame.h"
#include "tests/support/store_folder.h"
#include "tests/support/stored_diary.h"
#include "tests/support/ways_to_close.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

class test_selection_window : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_lists_show_the_rounds_courses_and_partners_of_the_store_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("courses");
        QTest::addColumn<QStringList>("partners");
        QTest::addColumn<QStringList>("weather");
        QTest::newRow("French") << true << u"Statistiques des rondes"_s
                                << QStringList{u"Tous les terrains"_s, u"Pebble Beach        , OR"_s,
                                               u"North Berwick West Links, Jaune"_s}
                                << QStringList{u"Tous"_s, u"Anne, Douze"_s, u"Zoé, Sept"_s}
                                << QStringList{u"Toutes"_s, u"Ensoleillé"_s, u"Ciel variable"_s, u"Pluie"_s,
                                               u"Vent"_s};
        QTest::newRow("English") << false << u"Round Statistics"_s
                                 << QStringList{u"All courses"_s, u"Pebble Beach        , Gold"_s,
                                                u"North Berwick West Links, Yellow"_s}
                                 << QStringList{u"All"_s, u"Anne, Douze"_s, u"Zoé, Sept"_s}
                                 << QStringList{u"ALL"_s, u"Sunny"_s, u"Variable cloudiness"_s, u"Rainy"_s,
                                                u"Windy"_s};
    }
    void the_lists_show_the_rounds_courses_and_partners_of_the_store()
    {
        QFETCH(bool, french);
        QFETCH(QString, title);
        QFETCH(QStringList, courses);
        QFETCH(QStringList, partners);
        QFETCH(QStringList, weather);
        const stored_diary store(french);
        add_three_rounds(store.book);
        const QStringList rounds{u"2003-01-01 09:30:00 |  - Pebble Beach"_s,
                                 u"2003-01-02 09:30:00 |  - Pebble Beach**"_s,
                                 u"2003-01-03 09:30:00 |  - North Berwick West Links"_s};
        in_selection_window([&](hand& user) {
            user.same(user.title(selection_window()), title, u"title"_s);
            for (const QString& list : {u"List1"_s, u"List2"_s}) {
                user.check(user.entries(list) == rounds, list);
                user.same(user.selected(list), 0, list);
            }
            user.same(user.text(u"Label1_7"_s), u"3"_s, u"number of rounds"_s);
            user.check(user.entries(u"cmb_courses"_s) == courses, u"courses"_s);
            user.check(user.entries(u"pList"_s) == partners, u"partners"_s);
            user.check(user.entries(u"conditions"_s) == weather, u"weather"_s);
            for (const QString& filter : {u"cmb_courses"_s, u"pList"_s, u"conditions"_s})
                user.same(user.selected(filter), 0, filter);
            user.check(open_recordsets().isEmpty(), u"no recordset is open while the window waits"_s);
        });
    }

    void one_run_button_is_visible_and_the_title_names_its_statistic_data()
    {
        using enum statistics_mode;
        QTest::addColumn<statistics_mode>("mode");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("french_title");
        QTest::addColumn<QString>("english_title");
        QTest::newRow("club") << club << u"Command1"_s << u"Statistiques des bâtons"_s
                              << u"Club Statistics"_s;
        QTest::newRow("putt") << putt << u"OKButton"_s << u"Statistiques des coups roulés"_s
                              << u"Putt Statistics"_s;
        QTest::newRow("round") << statistics_mode::round << u"Command2"_s << u"Statistiques des rondes"_s
                               << u"Round Statistics"_s;
        QTest::newRow("cost") << cost << u"Command3"_s << u"Statistiques des coûts"_s << u"Cost Statistics"_s;
    }
    void one_run_button_is_visible_and_the_title_names_its_statistic()
    {
        QFETCH(statistics_mode, mode);
        QFETCH(QString, button);
        for (const bool french : {true, false}) {
            const stored_diary store(french);
            add_three_rounds(store.book);
            in_selection_window(
                [&](hand& user) {
                    for (const QString& each : {u"Command1"_s, u"Command2"_s, u"Command3"_s, u"OKButton"_s}) {
                        user.same(user.text(each), u"OK"_s, each);
                        user.check(user.visible(each) == (each == button), each);
                    }
                    user.same(clipped_controls(user).join(u' '), QString(), u"clipped"_s);
                },
                mode);
            const f_date_range window(mode);
            if (french)
                QTEST(window.windowTitle(), "french_title");
            else
                QTEST(window.windowTitle(), "english_title");
        }
    }

    void a_double_click_on_the_run_button_runs_once()
    {
        const stored_diary store;
        add_three_rounds(store.book);
        in_selection_window(
            [](hand& user) {
                user.double_click(u"OKButton"_s);
                answer_plain(user, u"Verdane n'a trouvé aucune ronde détaillée avec les conditions choisies",
                             u"Verdane could not find any detailed rounds with the chosen parameters.");
                user.wait_until_closed(u"message_box"_s);
            },
            statistics_mode::putt);
    }

    void opening_the_window_empties_the_cost_report_in_every_mode_data()
    {
        using enum statistics_mode;
        QTest::addColumn<statistics_mode>("mode");
        QTest::newRow("club") << club;
        QTest::newRow("putt") << putt;
        QTest::newRow("round") << statistics_mode::round;
        QTest::newRow("cost") << cost;
    }
    void opening_the_window_empties_the_cost_report_in_every_mode()
    {
        QFETCH(statistics_mode, mode);
        const stored_diary store;
        add_three_rounds(store.book);
        store.store.write(u"insert into r_cost (date, fg) values ('a', 1), ('b', 2), ('c', 3)"_s);
        in_selection_window([](hand&) {}, mode);
        QCOMPARE(store.store.number(u"select count(*) from r_cost"_s), 0);
    }

    void without_courses_and_partners_the_filters_have_one_entry()
    {
        const stored_diary store;
        add_three_rounds(store.book);
        store.store.write(
            {u"delete from vrd_fields"_s, u"delete from field_info"_s, u"delete from partners"_s});
        in_selection_window([](hand& user) {
            user.check(user.entries(u"cmb_courses"_s) == QStringList{u"Tous les terrains"_s}, u"courses"_s);
            user.check(user.entries(u"pList"_s) == QStringList{u"Tous"_s}, u"partners"_s);
            user.same(user.text(u"Label1_7"_s), u"3"_s, u"number of rounds"_s);
        });
    }

    void a_recordset_of_partners_that_was_left_open_is_read_again()
    {
        const stored_diary store;
        data_environment().rspartners.Open();
        add_three_rounds(store.book);
        in_selection_window([](hand& user) { user.same(user.entries(u"pList"_s).size(), 3, u"partners"_s); });
        QVERIFY(!data_environment().rspartners.is_open());
    }

    void every_filter_has_its_label_and_is_not_editable()
    {
        const stored_diary store;
        add_three_rounds(store.book);
        const f_date_range window;
        const QList<std::pair<QString, QString>> filters{
            {u"Label1_2"_s, u"cmb_courses"_s}, {u"Label1_3"_s, u"pList"_s}, {u"Label1_4"_s, u"conditions"_s}};
        for (const auto& [label, name] : filters) {
            auto& filter = find_control<QComboBox>(window, name);
            QCOMPARE(find_control<QLabel>(window, label).buddy(), &filter);
            QVERIFY(!filter.isEditable());
        }
    }

    void without_a_stored_round_a_message_is_shown_and_no_window_opens_data() { both_languages(); }
    void without_a_stored_round_a_message_is_shown_and_no_window_opens()
    {
        QFETCH(bool, french);
        const store_folder store(french);
        recording_frame frame;
        play(
            [] {
                f_date_range window;
                window.show_modal();
            },
            [&](hand& user) {
                user.answer(
                    {french ? u"Il n'y a pas de ronde enregistrée"_s : u"Verdane did not find any round"_s,
                     QMessageBox::Information, default_title(), QMessageBox::Ok});
            });
        QVERIFY(open_recordsets().isEmpty());
        QVERIFY(!frame.locked);
    }

    void closing_in_any_way_unlocks_the_menu_and_closes_the_recordsets_data()
    {
        every_way_to_close(ways_to_close(
            selection_window, {{"the cancel button", [](hand& user) { user.click(u"CancelButton"_s); }}}));
    }
    void closing_in_any_way_unlocks_the_menu_and_closes_the_recordsets()
    {
        QFETCH(leaving, leave);
        const stored_diary store;
        add_three_rounds(store.book);
        recording_frame frame;
        play(
            [] {
                f_date_range window;
                window.show_modal();
            },
            [&](hand& user) {
                user.wait_for_window(selection_window());
                user.check(frame.locked, u"the menu is locked"_s);
                user.look([&] { user.check(current_form == active_form(), u"current_form"_s); });
                leave(user);
                user.wait_until_closed(selection_window());
            });
        QVERIFY(!frame.locked);
        QVERIFY(open_recordsets().isEmpty());
    }
};

QTEST_MAIN(test_selection_window)
#include "test_selection_window.moc"
