#include <QTest>

#include "base/language.h"
#include "shell/start_up.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"

using namespace verdane;
using verdane::testing::both_stored_languages;
using verdane::testing::hand;
using verdane::testing::program_run;
using verdane::testing::quit;
using verdane::testing::rounds;
using namespace Qt::StringLiterals;

namespace {

const QString grid = u"details"_s;
constexpr int club_column = 2;

QString bag_window()
{
    return in_language(u"f_sticks", u"f_sticks_en");
}

QString round_window()
{
    return in_language(u"f_new_round", u"f_new_round_en");
}

/// Types a name for the first club, clicks OK and answers No, so that the store does not change.
void rename_first_club_and_answer_no(hand& user, const QString& name)
{
    user.menu(u"mnBat"_s);
    user.wait_for_window(bag_window());
    user.fill(u"sn_0"_s, name);
    user.click(u"enr"_s);
    user.answer(
        {in_language(u"Désirez vous conservés ces moyennes ?", u"Do you want to keep these averages ?"),
         QMessageBox::NoIcon, u"VERDANE"_s, QMessageBox::Yes | QMessageBox::No},
        QMessageBox::No);
    user.wait_until_closed(bag_window());
}

void open_the_shots_of_the_stored_round(hand& user)
{
    user.menu(u"mnOPenr"_s);
    user.wait_for_window(in_language(u"f_games", u"f_games_en"));
    user.click(u"Command1_0"_s);
    user.wait_for_window(round_window());
    user.click_tab(u"TabStrip2"_s, 2);
}

/// The first entry of the club menu. Chooses it and checks that the cell shows the same name.
QString first_club_of_the_menu(hand& user)
{
    open_the_shots_of_the_stored_round(user);
    user.open_menu(grid, 0, club_column);
    const QString name = user.menu_entries().constFirst();
    user.choose_menu_entry(u"ms1_1"_s);
    user.same(user.cell(grid, 0, club_column), name, u"cell"_s);
    user.click(u"CommandSup"_s);
    user.click_tab(u"TabStrip2"_s, 1);
    user.click(u"Command1_4"_s);
    user.wait_until_closed(round_window());
    return name;
}

}  // namespace

class test_renamed_clubs : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_application(*qApp); }

    void a_new_club_name_that_is_not_stored_is_in_the_menu_until_the_next_start_data()
    {
        both_stored_languages();
    }
    void a_new_club_name_that_is_not_stored_is_in_the_menu_until_the_next_start()
    {
        QFETCH(int, language);
        program_run run(language, rounds(1) + QStringList{u"update sticknames set club_1 = 'Old'"_s});
        run.play_through([&](hand& user) {
            user.wait_for_window(u"MainForm"_s);
            user.same(first_club_of_the_menu(user), u"Old"_s, u"before"_s);
            rename_first_club_and_answer_no(user, u"New"_s);
            user.same(first_club_of_the_menu(user), u"New"_s, u"after the No"_s);
            user.same(run.store().text(u"select club_1 from sticknames"_s), u"Old"_s, u"store"_s);
            quit(user);
        });
        run.play_through([&](hand& user) {
            user.wait_for_window(u"MainForm"_s);
            user.same(first_club_of_the_menu(user), u"Old"_s, u"after the next start"_s);
            quit(user);
        });
    }
};

QTEST_MAIN(test_renamed_clubs)
#include "test_renamed_clubs.moc"
