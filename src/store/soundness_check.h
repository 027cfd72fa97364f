#pragma once

namespace verdane {

/// When the whole file is checked for damage: while it is opened, or later, when the caller calls
/// `check_soundness`, but before the first statement that writes. If the file has no table, or if opening
/// changes its journal mode, it is always checked while it is opened.
enum class soundness_check { while_opening, later };

}  // namespace verdane
