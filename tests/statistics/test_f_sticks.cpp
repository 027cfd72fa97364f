#include <QComboBox>
#include <QTest>

#include <functional>
#include <vector>

#include "boxes.h"
#include "DataEnvironment1.h"
#include "diary.h"
#include "f_sticks.h"
#include "f_sticks_func.h"
#include "hand_widgets.h"
#include "main_frame.h"
#include "Main_module.h"
#include "recording_frame.h"
#include "report_rows.h"
#include "store_folder.h"
#include "window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

QString bag_window()
{
    return in_language(u"f_sticks", u"f_sticks_en");
}

/// A bag with names and averages, and three rounds of which the first two have shots.
class filled_bag {
public:
    explicit filled_bag(bool french = true) : folder(french), book(folder.path())
    {
        book.store.write({u"update sticks set avg_1 = 200.5, avg_14 = 3"_s,
                          u"update sticknames set club_1 = 'D1', club_14 = 'PU'"_s});
        for (int i = 0; i < 14; ++i)
            Main_module::club_names[i] = book.store.text(u"select club_%1 from sticknames"_s.arg(i + 1));
        const diary_course course = course_of(u"Pebble Beach"_s, u"Gold"_s);
        book.add(course);
        book.add_partner(u"Anne"_s, u"Douze"_s, 12);
        for (int day = 1; day <= 3; ++day)
            book.add(diary_round{key_of_day(day), course, holes_over(course.pars, 0), day - 1,
                                 day == 2 ? u"12-"_s : QString()});
        shot(1, 1, u"400, 150"_s);
        shot(2, 1, u"400, 200"_s);
        shot(2, 5, u"150, 10"_s);
    }

    void shot(int day, int club, const QString& lengths) const
    {
        put_shot(book.store, key_of_day(day), club, u"before, after, unit, shot_type_value"_s,
                 lengths + u", 'Yards', 1"_s);
    }

    double average(int club) const
    {
        return book.store.value(u"select avg_%1 from sticks"_s.arg(club)).toDouble();
    }
    int shots(int club) const { return book.store.number(u"select shots_%1 from sticks"_s.arg(club)); }
    QString name(int club) const { return book.store.text(u"select club_%1 from sticknames"_s.arg(club)); }

    store_folder folder;
    diary book;
};

/// Opens the golf bag and lets the script close it.
void in_bag(const std::function<void(hand&)>& script)
{
    play(
        [] {
            f_sticks window;
            window.show_modal();
        },
        [&](hand& user) {
            user.wait_for_window(bag_window());
            script(user);
            user.wait_until_gone(bag_window());
        });
    QVERIFY(open_recordsets().isEmpty());
}

void answer_keep(hand& user, QMessageBox::StandardButton answer)
{
    user.answer(
        {in_language(u"Désirez vous conservés ces moyennes ?", u"Do you want to keep these averages ?"),
         QMessageBox::NoIcon, u"VERDANE"_s, QMessageBox::Yes | QMessageBox::No},
        answer);
}

void answer_no_shots(hand& user)
{
    user.answer({in_language(u"Verdane n'a trouvé aucune ronde avec les conditions choisies. Verdane "
                             u"affichera seulement les statistiques sommaires.",
                             u"Verdane could not find any rounds with the chosen parameters. Verdane will "
                             u"display summary statistics only."),
                 QMessageBox::NoIcon, default_title(), QMessageBox::Ok});
}

/// Works the averages out over lines of the two lists.
void compute(hand& user, int from, int to)
{
    user.click(u"Command1"_s);
    user.click_row(u"List1"_s, from);
    user.click_row(u"List2"_s, to);
    user.click(u"Actualiser"_s);
}

struct named_way {
    const char* words;
    std::function<void(hand&)> leave;
};

std::vector<named_way> ways_out()
{
    return {{"the cancel button", [](hand& user) { user.click(u"Fer"_s); }},
            {"the title bar", [](hand& user) { user.close_window(bag_window()); }},
            {"Escape", [](hand& user) { user.key(Qt::Key_Escape); }},
            {"the command Close of the main window",
             [](hand& user) { user.look([] { current_form->closeForm(); }); }}};
}

}  // namespace

