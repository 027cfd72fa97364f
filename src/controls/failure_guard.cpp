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
    case failure_kind::misuse:
    case failure_kind::missing_table:
    case failure_kind::store_locked:
    case failure_kind::store_read_only:
    case failure_kind::store_damaged:
    case failure_kind::store_full:
    case failure_kind::store_unreachable:
    case failure_kind::store_other:
    case failure_kind::source_unknown:
    case failure_kind::source_driver:
    case failure_kind::source_password:
    case failure_kind::source_database:
    case failure_kind::source_stopped:
    case failure_kind::source_silent:
    case failure_kind::source_engine:
    case failure_kind::source_case:
    case failure_kind::source_table:
    case failure_kind::source_column:
    case failure_kind::source_type:
    case failure_kind::source_storage:
    case failure_kind::source_read_only:
    case failure_kind::source_full:
    case failure_kind::source_value:
    case failure_kind::source_part:
    case failure_kind::source_lost:
        return true;
    default:
        return false;
    }
}

}  // namespace verdane
