#pragma once

#include <QStringList>

#include "transfer/exit_status.h"

namespace verdane {

/// `check STORE [--repair] [--make-rounds]`: reports the problems of a diary. With `--repair` those that need
/// no choice are repaired in one commit, after a copy was made; with `--make-rounds`, too, rounds are made of
/// shots that have none. The status is `problems` while problems are left.
exit_status run_check(const QStringList& arguments);

}  // namespace verdane
