#pragma once

namespace verdane {

/// Makes a write beyond the limit on file sizes (`ulimit -f`) fail like a write to a full disk. Without this
/// call such a write ends the process, on systems that have the limit. To be called once, at the start.
void let_oversized_writes_fail();

}  // namespace verdane
