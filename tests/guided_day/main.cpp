#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>

#include "Connection1.h"
#include "day.h"
#include "start_up.h"

using namespace verdane;
using namespace verdane::guided_day;

namespace {

/// The folder named behind --to; without one the pictures go with the run.
QDir album_folder(const QStringList& arguments, const QTemporaryDir& otherwise)
{
    const auto place = arguments.indexOf(QStringLiteral("--to"));
    QDir folder(place > 0 && place + 1 < arguments.size() ? arguments.at(place + 1) : otherwise.path());
    folder.mkpath(QStringLiteral("."));
    return folder;
}

void play_both_days(testing::hand& user, const QDir& folder)
{
    const testing::reader store(Connection1::default_path());
    day morning{true,
                user,
                album(folder, user),
                store,
                testing::published_scorecard(QStringLiteral("Pebble Beach"), QStringLiteral("White")),
                morning_round()};
    day afternoon{
        false,
        user,
        album(folder, user),
        store,
        testing::published_scorecard(QStringLiteral("North Berwick West Links"), QStringLiteral("Blue")),
        afternoon_round()};
    choose_first_language(morning);
    for (day* today : {&morning, &afternoon}) {
        change_language(*today);
        look_around(*today);
        describe_course(*today);
        keep_partners(*today);
        play_round(*today);
        reopen_round(*today);
        print_statistic(*today);
        check_store(*today);
        remove_round(*today);
    }
    leave_program(afternoon);
}

}  // namespace

int main(int argc, char** argv)
{
    // The day starts with an empty diary and leaves the golfer's own alone.
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    QApplication application(argc, argv);
    prepare_application(application);
    const QDir folder = album_folder(QCoreApplication::arguments(), home);

    int status = 1;
    testing::play([&] { status = run_verdane(application); },
                  [&](testing::hand& user) { play_both_days(user, folder); });
    if (status == 0)
        std::printf("The guided day is over. Its pictures and reports: %s\n",
                    qUtf8Printable(folder.absolutePath()));
    return status;
}
