#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QTest>

#include <functional>
#include <vector>

#include "boxes.h"
#include "DataEnvironment1.h"
#include "diary.h"
#include "f_date_range.h"
#include "f_date_range_func.h"
#include "main_frame.h"
#include "recording_frame.h"
#include "selection_windows.h"
#include "store_folder.h"
#include "window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

diary_course pebble()
{
    return course_of(u"Pebble Beach"_s, u"Gold"_s);
}

diary_course berwick()
{
    // Longer than the width that shorter names are padded to.
    return course_of(u"North Berwick West Links"_s, u"Yellow"_s);
}

/// Three rounds on two courses, the second one incomplete, and two partners.
void fill(const diary& book)
{
    book.add(pebble());
    book.add(berwick());
    book.add_partner(u"Zoé"_s, u"Sept"_s, 7);
    book.add_partner(u"Anne"_s, u"Douze"_s, 12);
    for (int day = 1; day <= 3; ++day) {
        const diary_course course = day == 3 ? berwick() : pebble();
        diary_round round{key_of_day(day), course, holes_over(course.pars, 0), 0, {}};
        round.holes[17].stored = day != 2;
        book.add(round);
    }
}

struct choices {
    int from = 0;
    int to = 0;
    int course = 0;
    int partner = 0;
    int weather = 0;
};

/// What the window hands to the statistics for these choices.
selection_arguments arguments_of(const choices& picked, statistics_mode mode = statistics_mode::round)
{
    f_date_range window(mode);
    window.List1->setCurrentRow(picked.from);
    window.List2->setCurrentRow(picked.to);
    window.cmb_courses->setCurrentIndex(picked.course);
    window.pList->setCurrentIndex(picked.partner);
    window.conditions->setCurrentIndex(picked.weather);
    return f_date_range_func::selection_of(window);
}

struct named_way {
    const char* words;
    std::function<void(hand&)> leave;
};

std::vector<named_way> ways_out()
{
    return {{"the cancel button", [](hand& user) { user.click(u"CancelButton"_s); }},
            {"the title bar", [](hand& user) { user.close_window(selection_window()); }},
            {"Escape", [](hand& user) { user.key(Qt::Key_Escape); }},
            {"the command Close of the main window",
             [](hand& user) { user.look([] { current_form->closeForm(); }); }}};
}

}  // namespace

