#include <QAction>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "boxes.h"
#include "failure_guard.h"
#include "Form.h"
#include "language.h"
#include "main_commands.h"
#include "Main_module.h"
#include "MainForm.h"
#include "program_run.h"
#include "start_up.h"

using namespace verdane;
using verdane::testing::expected_box;
using verdane::testing::hand;
using verdane::testing::one_course;
using verdane::testing::one_round;
using verdane::testing::program_run;

namespace {

struct caption_row {
    const char* name;
    QString french;
    QString english;
};

const std::vector<caption_row>& captions()
{
    static const std::vector<caption_row> rows{
        {"mfile", QStringLiteral("&Fichier"), QStringLiteral("&File")},
        {"mnSave", QStringLiteral("&Enregistrer"), QStringLiteral("&Enregistrer")},
        {"mClose", QStringLiteral("&Fermer"), QStringLiteral("&Fermer")},
        {"mEn", QStringLiteral("English"), QStringLiteral("English")},
        {"mfr", QStringLiteral("Français"), QStringLiteral("Français")},
        {"mQuit", QStringLiteral("&Quitter"), QStringLiteral("&Exit")},
        {"mcoh", QStringLiteral("TEST"), QStringLiteral("TEST")},
        {"Rondes", QStringLiteral("&Rondes"), QStringLiteral("&Rounds")},
        {"mOpen", QStringLiteral("&Nouvelle ronde"), QStringLiteral("&New Round")},
        {"mnOPenr", QStringLiteral("&Gestion des rondes"), QStringLiteral("&Round Management")},
        {"mCourses", QStringLiteral("&Terrains"), QStringLiteral("&Golf Courses")},
        {"mManagF", QStringLiteral("&Gestion des terrains"), QStringLiteral("&Golf Course Management")},
        {"mCarte", QStringLiteral("&Carte de pointage"), QStringLiteral("&Scorecard")},
        {"batons", QStringLiteral("&Bâtons"), QStringLiteral("&Golf Clubs")},
        {"mnBat", QStringLiteral("&Mes bâtons"), QStringLiteral("&My Golf Clubs")},
        {"partenaires", QStringLiteral("&Partenaires"), QStringLiteral("&Partners")},
        {"mpartners", QStringLiteral("&Gestion des partenaires"), QStringLiteral("&Partner Management")},
        {"mnstat", QStringLiteral("&Statistiques"), QStringLiteral("&Statistics")},
        {"mnStabat", QStringLiteral("Statistiques des &bâtons"), QStringLiteral("Club Statistics")},
        {"mnStatcr", QStringLiteral("Statistiques des coups &roulés"), QStringLiteral("Putt Statistics")},
        {"mnstatr", QStringLiteral("Statistiques des r&ondes"), QStringLiteral("Round Statistics")},
        {"mncouts", QStringLiteral("Satistiques des coû&ts"), QStringLiteral("Cost Statistics")},
        {"maprop", QStringLiteral("&A propos"), QStringLiteral("&About")},
    };
    return rows;
}

QAction* entry(const QString& name)
{
    return MainForm::of_run()->findChild<QAction*>(name);
}

QWidget* tool(const QString& key)
{
    return MainForm::of_run()->findChild<QToolButton*>(key);
}

/// Runs the program in a language up to the main window, lets the script work, and leaves.
void in_main_window(int language, const QStringList& statements, const std::function<void(hand&)>& script)
{
    program_run run(language, statements);
    run.play_through([&](hand& user) {
        user.wait_for_window(QStringLiteral("MainForm"));
        script(user);
        user.menu(QStringLiteral("mQuit"));
    });
}

void both_languages()
{
    QTest::addColumn<int>("language");
    QTest::newRow("French") << 1;
    QTest::newRow("English") << 2;
}

}  // namespace

