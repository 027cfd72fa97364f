#include "tests/guided_day/left_files.h"

#include <cstdio>

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

/// Pictures of the day.
const char* const pictures_of_a_day =
    "main f_about f_courses_1 f_courses_2 f_courses_3 f_c_list f_partners f_get_date f_new_round f_cost "
    "f_new_round_18 f_games f_date_range_day preview_day preview_round_putts f_details f_details_menu "
    "f_details_position_menu "
    "f_details_entered f_details_counts f_new_round_detailed_18 f_games_removal";

/// Pictures of the season.
const char* const pictures_of_a_season =
    "f_sticks f_sticks_filters f_sticks_averages f_carte f_date_range_clubs f_date_range_putts "
    "f_date_range_rounds f_date_range_costs preview_card preview_clubs preview_putts preview_rounds "
    "preview_costs";

const char* const reports = "day round_putts card clubs putts rounds costs";

void add(QStringList& files, const char* names, const QString& pattern)
{
    for (const QString& name : QString::fromLatin1(names).split(u' ')) {
        for (const QString& twin : {u"fr"_s, u"en"_s})
            files << pattern.arg(name, twin);
    }
}

QStringList expected_files()
{
    QStringList files{u"f_lang.png"_s, u"rows_of_the_days.txt"_s, u"rows_of_the_season.txt"_s};
    add(files, pictures_of_a_day, u"%1_%2.png"_s);
    add(files, pictures_of_a_season, u"%1_%2.png"_s);
    add(files, reports, u"report_%1_%2.pdf"_s);
    add(files, reports, u"report_%1_%2.csv"_s);
    add(files, reports, u"printed_%1_%2.pdf"_s);
    return files;
}

void print_each(const char* words, const QStringList& files)
{
    for (const QString& file : files)
        std::printf("%s %s\n", words, qUtf8Printable(file));
}

QStringList without(const QStringList& files, const QStringList& others)
{
    QStringList left;
    for (const QString& file : files) {
        if (!others.contains(file))
            left << file;
    }
    return left;
}

}  // namespace

bool report_left_files(const album& pictures, bool for_good)
{
    const QStringList left = without(pictures.files(), pictures.missing_files());
    const QStringList missing = without(expected_files(), left);
    const QStringList unknown = without(left, expected_files());
    print_each(" ", left);
    std::printf("The guided day is over: %d pictures and reports in %s%s\n", static_cast<int>(left.size()),
                qUtf8Printable(pictures.folder()),
                for_good ? "" : ", a temporary folder. Keep them with --to FOLDER");
    print_each("MISSING:", missing);
    print_each("UNEXPECTED:", unknown);
    return missing.isEmpty() && unknown.isEmpty();
}

}  // namespace verdane::guided_day