class test_f_date_range : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_lists_hold_what_the_store_holds_data()
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
    void the_lists_hold_what_the_store_holds()
    {
        QFETCH(bool, french);
        QFETCH(QString, title);
        QFETCH(QStringList, courses);
        QFETCH(QStringList, partners);
        QFETCH(QStringList, weather);
        const store_folder store(french);
        fill(diary(store.path()));
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

    void captions_are_those_of_the_language_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QStringList>("captions");
        QTest::newRow("French") << true
                                << QStringList{u"Date / Heure / Terrain"_s,
                                               u"Date / Heure / Terrain"_s,
                                               u"De..."_s,
                                               u"À..."_s,
                                               u"Terrain :"_s,
                                               u"Partenaire :"_s,
                                               u"Conditions atmosphériques :"_s,
                                               u"** Attention : Ces rondes ne sont pas complétées"_s,
                                               u"Nombre de parties jouées:"_s,
                                               u"OK"_s,
                                               u"Annuler"_s};
        QTest::newRow("English") << false
                                 << QStringList{u"Date / Time / Course"_s,
                                                u"Date / Time / Course"_s,
                                                u"From..."_s,
                                                u"To..."_s,
                                                u"Golf Course :"_s,
                                                u"Partners :"_s,
                                                u"Weather Conditions :"_s,
                                                u"**Attention : these rounds have not been completed."_s,
                                                u"Number of rounds :"_s,
                                                u"OK"_s,
                                                u"Cancel"_s};
    }
    void captions_are_those_of_the_language()
    {
        QFETCH(bool, french);
        QFETCH(QStringList, captions);
        const store_folder store(french);
        fill(diary(store.path()));
        in_selection_window([&](hand& user) {
            QStringList seen;
            for (const char* name : {"Frame1", "Frame2", "Label1_0", "Label1_1", "Label1_2", "Label1_3",
                                     "Label1_4", "Label1_5", "Label1_6", "Command2", "CancelButton"})
                seen << user.text(QLatin1String(name));
            user.same(seen.join(u'|'), captions.join(u'|'), u"captions"_s);
            user.same(clipped_controls(user).join(u' '), QString(), u"clipped"_s);
        });
    }

    void the_twins_have_the_same_controls()
    {
        QStringList seen[2];
        for (const bool french : {false, true}) {
            const store_folder store(french);
            fill(diary(store.path()));
            in_selection_window([&](hand& user) { seen[french ? 1 : 0] = controls_of_window(user); });
        }
        QVERIFY(seen[0].size() > 15);
        QCOMPARE(seen[0], seen[1]);
    }

    void one_run_button_is_there_and_the_title_says_what_it_runs_data()
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
    void one_run_button_is_there_and_the_title_says_what_it_runs()
    {
        QFETCH(statistics_mode, mode);
        QFETCH(QString, button);
        for (const bool french : {true, false}) {
            const store_folder store(french);
            fill(diary(store.path()));
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

    void opening_the_window_empties_the_cost_report()
    {
        const store_folder store;
        const diary book(store.path());
        fill(book);
        book.store.write(u"insert into r_cost (date, fg) values ('a', 1), ('b', 2), ('c', 3)"_s);
        in_selection_window([](hand&) {});
        QCOMPARE(book.store.number(u"select count(*) from r_cost"_s), 0);
    }

    void a_store_without_rounds_is_told_and_no_window_comes_up_data() { both_languages(); }
    void a_store_without_rounds_is_told_and_no_window_comes_up()
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

    void every_way_out_unlocks_the_menu_and_leaves_nothing_open_data()
    {
        QTest::addColumn<int>("way");
        const auto ways = ways_out();
        for (std::size_t i = 0; i < ways.size(); ++i)
            QTest::newRow(ways[i].words) << static_cast<int>(i);
    }
    void every_way_out_unlocks_the_menu_and_leaves_nothing_open()
    {
        QFETCH(int, way);
        const store_folder store;
        fill(diary(store.path()));
        recording_frame frame;
        play(
            [] {
                f_date_range window;
                window.show_modal();
            },
            [&](hand& user) {
                user.wait_for_window(selection_window());
                user.check(frame.locked, u"the menu is locked"_s);
                user.look([&] { user.check(current_form == form_at_work(), u"current_form"_s); });
                ways_out()[static_cast<std::size_t>(way)].leave(user);
                user.wait_until_gone(selection_window());
            });
        QVERIFY(!frame.locked);
        QVERIFY(open_recordsets().isEmpty());
    }

    void the_number_of_rounds_between_follows_every_click_and_shows_nowhere()
    {
        const store_folder store;
        fill(diary(store.path()));
        f_date_range window;
        QCOMPARE(plain(window.rounds_between), 1);
        window.List2->setCurrentRow(2);
        QCOMPARE(plain(window.rounds_between), 3);
        window.List1->setCurrentRow(2);
        QCOMPARE(plain(window.rounds_between), 1);
        window.List2->setCurrentRow(0);
        QCOMPARE(plain(window.rounds_between), -1);
        QCOMPARE(window.Label1(f_date_range::count_label).text(), u"3"_s);
    }

    void a_click_beside_the_lines_keeps_the_selection()
    {
        const store_folder store;
        fill(diary(store.path()));
        in_selection_window([](hand& user) {
            user.click_row(u"List1"_s, 1);
            user.click(u"List1"_s);
            user.look([&] {
                const auto* list =
                    dynamic_cast<QListWidget*>(form_at_work()->findChild<QWidget*>(u"List1"_s));
                QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                                  QPoint(5, list->viewport()->height() - 5));
                user.check(list->selectedItems().size() == 1 && list->currentRow() == 1, u"selection"_s);
            });
        });
    }

    void what_was_picked_is_handed_over_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QList<int>>("picked");
        QTest::addColumn<QStringList>("expected");
        // Keys; clauses of partner, course, weather; their texts; weather, course and partner plain.
        QTest::newRow("nothing picked, French")
            << true << QList<int>{0, 0, 0, 0, 0} << QStringList{u"20030101093000"_s,
                                                                u"20030101093000"_s,
                                                                u" "_s,
                                                                u" "_s,
                                                                u" "_s,
                                                                u"TOUS LES PARTENAIRES"_s,
                                                                u"TOUS LES TERRAINS"_s,
                                                                u" TOUTES"_s,
                                                                QString(),
                                                                QString(),
                                                                QString()};
        QTest::newRow("nothing picked, English")
            << false << QList<int>{0, 2, 0, 0, 0} << QStringList{u"20030101093000"_s,
                                                                 u"20030103093000"_s,
                                                                 u" "_s,
                                                                 u" "_s,
                                                                 u" "_s,
                                                                 u"ALL PARTNERS"_s,
                                                                 u"ALL COURSES"_s,
                                                                 u" ALL"_s,
                                                                 QString(),
                                                                 QString(),
                                                                 QString()};
        QTest::newRow("everything picked, French")
            << true << QList<int>{2, 0, 2, 1, 1}
            << QStringList{u"20030103093000"_s,
                           u"20030101093000"_s,
                           u" AND INSTR(GAMES2.PARTNERS,'12')"_s,
                           u" AND GAMES2.FC = 'NORTH BERWICK WEST LINKS-5'"_s,
                           u" AND (games2.conditionM = 0)"_s,
                           u"Anne, Douze"_s,
                           u"North Berwick West Links, Jaune"_s,
                           u"Ensoleillé"_s,
                           u"0"_s,
                           u"NORTH BERWICK WEST LINKS-5"_s,
                           u"12"_s};
        QTest::newRow("everything picked, English") << false << QList<int>{1, 2, 1, 2, 4}
                                                    << QStringList{u"20030102093000"_s,
                                                                   u"20030103093000"_s,
                                                                   u" AND INSTR(GAMES2.PARTNERS,'7')"_s,
                                                                   u" AND GAMES2.FC = 'PEBBLE BEACH-3'"_s,
                                                                   u" AND (games2.conditionM = 3)"_s,
                                                                   u"Zoé, Sept"_s,
                                                                   u"Pebble Beach        , Gold"_s,
                                                                   u"Windy"_s,
                                                                   u"3"_s,
                                                                   u"PEBBLE BEACH-3"_s,
                                                                   u"7"_s};
    }
    void every_statistic_has_its_form_of_the_choices_data()
    {
        using enum statistics_mode;
        QTest::addColumn<statistics_mode>("mode");
        QTest::addColumn<bool>("french");
        QTest::addColumn<bool>("on");
        QTest::addColumn<QStringList>("expected");
        const QStringList appended{u" AND INSTR(GAMES2.PARTNERS,'12')"_s,
                                   u" AND GAMES2.FC = 'NORTH BERWICK WEST LINKS-5'"_s,
                                   u" AND (games2.conditionM = 0)"_s};
        const QStringList alone{u" INSTR(GAMES2.PARTNERS,'12')"_s,
                                u" GAMES2.FC = 'NORTH BERWICK WEST LINKS-5'"_s,
                                u" (games2.conditionM = 0)"_s};
        const QStringList blanks{u" "_s, u" "_s, u" "_s};
        const QStringList always{u" true"_s, u"true"_s, u" true "_s};
        const QString in_the_sun = u"Ensoleillé"_s;
        QTest::newRow("clubs, open, French") << club << true << false << blanks + QStringList{u"Toutes"_s};
        QTest::newRow("clubs, open, English") << club << false << false << blanks + QStringList{u"ALL"_s};
        QTest::newRow("clubs, chosen") << club << true << true << appended + QStringList{in_the_sun};
        QTest::newRow("putts, open, French") << putt << true << false << always + QStringList{u"Toutes"_s};
        QTest::newRow("putts, open, English") << putt << false << false << always + QStringList{u"ALL"_s};
        QTest::newRow("putts, chosen") << putt << true << true << alone + QStringList{in_the_sun};
        QTest::newRow("costs, open, French") << cost << true << false << blanks + QStringList{u" TOUTES"_s};
        QTest::newRow("costs, open, English") << cost << false << false << blanks + QStringList{u" ALL"_s};
        QTest::newRow("costs, chosen") << cost << true << true << appended + QStringList{in_the_sun};
    }
    void every_statistic_has_its_form_of_the_choices()
    {
        QFETCH(statistics_mode, mode);
        QFETCH(bool, french);
        QFETCH(bool, on);
        const store_folder store(french);
        fill(diary(store.path()));
        const choices picked = on ? choices{0, 1, 2, 1, 1} : choices{};
        const selection_arguments got = arguments_of(picked, mode);
        const QStringList seen{got.partner_clause, got.course_clause, got.weather_clause, got.weather_text};
        QTEST(seen, "expected");
    }

    void what_was_picked_is_handed_over()
    {
        QFETCH(bool, french);
        QFETCH(QList<int>, picked);
        QFETCH(QStringList, expected);
        const store_folder store(french);
        fill(diary(store.path()));
        const selection_arguments got = arguments_of({picked[0], picked[1], picked[2], picked[3], picked[4]});
        const QStringList seen{got.from_key,       got.to_key,       got.partner_clause, got.course_clause,
                               got.weather_clause, got.partner_text, got.course_text,    got.weather_text,
                               got.weather_value,  got.course_code,  got.partner_number};
        QCOMPARE(seen, expected);
        QVERIFY(open_recordsets().isEmpty());
    }
};

QTEST_MAIN(test_f_date_range)
#include "test_f_date_range.moc"
