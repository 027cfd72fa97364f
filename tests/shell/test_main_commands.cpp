#include <QAction>
#include <QTest>
#include <QTimer>

#include "controls/boxes.h"
#include "controls/failure_guard.h"
#include "shell/main_commands.h"
#include "shell/start_up.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"

using namespace verdane;
using verdane::testing::both_stored_languages;
using verdane::testing::entry;
using verdane::testing::expected_box;
using verdane::testing::hand;
using verdane::testing::in_main_window;
using verdane::testing::one_course;
using verdane::testing::one_round;
using verdane::testing::rounds;

class test_main_commands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_application(*qApp); }

    void the_clean_up_is_wired_though_its_entry_is_switched_off_data() { both_stored_languages(); }
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

    void a_scorecard_needs_a_course_data() { both_stored_languages(); }
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

    void the_scorecard_opens_from_the_menu_and_the_toolbar_data() { both_stored_languages(); }
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

    void the_round_list_and_the_statistics_need_a_round_data() { both_stored_languages(); }
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

    void the_round_list_opens_on_complete_rounds_only_data() { both_stored_languages(); }
    void the_round_list_opens_on_complete_rounds_only()
    {
        QFETCH(int, language);
        const QString list = language == 1 ? QStringLiteral("f_games") : QStringLiteral("f_games_en");
        const QStringList complete{QStringLiteral("update games set putt_18 = 2")};
        in_main_window(language, rounds(2) + complete, [&](hand& user) {
            user.menu(QStringLiteral("mnOPenr"));
            user.wait_for_window(list);
            const QStringList lines = user.entries(QStringLiteral("List1"));
            user.same(lines.join(u'\n'),
                      QStringLiteral("2025-01-01 00:00:00 |  - Links\n2025-01-01 00:00:01 |  - Links"),
                      QStringLiteral("lines"));
            user.click(QStringLiteral("Command1_2"));
            user.wait_until_gone(list);
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

    void each_command_opens_the_twin_of_the_language_data() { both_stored_languages(); }
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
};

QTEST_MAIN(test_main_commands)
#include "test_main_commands.moc"
