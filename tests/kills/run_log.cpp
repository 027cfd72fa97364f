#include "tests/kills/run_log.h"

#include <cstdio>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

void print_line(const QString& line)
{
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

void read_left(run_log& log)
{
    if (log.typing != 0)
        log.typed[log.typing] = log.typing_figures;
    if (log.entering != 0)
        log.entered[log.entering] = log.entering_shots;
    log.typing = 0;
    log.entering = 0;
}

void read_line(run_log& log, const QStringList& parts)
{
    const QString what = parts.value(0);
    if (what == u"typed") {
        log.typing = parts.value(1).toInt();
        log.typing_figures = parts.value(2);
    } else if (what == u"entering") {
        log.entering = parts.value(1).toInt();
        log.entering_shots = hole_from(parts.value(2));
        log.shots_entered = 0;
    } else if (what == u"entered") {
        log.shots_entered = parts.value(2).toInt();
    } else if (what == u"left") {
        read_left(log);
    }
}

}  // namespace

void log_typed(int hole, const QString& figures)
{
    print_line(u"typed %1 %2"_s.arg(hole).arg(figures));
}

void log_entering(int hole, const entered_hole& shots)
{
    print_line(u"entering %1 %2"_s.arg(hole).arg(text_of(shots)));
}

void log_entered(int hole, int shot)
{
    print_line(u"entered %1 %2"_s.arg(hole).arg(shot));
}

void log_left(int hole)
{
    print_line(u"left %1"_s.arg(hole));
}

bool is_under_way(const QByteArray& output)
{
    return output.contains("typed") || output.contains("entering");
}

run_log read_log(const QByteArray& output)
{
    run_log log;
    // The kill may have cut the last line short; an incomplete line is ignored.
    const QByteArray whole_lines = output.left(output.lastIndexOf('\n') + 1);
    for (const QByteArray& line : whole_lines.split('\n'))
        read_line(log, QString::fromLatin1(line).split(u' '));
    return log;
}

}  // namespace verdane::testing
