#pragma once

#include "base/failure_text.h"
#include "base/language.h"
#include "controls/boxes.h"
#include "tests/support/hand.h"

namespace verdane::testing {

/// The message box of a failure, in the current language, with the round and the hole that it names.
inline expected_box failure_box(failure_kind kind, const failure_subject& subject = {})
{
    const failure_with_subject failure(run_time_failure(kind, QString()), subject);
    return {failure_text(failure, is_french), QMessageBox::Critical, default_title(), QMessageBox::Ok};
}

}  // namespace verdane::testing
