#include "controls/failure_guard.h"

#include <cstdlib>

#include "base/failure_words.h"
#include "controls/boxes.h"
#include "controls/failure_box.h"
#include "controls/interface_language.h"
#include "store/DataEnvironment1.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

void show(const run_time_failure& failure)
{
    const auto box = failure_box(failure, in_known_language(failure_words(failure.kind())), window_at_work());
    box->setObjectName(u"failure_box"_s);
    box->exec();
}

}  // namespace

void end_after_failure(const run_time_failure& failure)
{
    show(failure);
    data_environment().abandon();
    std::_Exit(EXIT_FAILURE);
}

bool is_failure_of_store(failure_kind kind)
{
    switch (kind) {
    case failure_kind::overflow:
    case failure_kind::subscript:
    case failure_kind::invalid_null:
    case failure_kind::bad_number:
    case failure_kind::report_template:
    case failure_kind::report_output:
        return false;
    default:
        return true;
    }
}

}  // namespace verdane
