#include <QAction>
#include <QTest>

#include "base/language.h"
#include "records/Main_module.h"
#include "shell/MainForm.h"
#include "shell/start_up.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using verdane::testing::both_stored_languages;
using verdane::testing::entry;
using verdane::testing::hand;
using verdane::testing::in_main_window;
using verdane::testing::one_course;
using verdane::testing::program_run;
using verdane::testing::tool;

class test_main_language : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_application(*qApp); }

    void the_entry_of_the_language_in_use_is_checked_data() { both_stored_languages(); }
    void the_entry_of_the_language_in_use_is_checked()
    {
        QFETCH(int, language);
        in_main_window(language, {}, [&](hand& user) {
            user.look([&] {
                QCOMPARE(entry(u"mfr"_s)->isChecked(), language == 1);
                QCOMPARE(entry(u"mEn"_s)->isChecked(), language == 2);
            });
        });
    }

    void the_tool_tips_are_french_in_both_languages_data() { both_stored_languages(); }
    void the_tool_tips_are_french_in_both_languages()
    {
        QFETCH(int, language);
        in_main_window(language, {}, [](hand& user) {
            user.look([] {
                const QStringList tips{u"Ajouter une ronde"_s,
                                       u"Gestion des rondes"_s,
                                       u"Gestion des terrain"_s,
                                       u"Enregistrer"_s,
                                       u"Fermer"_s,
                                       u"Mes partenaires"_s,
                                       u"Gestion des battons"_s,
                                       u"Carte de jeux"_s};
                for (int i = 0; i < tips.size(); ++i)
                    QCOMPARE(tool(u"B%1"_s.arg(i + 1))->toolTip(), tips.at(i));
            });
        });
    }

    void only_the_picture_of_the_language_shows_and_fills_the_frame_data() { both_stored_languages(); }
    void only_the_picture_of_the_language_shows_and_fills_the_frame()
    {
        QFETCH(int, language);
        in_main_window(language, {}, [&](hand& user) {
            user.look([&] {
                auto* frame = MainForm::of_run();
                for (const int size : {900, 1100}) {
                    frame->resize(size, size - 200);
                    for (const int picture : {1, 2}) {
                        auto* pane = frame->findChild<QWidget*>(u"Picture%1"_s.arg(picture));
                        QCOMPARE(pane->isVisible(), picture == language);
                        QCOMPARE(pane->size(), frame->centralWidget()->size());
                    }
                }
            });
        });
    }

    void a_change_of_language_takes_effect_immediately_and_is_stored()
    {
        program_run run(1, one_course());
        run.play_through([](hand& user) {
            user.wait_for_window(u"MainForm"_s);
            user.menu(u"mEn"_s);
            user.same(user.title(u"MainForm"_s), u"Verdane for PC version 1.4"_s, u"title"_s);
            user.menu(u"mManagF"_s);
            user.wait_for_window(u"f_c_list_en"_s);
            user.click(u"Command1_2"_s);
            user.wait_until_closed(u"f_c_list_en"_s);
            user.menu(u"mfr"_s);
            user.same(user.title(u"MainForm"_s), u"Verdane pour PC version 1.4"_s, u"title"_s);
            user.menu(u"mEn"_s);
            user.menu(u"mQuit"_s);
        });
        QCOMPARE(run.store().number(u"select language from settings"_s), 2);
    }

    void a_change_of_language_reads_the_club_names_again()
    {
        program_run run(1);
        run.play_through([&](hand& user) {
            user.wait_for_window(u"MainForm"_s);
            run.store().write(u"update sticknames set club_3 = 'Spoon'"_s);
            user.look([] { Main_module::club_names_kept = false; });
            user.menu(u"mEn"_s);
            user.look([] {
                QCOMPARE(Main_module::club_names[2], u"Spoon"_s);
                QVERIFY(Main_module::club_names_kept);
            });
            user.menu(u"mQuit"_s);
        });
    }

    void the_current_language_can_be_chosen_again()
    {
        in_main_window(1, {}, [](hand& user) {
            user.menu(u"mfr"_s);
            user.look([] {
                QVERIFY(entry(u"mfr"_s)->isChecked());
                QVERIFY(!entry(u"mEn"_s)->isChecked());
                QVERIFY(is_french);
            });
        });
    }
};

QTEST_MAIN(test_main_language)
#include "test_main_language.moc"
