#include <QAction>
#include <QTest>

#include <vector>

#include "base/language.h"
#include "base/Main_module.h"
#include "shell/MainForm.h"
#include "shell/start_up.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"

using namespace verdane;
using verdane::testing::both_stored_languages;
using verdane::testing::entry;
using verdane::testing::hand;
using verdane::testing::in_main_window;
using verdane::testing::one_course;
using verdane::testing::program_run;
using verdane::testing::tool;

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

}  // namespace

class test_main_language : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_application(*qApp); }

    void every_caption_is_in_the_language_data() { both_stored_languages(); }
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

    void the_tool_tips_stay_french_data() { both_stored_languages(); }
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
                        auto* pane = frame->findChild<QWidget*>(QStringLiteral("Picture%1").arg(picture));
                        QCOMPARE(pane->isVisible(), picture == language);
                        QCOMPARE(pane->size(), frame->centralWidget()->size());
                    }
                }
            });
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
            user.look([] { Main_module::club_names_kept = false; });
            user.menu(QStringLiteral("mEn"));
            user.look([] {
                QCOMPARE(Main_module::club_names[2], QStringLiteral("Spoon"));
                QVERIFY(Main_module::club_names_kept);
            });
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
};

QTEST_MAIN(test_main_language)
#include "test_main_language.moc"