class test_f_sticks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_bag_shows_names_and_averages_data() { both_languages(); }
    void the_bag_shows_names_and_averages()
    {
        QFETCH(bool, french);
        const filled_bag bag(french);
        in_bag([&](hand& user) {
            user.same(user.title(bag_window()), french ? u"Mes bâtons"_s : u"My Golf Clubs"_s, u"title"_s);
            user.same(user.text(u"sn_0"_s), u"D1"_s, u"first name"_s);
            user.same(user.text(u"sn_13"_s), u"PU"_s, u"last name"_s);
            user.same(user.text(u"Text1_0"_s), u"200.5"_s, u"first average"_s);
            user.same(user.text(u"Text1_1"_s), u"0"_s, u"an average of 0"_s);
            user.same(user.text(u"Text1_13"_s), u"3"_s, u"last average"_s);
            user.check(!user.visible(u"Frame1"_s), u"the filters are hidden"_s);
            user.click(u"Fer"_s);
        });
    }

    void captions_are_those_of_the_language_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QStringList>("captions");
        QTest::newRow("French")
            << true
            << QStringList{u"Les moyennes des bâtons affichés ci dessous seront utilisées pour les "
                           u"suggestions donner par "
                           u"votre ordinateur de poche et votre carte de pointage Verdane"_s,
                           u"Sac de golf"_s,
                           u"Attention, le changement du nom de votre bâton n'est pas équivalent à l'ajout "
                           u"d'un nouveau "
                           u"bâton. Les statistiques de l'ancien bâton suivront la nouvelle appellation."_s,
                           u"Actualiser les moyennes >>"_s,
                           u"OK"_s,
                           u"Annuler"_s,
                           u"Date / Heure / Terrain"_s,
                           u"Date / Heure / Terrain"_s,
                           u"De..."_s,
                           u"À..."_s,
                           u"Conditions atmosphériques :"_s,
                           u"Partenaire :"_s,
                           u"Terrain :"_s,
                           u"Actualiser"_s};
        QTest::newRow("English")
            << false
            << QStringList{
                   u"The club averages shown below will be used by your Palm when making suggestions on your "
                   u"handheld computer and on your Verdane score card"_s,
                   u"Golf Bag"_s,
                   u"Please note:Former club statistics will remain associated with corresponding new club "
                   u"names."_s,
                   u"Update Averages"_s,
                   u"OK"_s,
                   u"Cancel"_s,
                   u"Date / Time / Course"_s,
                   u"Date / Time / Course"_s,
                   u"From..."_s,
                   u"To..."_s,
                   u"Weather Conditions :"_s,
                   u"Partners :"_s,
                   u"Golf Course :"_s,
                   u"Update"_s};
    }
    void captions_are_those_of_the_language()
    {
        QFETCH(bool, french);
        QFETCH(QStringList, captions);
        const filled_bag bag(french);
        in_bag([&](hand& user) {
            user.same(clipped_controls(user).join(u' '), QString(), u"clipped at first"_s);
            user.click(u"Command1"_s);
            QStringList seen;
            for (const char* name :
                 {"head", "Frame2", "Label2", "Command1", "enr", "Fer", "Fr1", "Fr2", "lbl_from", "lbl_to",
                  "lbl_conditions", "lbl_pList", "lbl_cmb_courses", "Actualiser"})
                seen << user.text(QLatin1String(name));
            user.same(seen.join(u'|'), captions.join(u'|'), u"captions"_s);
            user.same(clipped_controls(user).join(u' '), QString(), u"clipped with the filters"_s);
            user.click(u"Fer"_s);
        });
    }

    void the_twins_have_the_same_controls()
    {
        QStringList seen[2];
        for (const bool french : {false, true}) {
            const filled_bag bag(french);
            in_bag([&](hand& user) {
                seen[french ? 1 : 0] = controls_of_window(user);
                user.click(u"Fer"_s);
            });
        }
        QVERIFY(seen[0].size() > 40);
        QCOMPARE(seen[0], seen[1]);
    }

    void the_filters_hold_what_the_store_holds_data() { both_languages(); }
    void the_filters_hold_what_the_store_holds()
    {
        QFETCH(bool, french);
        const filled_bag bag(french);
        bag.book.store.write(u"update games set long_18 = 0, approach_18 = 0, putt_18 = 0 where date = '"_s +
                             key_of_day(2) + u'\'');
        const QStringList rounds{u"2003-01-01 09:30:00 |  - PEBBLE BEACH"_s,
                                 u"2003-01-02 09:30:00 |  - PEBBLE BEACH**"_s,
                                 u"2003-01-03 09:30:00 |  - PEBBLE BEACH"_s};
        in_bag([&](hand& user) {
            user.click(u"Command1"_s);
            user.check(user.visible(u"Frame1"_s), u"the filters show"_s);
            for (const QString& list : {u"List1"_s, u"List2"_s}) {
                user.same(user.entries(list).join(u'/'), rounds.join(u'/'), list);
                user.same(user.selected(list), 0, list);
            }
            user.same(user.entries(u"conditions"_s).join(u'/'),
                      french ? u"Toutes/Ensoleillé/Ciel variable/Pluie/Vent"_s
                             : u"ALL/Sunny/Variable cloudiness/Rainy/Windy"_s,
                      u"weather"_s);
            user.same(user.entries(u"pList"_s).join(u'/'), (french ? u"Tous"_s : u"All"_s) + u"/Anne, Douze",
                      u"partners"_s);
            user.same(user.entries(u"cmb_courses"_s).join(u'/'),
                      french ? u"Tous les terrains/Pebble Beach        , OR"_s
                             : u"All courses/Pebble Beach        , GOLD"_s,
                      u"courses"_s);
            for (const QString& filter : {u"conditions"_s, u"pList"_s, u"cmb_courses"_s})
                user.same(user.selected(filter), 0, filter);
            for (int box = 14; box <= 17; ++box)
                user.check(!user.enabled(u"Text1_%1"_s.arg(box)), u"a box that nothing reads"_s);
            user.click(u"Fer"_s);
        });
    }

    void the_window_is_placed_and_grows_with_its_filters()
    {
        const filled_bag bag;
        const recording_frame frame;
        in_bag([&](hand& user) {
            int narrow = 0;
            user.look([&] {
                user.check(frame.locked, u"the menu is locked"_s);
                user.check(current_form == form_at_work(), u"current_form"_s);
                narrow = form_at_work()->width();
                QVERIFY(narrow >= pixels(7000));
                QCOMPARE(form_at_work()->y(), 80 + 40 / 15);
            });
            user.click(u"Command1"_s);
            user.look([&] {
                QVERIFY(form_at_work()->width() >= pixels(10605));
                QVERIFY(form_at_work()->width() > narrow);
                QCOMPARE(form_at_work()->y(), 80);
            });
            user.click(u"Fer"_s);
        });
        QVERIFY(!frame.locked);
    }

    void a_store_without_rounds_is_told_and_no_window_comes_up_data() { both_languages(); }
    void a_store_without_rounds_is_told_and_no_window_comes_up()
    {
        QFETCH(bool, french);
        const store_folder store(french);
        const recording_frame frame;
        play(
            [] {
                f_sticks window;
                window.show_modal();
            },
            [&](hand& user) {
                user.answer({french ? u"Attention : Verdane n'a trouvé aucune ronde enregistrée"_s
                                    : u"Attention : Verdane did not find any round"_s,
                             QMessageBox::Information, u"VERDANE"_s, QMessageBox::Ok});
            });
        QVERIFY(open_recordsets().isEmpty());
        QVERIFY(!frame.locked);
    }

    void averages_are_worked_out_and_wait_for_the_answer_data() { both_languages(); }
    void averages_are_worked_out_and_wait_for_the_answer()
    {
        QFETCH(bool, french);
        const filled_bag bag(french);
        in_bag([&](hand& user) {
            compute(user, 0, 2);
            user.same(user.text(u"Text1_0"_s), u"225"_s, u"club 1"_s);
            user.same(user.text(u"Text1_4"_s), u"140"_s, u"club 5"_s);
            user.same(user.text(u"Text1_1"_s), u"0"_s, u"a club without shots"_s);
            user.same(user.text(u"Text1_13"_s), u"3"_s, u"the putter keeps what it had"_s);
            user.same(user.text(u"Text1_14"_s), QString(), u"the box behind the putter"_s);
            user.check(!user.is_open(u"report_preview"_s), u"no report"_s);
            QCOMPARE(bag.average(1), 200.5);
            QCOMPARE(bag.shots(1), 0);
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::Yes);
        });
        QCOMPARE(bag.average(1), 225.0);
        QCOMPARE(bag.average(5), 140.0);
        QCOMPARE(bag.average(14), 3.0);
        QCOMPARE(bag.shots(1), 2);
        QCOMPARE(bag.shots(5), 1);
    }

    void a_no_leaves_the_store_and_keeps_the_new_names_for_the_run_data() { both_languages(); }
    void a_no_leaves_the_store_and_keeps_the_new_names_for_the_run()
    {
        QFETCH(bool, french);
        const filled_bag bag(french);
        in_bag([&](hand& user) {
            compute(user, 0, 2);
            user.fill(u"sn_0"_s, u"Big"_s);
            user.fill(u"Text1_0"_s, u"250"_s);
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::No);
        });
        QCOMPARE(bag.average(1), 200.5);
        QCOMPARE(bag.shots(1), 0);
        QCOMPARE(bag.name(1), u"D1"_s);
        QCOMPARE(Main_module::club_names[0], u"Big"_s);
    }

    void a_yes_keeps_names_too()
    {
        const filled_bag bag;
        in_bag([](hand& user) {
            user.fill(u"sn_2"_s, u"Bois 5"_s);
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::Yes);
        });
        QCOMPARE(bag.name(3), u"Bois 5"_s);
        QCOMPARE(Main_module::club_names[2], u"Bois 5"_s);
        QCOMPARE(bag.average(1), 200.5);
    }

    void what_is_typed_is_stored_as_its_leading_number_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("stored");
        QTest::newRow("a unit behind it") << u"120m"_s << 120.0;
        QTest::newRow("decimals") << u"187.5"_s << 187.5;
        QTest::newRow("no number") << u"far"_s << 0.0;
        QTest::newRow("nothing") << u" "_s << 0.0;
    }
    void what_is_typed_is_stored_as_its_leading_number()
    {
        QFETCH(QString, typed);
        const filled_bag bag;
        in_bag([&](hand& user) {
            user.fill(u"Text1_6"_s, typed);
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::Yes);
        });
        QTEST(bag.average(7), "stored");
    }

    void a_range_that_runs_backwards_has_no_figures_data() { both_languages(); }
    void a_range_that_runs_backwards_has_no_figures()
    {
        QFETCH(bool, french);
        const filled_bag bag(french);
        in_bag([](hand& user) {
            compute(user, 2, 0);
            answer_no_shots(user);
            user.wait_until(u"the zeros"_s, [] { return text_of(*find_control(u"Text1_0"_s)) == u"0"; });
            user.click(u"Fer"_s);
        });
        QCOMPARE(bag.average(1), 200.5);
    }

    void the_filters_choose_the_rounds()
    {
        const filled_bag bag;
        in_bag([](hand& user) {
            user.click(u"Command1"_s);
            user.click_row(u"List2"_s, 2);
            user.choose(u"pList"_s, 1);
            user.choose(u"cmb_courses"_s, 1);
            user.choose(u"conditions"_s, 2);
            user.click(u"Actualiser"_s);
            user.same(user.text(u"Text1_0"_s), u"200"_s, u"the second round alone"_s);
            user.choose(u"conditions"_s, 1);
            user.click(u"Actualiser"_s);
            answer_no_shots(user);
            user.wait_until(u"the zeros"_s, [] { return text_of(*find_control(u"Text1_0"_s)) == u"0"; });
            user.click(u"Fer"_s);
        });
    }

    void the_choices_become_clauses_and_texts_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<bool>("on");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("open, French")
            << true << false
            << QStringList{
                   u" "_s, u" "_s, QString(), u"Toutes"_s, u"TOUS LES PARTENAIRES"_s, u"TOUS LES TERRAINS"_s};
        QTest::newRow("open, English")
            << false << false
            << QStringList{u" "_s, u" "_s, QString(), u"ALL"_s, u"All partners"_s, u"All COURSES"_s};
        QTest::newRow("chosen") << true << true
                                << QStringList{u" AND (games2.conditionM = 3)"_s,
                                               u" AND INSTR(GAMES2.PARTNERS,'12')"_s,
                                               u" AND GAMES2.FC = 'PEBBLE BEACH-3'"_s,
                                               u"Vent"_s,
                                               u"Anne, Douze"_s,
                                               u"Pebble Beach        , OR"_s};
    }
    void the_choices_become_clauses_and_texts()
    {
        QFETCH(bool, french);
        QFETCH(bool, on);
        const filled_bag bag(french);
        {
            f_sticks window;
            if (on) {
                window.conditions->setCurrentIndex(4);
                window.pList->setCurrentIndex(1);
                window.cmb_courses->setCurrentIndex(1);
            }
            const selection_arguments got = f_sticks_func::selection_of(window);
            const QStringList seen{got.weather_clause, got.partner_clause, got.course_clause,
                                   got.weather_text,   got.partner_text,   got.course_text};
            QTEST(seen, "expected");
            QCOMPARE(got.from_key, key_of_day(1));
            window.closeForm();
        }
        QVERIFY(open_recordsets().isEmpty());
    }

    void every_way_out_drops_what_was_typed_data()
    {
        QTest::addColumn<int>("way");
        const auto ways = ways_out();
        for (std::size_t i = 0; i < ways.size(); ++i)
            QTest::newRow(ways[i].words) << static_cast<int>(i);
    }
    void every_way_out_drops_what_was_typed()
    {
        QFETCH(int, way);
        const filled_bag bag;
        const recording_frame frame;
        in_bag([&](hand& user) {
            compute(user, 0, 2);
            user.fill(u"sn_0"_s, u"Big"_s);
            ways_out()[static_cast<std::size_t>(way)].leave(user);
        });
        QVERIFY(!frame.locked);
        QCOMPARE(bag.average(1), 200.5);
        QCOMPARE(bag.shots(1), 0);
        QCOMPARE(bag.name(1), u"D1"_s);
        QCOMPARE(Main_module::club_names[0], u"D1"_s);
    }
};

QTEST_MAIN(test_f_sticks)
#include "test_f_sticks.moc"
