#include "reports/template/template_failure.h"

#include "base/run_time_failure.h"

namespace verdane {

using namespace Qt::StringLiterals;

void fail_template(const template_place& place, const QString& message)
{
    throw run_time_failure(failure_kind::report_template,
                           u"%1:%2: %3"_s.arg(place.file).arg(place.line).arg(message));
}

}  // namespace verdane
