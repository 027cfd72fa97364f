#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdlib>

#include "shell/start_up.h"
#include "tests/guided_day/day.h"
#include "tests/guided_day/left_files.h"
#include "tests/guided_day/season.h"
#include "tests/guided_day/season_diary.h"
#include "tests/guided_day/stored_rows.h"
#include "tests/shell/program_run.h"
#include "tests/support/keyboard_hand.h"

using namespace verdane;
using namespace verdane::guided_day;
using namespace Qt::StringLiterals;

namespace {

/// Stored values of the language.
constexpr int not_chosen = 0;
constexpr int french = 1;

/// The folder after --to; empty without one.
QString named_folder(const QStringList& arguments)
{
    const auto place = arguments.indexOf(u"--to"_s);
    return place > 0 ? arguments.value(place + 1) : QString();
}

void play_day(day& today)
{
    change_language(today);
    show_main_and_about_window(today);
    enter_course(today);
    add_partners(today);
    enter_round(today);
    reopen_round(today);
    print_statistic(today);
    check_store(today);
    enter_detailed_round(today);
    remove_round(today);
}

/// Two days, each in one language, starting with an empty diary.
int play_both_days(album& pictures, testing::hand& user)
{
    testing::program_run golfer(not_chosen);
    const auto script = [&](testing::hand&) {
        day morning{{true, user, pictures, golfer.store()},
                    testing::published_scorecard(u"Pebble Beach"_s, u"White"_s),
                    morning_round(),
                    detailed_round(u"11"_s, u"50"_s)};
        day afternoon{{false, user, pictures, golfer.store()},
                      testing::published_scorecard(u"North Berwick West Links"_s, u"Blue"_s),
                      afternoon_round(),
                      detailed_round(u"17"_s, u"15"_s)};
        choose_first_language(morning);
        play_day(morning);
        play_day(afternoon);
        leave_program(afternoon);
    };
    const int status = golfer.play_through(script, user);
    save_rows(pictures, user, golfer.store(), u"rows_of_the_days.txt"_s);
    return status;
}

/// The reports on a season in both languages.
int print_season(album& pictures, testing::hand& user)
{
    testing::program_run golfer(french);
    create_season(golfer.store_place(), rounds_of_season);
    const auto script = [&](testing::hand&) {
        visit in_french{true, user, pictures, golfer.store()};
        visit in_english{false, user, pictures, golfer.store()};
        user.wait_for_window(u"MainForm"_s);
        for (visit* now : {&in_french, &in_english}) {
            change_language(*now);
            store_averages(*now);
            print_scorecard(*now);
            print_statistics(*now);
        }
        leave_program(in_english);
    };
    const int status = golfer.play_through(script, user);
    save_rows(pictures, user, golfer.store(), u"rows_of_the_season.txt"_s);
    return status;
}

int play_all(album& pictures, testing::hand& user)
{
    const int status = play_both_days(pictures, user);
    return status == EXIT_SUCCESS ? print_season(pictures, user) : status;
}

int play_with_the_mouse(album& pictures)
{
    testing::hand user;
    return play_all(pictures, user);
}

int play_by_keys(album& pictures)
{
    testing::keyboard_hand user;
    return play_all(pictures, user);
}

}  // namespace

/// Options: --to FOLDER keeps the pictures and reports; --keys plays without the mouse.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepare_application(application);
    const QTemporaryDir temporary;
    const QStringList arguments = QCoreApplication::arguments();
    const QString named = named_folder(arguments);
    const QDir folder(named.isEmpty() ? temporary.path() : named);
    folder.mkpath(u"."_s);
    album pictures(folder);
    const int status =
        arguments.contains(u"--keys"_s) ? play_by_keys(pictures) : play_with_the_mouse(pictures);
    const bool complete = report_left_files(pictures, !named.isEmpty());
    return complete ? status : EXIT_FAILURE;
}
