#pragma once

struct sqlite3;

namespace verdane {

/// Replaces `trim`, `ltrim` and `rtrim` with two arguments on a connection. The engine's own compare every
/// character of the text with every one of the list, and nothing ends them early. These fail when the list
/// has more than 1,000 characters; otherwise the result is the same.
void limit_trim(sqlite3* connection);

}  // namespace verdane
