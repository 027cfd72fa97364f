// Prints a template to a PDF file, or its figures to a CSV file: with the figures of a store, or without one
// with the invented figures of the tests.
//
//   draw_report TEMPLATE.rpt [STORE] OUT.pdf|OUT.csv

#include <QApplication>
#include <QTextStream>

#include <optional>

#include "base/run_time_failure.h"
#include "reports/report_document.h"
#include "reports/report_store.h"
#include "tests/reports/invented_rows.h"
#include "tests/reports/report_tools.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream errors(stderr);
    if (arguments.size() < 3 || arguments.size() > 4) {
        errors << "draw_report TEMPLATE.rpt [STORE] OUT.pdf|OUT.csv\n";
        return 2;
    }
    try {
        std::optional<testing::store_folder> invented;
        if (arguments.size() == 3) {
            invented.emplace();
            testing::fill_all_reports(invented->location());
        }
        set_report_store(invented ? invented->location() : store_location::file(arguments[2]));
        const auto report = render_report(arguments[1]);
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
