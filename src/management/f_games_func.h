#pragma once

namespace verdane {
class f_games;
}

/// The logic of the list of rounds, shared by both twins.
namespace verdane::f_games_func {

/// Opens `rsgames` and `rsfield_info` and fills the list, oldest round first. If no round is stored, reports
/// that, closes both and unloads the window.
void load(f_games& window);

/// A button of `Command1`: opens the selected round, adds one, closes the window, or removes the
/// selected round once the user has agreed.
void on_command(f_games& window, int index);

/// Unloads the window, closed by the user or by the round window. A failure does not prevent it.
void unload();

}  // namespace verdane::f_games_func
