#include <QTest>

#include <functional>
#include <vector>

#include "base/language.h"
#include "shell/start_up.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"
#include "tests/support/hand_widgets.h"

using namespace verdane;
using verdane::testing::expected_box;
using verdane::testing::hand;
using verdane::testing::in_main_window;
using verdane::testing::one_course;
using verdane::testing::one_round;
using namespace Qt::StringLiterals;

namespace {

struct window_of_entry {
    QString entry;
    QString window;
    QString french_title;
    QString english_title;
};

/// The windows that the main menu opens, without that of a new round.
const std::vector<window_of_entry>& windows_of_the_menu()
{
    static const std::vector<window_of_entry> windows{
        {u"mnOPenr"_s, u"f_games"_s, u"Gestion des rondes"_s, u"Round Management "_s},
        {u"mManagF"_s, u"f_c_list"_s, u"Gestion des terrains"_s, u"Golf Course Management "_s},
        {u"mCarte"_s, u"f_carte"_s, u"Carte de pointage"_s, u"Scorecard"_s},
        {u"mnBat"_s, u"f_sticks"_s, u"Mes bâtons"_s, u"My Golf Clubs"_s},
        {u"mpartners"_s, u"f_partners"_s, u"Partenaires"_s, u"Partner Management "_s},
        {u"mnStabat"_s, u"f_date_range"_s, u"Statistiques des bâtons"_s, u"Club Statistics"_s},
        {u"mnStatcr"_s, u"f_date_range"_s, u"Statistiques des coups roulés"_s, u"Putt Statistics"_s},
        {u"mnstatr"_s, u"f_date_range"_s, u"Statistiques des rondes"_s, u"Round Statistics"_s},
        {u"mncouts"_s, u"f_date_range"_s, u"Statistiques des coûts"_s, u"Cost Statistics"_s},
        {u"maprop"_s, u"f_about"_s, u"À propos de VERDANE"_s, u"About VERDANE"_s}};
    return windows;
}

QString twin_of(const QString& window)
{
    return is_french ? window : QString(window + u"_en");
}

void opens(hand& user, const QString& window, const QString& french_title, const QString& english_title)
{
    user.wait_for_window(twin_of(window));
    user.same(user.title(twin_of(window)), is_french ? french_title : english_title, window);
}

void closes(hand& user, const QString& window)
{
    user.close_window(twin_of(window));
    user.wait_until_closed(twin_of(window));
}

void open_each_entry(hand& user)
{
    for (const auto& [entry, window, french_title, english_title] : windows_of_the_menu()) {
        user.menu(entry);
        opens(user, window, french_title, english_title);
        closes(user, window);
    }
}

void open_the_course_editor(hand& user)
{
    user.menu(u"mManagF"_s);
    user.wait_for_window(twin_of(u"f_c_list"_s));
    user.click(u"Command1_0"_s);
    opens(user, u"f_courses"_s, u"Terrains"_s, u"Golf Course"_s);
    closes(user, u"f_courses"_s);
    closes(user, u"f_c_list"_s);
}

void leave_the_round(hand& user)
{
    user.click(u"Command1_2"_s);
    user.answer({in_language(u"Voulez vous enregistrer les modifications avant de sortir ? ",
                             u"Do you want to save your changes prior to exit?"),
                 QMessageBox::NoIcon, QString(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel},
                QMessageBox::No);
    user.wait_until_closed(twin_of(u"f_new_round"_s));
}

void open_a_stored_round_and_its_costs(hand& user)
{
    user.menu(u"mnOPenr"_s);
    user.wait_for_window(twin_of(u"f_games"_s));
    user.click(u"Command1_0"_s);
    opens(user, u"f_new_round"_s, u"Ronde"_s, u"Round"_s);
    user.click(u"Command2"_s);
    opens(user, u"f_cost"_s, u"Coûts"_s, u"Costs"_s);
    closes(user, u"f_cost"_s);
    leave_the_round(user);
}

/// The tee-off dialog is one window for both languages, above the round window.
void open_a_new_round(hand& user)
{
    user.menu(u"mOpen"_s);
    user.wait_for_window(u"f_get_date"_s);
    user.same(user.text(u"Command1"_s), in_language(u"Annuler", u"Cancel"), u"caption"_s);
    user.look([&] {
        user.check(verdane::testing::visible_window(twin_of(u"f_new_round"_s)) != nullptr, u"round window"_s);
    });
    user.click(u"Command1"_s);
    user.wait_until_closed(u"f_get_date"_s);
    user.wait_until_closed(twin_of(u"f_new_round"_s));
}

void open_every_window(hand& user)
{
    open_each_entry(user);
    open_the_course_editor(user);
    open_a_stored_round_and_its_costs(user);
    open_a_new_round(user);
}

}  // namespace

class test_language_change : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_application(*qApp); }

    void after_a_change_of_language_every_window_opens_as_its_twin()
    {
        in_main_window(1, one_course() + one_round(), [](hand& user) {
            open_every_window(user);
            user.menu(u"mEn"_s);
            user.check(!is_french, u"English"_s);
            open_every_window(user);
            user.menu(u"mfr"_s);
            user.check(is_french, u"French"_s);
            open_every_window(user);
        });
    }
};

QTEST_MAIN(test_language_change)
#include "test_language_change.moc"
