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
using namespace Qt::StringLiterals;
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

    void the_hidden_entry_of_the_clean_up_is_connected_to_its_command_data() { both_stored_languages(); }
    void the_hidden_entry_of_the_clean_up_is_connected_to_its_command()
    {
        QFETCH(int, language);
        const QString orphan = u"20010203040506"_s;
        const QString shot = u"insert into Stat_rounds (date, hole) values ('%1', 1)"_s;
        const QStringList shots{shot.arg(orphan), shot.arg(u"20260614093000"_s)};
        const auto notice = [](const QString& text) {
            return expected_box{text, QMessageBox::NoIcon, default_title(), QMessageBox::Ok};
        };
        in_main_window(language, one_course() + one_round() + shots, [&](hand& user) {
            user.look([] { QTimer::singleShot(0, [] { run_event(command_store_clean_up); }); });
            for (const QString& text : {orphan, u"1"_s, u"Fin"_s})
                user.answer(notice(text));
            user.look([] {
                QAction* clean_up = entry(u"mcoh"_s);
                clean_up->setEnabled(true);
                QTimer::singleShot(0, clean_up, &QAction::trigger);
            });
            for (const QString& text : {u"0"_s, u"Fin"_s})
                user.answer(notice(text));
        });
    }

    void a_new_round_needs_a_course()
    {
        const QString french =
            u"Verdane n'a trouvé aucun terrain. Pour créer une ronde il faut definir au moin un terrain"_s;
        const QString english =
            u"Verdane could not find any course. To create a round, you need to define at least one course."_s;
        in_main_window(1, {}, [&](hand& user) {
            user.menu(u"mOpen"_s);
            user.answer({french, QMessageBox::Critical, u"Verdane"_s, QMessageBox::Ok});
            user.click(u"B1"_s);
            user.answer({french, QMessageBox::Critical, u"Verdane"_s, QMessageBox::Ok});
        });
        in_main_window(2, {}, [&](hand& user) {
            user.menu(u"mOpen"_s);
            user.answer({english, QMessageBox::NoIcon, default_title(), QMessageBox::Ok});
        });
    }

    void a_scorecard_needs_a_course_data() { both_stored_languages(); }
    void a_scorecard_needs_a_course()
    {
        QFETCH(int, language);
        const expected_box no_course{
            language == 1 ? u"Verdane n'a trouver aucun terrain. Il faut au moins un terrain pour imprimmer "
                            u"une carte"_s
                          : u"Verdane found no golf course. There has to be at least one registered"_s,
            QMessageBox::Critical, default_title(), QMessageBox::Ok};
        in_main_window(language, {}, [&](hand& user) {
            for (int time = 0; time < 2; ++time) {
                user.menu(u"mCarte"_s);
                user.answer(no_course);
            }
            user.click(u"B8"_s);
            user.answer(no_course);
        });
    }

    void the_scorecard_opens_from_the_menu_and_the_toolbar_data() { both_stored_languages(); }
    void the_scorecard_opens_from_the_menu_and_the_toolbar()
    {
        QFETCH(int, language);
        const QString window = language == 1 ? u"f_carte"_s : u"f_carte_en"_s;
        in_main_window(language, one_course(), [&](hand& user) {
            const auto leave = [&] {
                user.wait_for_window(window);
                user.check(!user.enabled(u"B8"_s), u"the toolbar is locked"_s);
                user.click(u"Command1_1"_s);
                user.wait_until_closed(window);
                user.check(user.enabled(u"B8"_s), u"the toolbar is enabled again"_s);
            };
            user.menu(u"mCarte"_s);
            leave();
            user.click(u"B8"_s);
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
            user.menu(u"mnOPenr"_s);
            user.answer(no_round);
            user.click(u"B2"_s);
            user.answer(no_round);
            for (const QString& statistics : {u"mnStabat"_s, u"mnStatcr"_s, u"mnstatr"_s, u"mncouts"_s}) {
                user.menu(statistics);
                user.answer({words(u"Verdane n'a trouvé aucune ronde", u"Verdane did not find any round"),
                             QMessageBox::Critical, default_title(), QMessageBox::Ok});
            }
        });
    }

    void the_round_list_opens_if_all_rounds_are_complete_data() { both_stored_languages(); }
    void the_round_list_opens_if_all_rounds_are_complete()
    {
        QFETCH(int, language);
        const QString list = language == 1 ? u"f_games"_s : u"f_games_en"_s;
        const QStringList complete{u"update games set putt_18 = 2"_s};
        in_main_window(language, rounds(2) + complete, [&](hand& user) {
            user.menu(u"mnOPenr"_s);
            user.wait_for_window(list);
            const QStringList lines = user.entries(u"List1"_s);
            user.same(lines.join(u'\n'), u"2025-01-01 00:00:00 |  - Links\n2025-01-01 00:00:01 |  - Links"_s,
                      u"lines"_s);
            user.click(u"Command1_2"_s);
            user.wait_until_closed(list);
        });
    }

    void a_refused_command_closes_its_recordset()
    {
        in_main_window(1, {}, [](hand& user) {
            for (int time = 0; time < 2; ++time) {
                user.menu(u"mnOPenr"_s);
                user.answer({u"Il n'y a pas de ronde enregistrée"_s, QMessageBox::Information,
                             default_title(), QMessageBox::Ok});
            }
        });
    }

    void each_statistics_command_shows_one_run_button()
    {
        in_main_window(1, one_course() + one_round(), [&](hand& user) {
            const std::vector<std::pair<QString, QString>> commands{{u"mnStabat"_s, u"Command1"_s},
                                                                    {u"mnStatcr"_s, u"OKButton"_s},
                                                                    {u"mnstatr"_s, u"Command2"_s},
                                                                    {u"mncouts"_s, u"Command3"_s}};
            for (const auto& [command, button] : commands) {
                user.menu(command);
                user.wait_for_window(u"f_date_range"_s);
                for (const auto& [other, each] : commands)
                    user.check(user.visible(each) == (each == button), command + u' ' + each);
                user.close_window(u"f_date_range"_s);
                user.wait_until_closed(u"f_date_range"_s);
            }
        });
    }

    void the_golf_bag_opens_from_the_toolbar()
    {
        in_main_window(1, one_course() + one_round(), [&](hand& user) {
            user.click(u"B7"_s);
            user.wait_for_window(u"f_sticks"_s);
            user.click(u"Fer"_s);
            user.wait_until_closed(u"f_sticks"_s);
        });
    }
};

QTEST_MAIN(test_main_commands)
#include "test_main_commands.moc"
