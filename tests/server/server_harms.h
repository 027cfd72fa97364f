#pragma once

#include "tests/server/failing_round.h"

/// What happens to the server of a test while a window is open.
namespace verdane::testing {

/// Restarts the server with little disk space, as the harms expect it. To be called once, before the first.
void prepare_for_harms();

const store_harm& server_harm(const QString& name);

}  // namespace verdane::testing