class test_main_window : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_application(*qApp); }

    void every_caption_is_in_the_language_data() { both_languages(); }
    void every_caption_is_in_the_language()
    {
        QFETCH(int, language);
        in_main_window(language, {}, [&](hand& user) {
            user.look([&] {
                for (const caption_row& row : captions()) {
                    QAction* action = entry(QString::fromLatin1(row.name));
                    QVERIFY2(action, row.name);
                    QCOMPARE(action->text(), language == 1 ? row.french : row.english);
                }
                QCOMPARE(entry(QStringLiteral("mfr"))->isChecked(), language == 1);
                QCOMPARE(entry(QStringLiteral("mEn"))->isChecked(), language == 2);
            });
        });
    }

    void save_close_and_clean_up_are_switched_off_in_the_menu()
    {
        in_main_window(1, {}, [](hand& user) {
            user.look([] {
                for (const QString& name :
                     {QStringLiteral("mnSave"), QStringLiteral("mClose"), QStringLiteral("mcoh")}) {
                    QVERIFY(!entry(name)->isVisible());
                    QVERIFY(!entry(name)->isEnabled());
                }
            });
        });
    }

    void the_clean_up_is_wired_though_its_entry_is_switched_off_data() { both_languages(); }
    void the_clean_up_is_wired_though_its_entry_is_switched_off()
    {
        QFETCH(int, language);
        const QString orphan = QStringLiteral("20010203040506");
        const QString shot = QStringLiteral("insert into Stat_rounds (date, hole) values ('%1', 1)");
        const QStringList shots{shot.arg(orphan), shot.arg(QStringLiteral("20260614093000"))};
        const auto told = [](const QString& text) {
            return expected_box{text, QMessageBox::NoIcon, default_title(), QMessageBox::Ok};
        };
        in_main_window(language, one_course() + one_round() + shots, [&](hand& user) {
            user.look([] { QTimer::singleShot(0, [] { run_event(command_store_clean_up); }); });
            for (const QString& text : {orphan, QStringLiteral("1"), QStringLiteral("Fin")})
                user.answer(told(text));
            user.look([] {
                QAction* clean_up = entry(QStringLiteral("mcoh"));
                clean_up->setEnabled(true);
                QTimer::singleShot(0, clean_up, &QAction::trigger);
            });
            for (const QString& text : {QStringLiteral("0"), QStringLiteral("Fin")})
                user.answer(told(text));
        });
    }

    void the_tool_tips_stay_french_data() { both_languages(); }
    void the_tool_tips_stay_french()
    {
        QFETCH(int, language);
        in_main_window(language, {}, [](hand& user) {
            user.look([] {
                const QStringList tips{QStringLiteral("Ajouter une ronde"),
                                       QStringLiteral("Gestion des rondes"),
                                       QStringLiteral("Gestion des terrain"),
                                       QStringLiteral("Enregistrer"),
                                       QStringLiteral("Fermer"),
                                       QStringLiteral("Mes partenaires"),
                                       QStringLiteral("Gestion des battons"),
                                       QStringLiteral("Carte de jeux")};
                for (int i = 0; i < tips.size(); ++i)
                    QCOMPARE(tool(QStringLiteral("B%1").arg(i + 1))->toolTip(), tips.at(i));
            });
        });
    }

    void only_the_picture_of_the_language_shows_and_fills_the_frame_data() { both_languages(); }
    void only_the_picture_of_the_language_shows_and_fills_the_frame()
    {
        QFETCH(int, language);
        in_main_window(language, {}, [&](hand& user) {
            user.look([&] {
                auto* frame = MainForm::of_run();
                for (const int size : {900, 1100}) {
                    frame->resize(size, size - 200);
                    for (const int picture : {1, 2}) {
                        auto* pane = frame->findChild<QWidget*>(QStringLiteral("Picture%1").arg(picture));
                        QCOMPARE(pane->isVisible(), picture == language);
                        QCOMPARE(pane->size(), frame->centralWidget()->size());
                    }
                }
            });
        });
    }

    void a_window_locks_the_menu_and_its_end_unlocks_it()
    {
        in_main_window(1, one_course(), [](hand& user) {
            const auto locked = [&](bool expected) {
                user.look([&] {
                    for (const char* name : {"mCarte", "mnBat", "mnOPenr", "mOpen", "mpartners", "mQuit",
                                             "maprop", "mManagF", "mnstat", "mCourses"})
                        QCOMPARE(entry(QString::fromLatin1(name))->isEnabled(), !expected);
                    for (const char* key : {"B1", "B2", "B3", "B6", "B7", "B8"})
                        QCOMPARE(tool(QString::fromLatin1(key))->isEnabled(), !expected);
                    for (const char* name : {"mEn", "mfr", "mfile", "Rondes", "batons", "partenaires"})
                        QVERIFY2(entry(QString::fromLatin1(name))->isEnabled(), name);
                    for (const char* key : {"B4", "B5"})
                        QVERIFY2(tool(QString::fromLatin1(key))->isEnabled(), key);
                });
            };
            locked(false);
            user.menu(QStringLiteral("mManagF"));
            user.wait_for_window(QStringLiteral("f_c_list"));
            locked(true);
            user.click(QStringLiteral("Command1_2"));
            user.wait_until_gone(QStringLiteral("f_c_list"));
            locked(false);
        });
    }

    void locking_twice_and_unlocking_twice_does_no_harm()
    {
        in_main_window(1, {}, [](hand& user) {
            user.look([] {
                Lock_menu();
                Lock_menu();
                Unlock_menu();
                QVERIFY(entry(QStringLiteral("mOpen"))->isEnabled());
                Unlock_menu();
                QVERIFY(entry(QStringLiteral("mQuit"))->isEnabled());
            });
        });
    }

    void a_window_is_placed_near_the_top_and_centred()
    {
        in_main_window(1, one_course(), [](hand& user) {
            user.click(QStringLiteral("B3"));
            user.wait_for_window(QStringLiteral("f_c_list"));
            user.look([] {
                const QRect frame = MainForm::of_run()->geometry();
                Form* list = open_form(u"f_c_list");
                QCOMPARE(list->pos().x() - frame.x(), (frame.width() - list->width()) / 2);
                QCOMPARE(list->pos().y() - frame.y(), 40 / 15);
            });
            user.click(QStringLiteral("Command1_2"));
        });
    }

    void a_new_round_needs_a_course()
    {
        const QString french = QStringLiteral(
            "Verdane n'a trouvé aucun terrain. Pour créer une ronde il faut definir au moin un terrain");
        const QString english = QStringLiteral(
            "Verdane could not find any course. To create a round, you need to define at least one course.");
        in_main_window(1, {}, [&](hand& user) {
            user.menu(QStringLiteral("mOpen"));
            user.answer({french, QMessageBox::Critical, QStringLiteral("Verdane"), QMessageBox::Ok});
            user.click(QStringLiteral("B1"));
            user.answer({french, QMessageBox::Critical, QStringLiteral("Verdane"), QMessageBox::Ok});
        });
        in_main_window(2, {}, [&](hand& user) {
            user.menu(QStringLiteral("mOpen"));
            user.answer({english, QMessageBox::NoIcon, default_title(), QMessageBox::Ok});
        });
    }

    void a_scorecard_needs_a_course_data() { both_languages(); }
    void a_scorecard_needs_a_course()
    {
        QFETCH(int, language);
        const expected_box no_course{
            language == 1
                ? QStringLiteral(
                      "Verdane n'a trouver aucun terrain. Il faut au moins un terrain pour imprimmer "
                      "une carte")
                : QStringLiteral("Verdane found no golf course. There has to be at least one registered"),
            QMessageBox::Critical, default_title(), QMessageBox::Ok};
        in_main_window(language, {}, [&](hand& user) {
            for (int time = 0; time < 2; ++time) {
                user.menu(QStringLiteral("mCarte"));
                user.answer(no_course);
            }
            user.click(QStringLiteral("B8"));
            user.answer(no_course);
        });
    }

    void the_scorecard_opens_from_the_menu_and_the_toolbar_data() { both_languages(); }
    void the_scorecard_opens_from_the_menu_and_the_toolbar()
    {
        QFETCH(int, language);
        const QString window = language == 1 ? QStringLiteral("f_carte") : QStringLiteral("f_carte_en");
        in_main_window(language, one_course(), [&](hand& user) {
            const auto leave = [&] {
                user.wait_for_window(window);
                user.check(!user.enabled(QStringLiteral("B8")), QStringLiteral("the toolbar is locked"));
                user.click(QStringLiteral("Command1_1"));
                user.wait_until_gone(window);
                user.check(user.enabled(QStringLiteral("B8")), QStringLiteral("the toolbar is open again"));
            };
            user.menu(QStringLiteral("mCarte"));
            leave();
            user.click(QStringLiteral("B8"));
            leave();
        });
    }

    void the_round_list_and_the_statistics_need_a_round_data() { both_languages(); }
    void the_round_list_and_the_statistics_need_a_round()
    {
        QFETCH(int, language);
        const auto words = [&](QStringView french, QStringView english) {
            return (language == 1 ? french : english).toString();
        };
        in_main_window(language, one_course(), [&](hand& user) {
            const expected_box no_round{
                words(u"Il n'y a pas de ronde enregistrée", u"There is no round registered"),
                QMessageBox::Information, default_title(), QMessageBox::Ok};
            user.menu(QStringLiteral("mnOPenr"));
            user.answer(no_round);
            user.click(QStringLiteral("B2"));
            user.answer(no_round);
            for (const char* statistics : {"mnStabat", "mnStatcr", "mnstatr", "mncouts"}) {
                user.menu(QLatin1String(statistics));
                user.answer({words(u"Verdane n'a trouvé aucune ronde", u"Verdane did not find any round"),
                             QMessageBox::Critical, default_title(), QMessageBox::Ok});
            }
        });
    }

    void a_refused_command_leaves_its_recordset_closed()
    {
        in_main_window(1, {}, [](hand& user) {
            for (int time = 0; time < 2; ++time) {
                user.menu(QStringLiteral("mnOPenr"));
                user.answer({QStringLiteral("Il n'y a pas de ronde enregistrée"), QMessageBox::Information,
                             default_title(), QMessageBox::Ok});
            }
        });
    }

    void each_command_opens_the_twin_of_the_language_data() { both_languages(); }
    void each_command_opens_the_twin_of_the_language()
    {
        QFETCH(int, language);
        const QString twin = language == 1 ? QString() : QStringLiteral("_en");
        in_main_window(language, one_course() + one_round(), [&](hand& user) {
            const std::vector<std::pair<QString, QString>> commands{
                {QStringLiteral("mnOPenr"), QStringLiteral("f_games")},
                {QStringLiteral("mManagF"), QStringLiteral("f_c_list")},
                {QStringLiteral("mpartners"), QStringLiteral("f_partners")},
                {QStringLiteral("mnBat"), QStringLiteral("f_sticks")},
                {QStringLiteral("mnStabat"), QStringLiteral("f_date_range")},
                {QStringLiteral("mnStatcr"), QStringLiteral("f_date_range")},
                {QStringLiteral("mnstatr"), QStringLiteral("f_date_range")},
                {QStringLiteral("mncouts"), QStringLiteral("f_date_range")},
                {QStringLiteral("maprop"), QStringLiteral("f_about")}};
            for (const auto& [command, window] : commands) {
                user.menu(command);
                user.wait_for_window(window + twin);
                user.close_window(window + twin);
                user.wait_until_gone(window + twin);
            }
        });
    }

    void each_statistics_command_leaves_one_run_button()
    {
        in_main_window(1, one_course() + one_round(), [&](hand& user) {
            const std::vector<std::pair<QString, QString>> commands{
                {QStringLiteral("mnStabat"), QStringLiteral("Command1")},
                {QStringLiteral("mnStatcr"), QStringLiteral("OKButton")},
                {QStringLiteral("mnstatr"), QStringLiteral("Command2")},
                {QStringLiteral("mncouts"), QStringLiteral("Command3")}};
            for (const auto& [command, button] : commands) {
                user.menu(command);
                user.wait_for_window(QStringLiteral("f_date_range"));
                for (const auto& [other, each] : commands)
                    user.check(user.visible(each) == (each == button), command + u' ' + each);
                user.close_window(QStringLiteral("f_date_range"));
                user.wait_until_gone(QStringLiteral("f_date_range"));
            }
        });
    }

    void the_golf_bag_opens_from_the_toolbar()
    {
        in_main_window(1, one_course() + one_round(), [&](hand& user) {
            user.click(QStringLiteral("B7"));
            user.wait_for_window(QStringLiteral("f_sticks"));
            user.click(QStringLiteral("Fer"));
            user.wait_until_gone(QStringLiteral("f_sticks"));
        });
    }

    void a_change_of_language_takes_effect_at_once_and_is_kept()
    {
        program_run run(1, one_course());
        run.play_through([](hand& user) {
            user.wait_for_window(QStringLiteral("MainForm"));
            user.menu(QStringLiteral("mEn"));
            user.same(user.title(QStringLiteral("MainForm")), QStringLiteral("Verdane for PC version 1.4"),
                      QStringLiteral("title"));
            user.menu(QStringLiteral("mManagF"));
            user.wait_for_window(QStringLiteral("f_c_list_en"));
            user.click(QStringLiteral("Command1_2"));
            user.wait_until_gone(QStringLiteral("f_c_list_en"));
            user.menu(QStringLiteral("mfr"));
            user.same(user.title(QStringLiteral("MainForm")), QStringLiteral("Verdane pour PC version 1.4"),
                      QStringLiteral("title"));
            user.menu(QStringLiteral("mEn"));
            user.menu(QStringLiteral("mQuit"));
        });
        QCOMPARE(run.store().number(QStringLiteral("select language from settings")), 2);
    }

    void a_change_of_language_reads_the_club_names_again()
    {
        program_run run(1);
        run.play_through([&](hand& user) {
            user.wait_for_window(QStringLiteral("MainForm"));
            run.store().write(QStringLiteral("update sticknames set club_3 = 'Spoon'"));
            user.menu(QStringLiteral("mEn"));
            user.look([] { QCOMPARE(Main_module::club_names[2], QStringLiteral("Spoon")); });
            user.menu(QStringLiteral("mQuit"));
        });
    }

    void the_language_in_use_may_be_chosen_again()
    {
        in_main_window(1, {}, [](hand& user) {
            user.menu(QStringLiteral("mfr"));
            user.look([] {
                QVERIFY(entry(QStringLiteral("mfr"))->isChecked());
                QVERIFY(!entry(QStringLiteral("mEn"))->isChecked());
                QVERIFY(is_french);
            });
        });
    }

    void save_and_close_without_a_window_do_nothing()
    {
        in_main_window(1, one_course(), [](hand& user) {
            user.click(QStringLiteral("B4"));
            user.click(QStringLiteral("B5"));
            user.menu(QStringLiteral("mManagF"));
            user.wait_for_window(QStringLiteral("f_c_list"));
            user.click(QStringLiteral("Command1_2"));
            user.wait_until_gone(QStringLiteral("f_c_list"));
            user.click(QStringLiteral("B4"));
            user.click(QStringLiteral("B5"));
            user.check(user.enabled(QStringLiteral("mOpen")), QStringLiteral("the menu stays open"));
        });
    }

    void the_title_bar_ends_the_program()
    {
        program_run run(1);
        const int status =
            run.play_through([](hand& user) { user.close_window(QStringLiteral("MainForm")); });
        QCOMPARE(status, 0);
    }
};

QTEST_MAIN(test_main_window)
#include "test_main_window.moc"
