#include "round_putt_report.h"

#include <utility>

#include "run_time_failure.h"

namespace verdane {

namespace {

round_putt_report report_of_run;

}  // namespace

void set_round_putt_report(round_putt_report routine)
{
    report_of_run = std::move(routine);
}

void launch_round_putt_report(report_control& cr2, const QString& caption_1, const QString& caption_2)
{
    if (!report_of_run)
        throw run_time_failure(failure_kind::misuse, QStringLiteral("no report on the putts of a round"));
    report_of_run(cr2, caption_1, caption_2);
}

}  // namespace verdane
