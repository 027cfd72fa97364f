// Prints a template to a PDF file, or its figures to a CSV file: with the figures of a store, or without one
// with the invented figures of the tests.
//
//   draw_report [--rounds NUMBER] [--courses NUMBER] [--holes NUMBER] TEMPLATE.rpt [STORE] OUT.pdf|OUT.csv

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

#include <optional>

#include "base/run_time_failure.h"
#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "tests/reports/invented_rows.h"
#include "tests/reports/invented_season.h"
#include "tests/reports/report_tools.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QCommandLineParser line;
    const QCommandLineOption rounds(u"rounds"_s, u"rounds of the invented season"_s, u"number"_s, u"40"_s);
    const QCommandLineOption courses(u"courses"_s, u"courses of the invented season"_s, u"number"_s, u"3"_s);
    const QCommandLineOption holes(u"holes"_s, u"most holes of a round of the invented season"_s, u"number"_s,
                                   u"18"_s);
    line.addOptions({rounds, courses, holes});
    line.addPositionalArgument(u"files"_s, u"TEMPLATE.rpt [STORE] OUT.pdf|OUT.csv"_s);
    line.addHelpOption();
    line.process(application);
    const QStringList arguments = line.positionalArguments();
    QTextStream errors(stderr);
    if (arguments.size() < 2 || arguments.size() > 3) {
        errors << line.helpText();
        return 2;
    }
    try {
        std::optional<testing::store_folder> invented;
        passed_rows season;
        if (arguments.size() == 2) {
            invented.emplace();
            testing::fill_all_reports(invented->location());
            season = testing::invented_season_tables({.rounds = line.value(rounds).toInt(),
                                                      .courses = line.value(courses).toInt(),
                                                      .most_holes = line.value(holes).toInt()});
        }
        set_report_store(invented ? invented->location() : store_location::file(arguments[1]));
        const auto report = render_report(arguments[0], {}, season);
        const QString& path = arguments.constLast();
        if (path.endsWith(u".csv"_s))
            report->save_csv(path);
        else
            report->save_pdf(path);
    } catch (const run_time_failure& failure) {
        errors << failure.details() << '\n';
        return 1;
    }
    return 0;
}
