#pragma once

#include "base/failure_words.h"
#include "base/language.h"
#include "controls/boxes.h"
#include "tests/support/hand.h"

namespace verdane::testing {

/// The message box of a failure, in the current language.
inline expected_box failure_box(failure_kind kind)
{
    return {failure_words(kind).in(is_french), QMessageBox::Critical, default_title(), QMessageBox::Ok};
}

}  // namespace verdane::testing
