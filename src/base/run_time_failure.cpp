#include "base/run_time_failure.h"

#include <utility>

namespace verdane {

run_time_failure::run_time_failure(failure_kind kind, QString details)
    : kind_(kind), details_(std::move(details)), what_(details_.toStdString())
{
}

}  // namespace verdane
