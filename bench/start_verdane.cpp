#include <QApplication>

#include <cstring>

#include "bench/first_paint.h"
#include "shell/start_up.h"

using namespace Qt::StringLiterals;

/// The program, until its main window is painted; with "settled", until its picture is painted, too, and
/// the whole store is checked.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    verdane::prepare_application(application);
    if (argc > 1 && std::strcmp(argv[1], "settled") == 0)
        verdane::bench::end_when_painted(u"Picture2"_s, 2);
    else
        verdane::bench::end_when_painted(u"MainForm"_s, 1);
    return verdane::run_verdane(application);
}
