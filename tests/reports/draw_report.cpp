// Prints a template to a PDF file with the figures of any store, for whoever works on a template:
//
//   draw_report TEMPLATE.rpt STORE OUT.pdf

#include <QApplication>
#include <QTextStream>

#include "report_document.h"
#include "report_store.h"
#include "run_time_failure.h"

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream errors(stderr);
    if (arguments.size() != 4) {
        errors << "draw_report TEMPLATE.rpt STORE OUT.pdf\n";
        return 2;
    }
    try {
        verdane::set_report_store(arguments[2]);
        verdane::render_report(arguments[1])->save_pdf(arguments[3]);
    } catch (const verdane::run_time_failure& failure) {
        errors << failure.details() << '\n';
        return 1;
    }
    return 0;
}
