#pragma once

namespace verdane {
class f_games;
}

/// What the list of rounds does; both its twins come here.
namespace verdane::f_games_func {

/// Opens `rsgames` and `rsfield_info` and fills the list, oldest round first. Without a round it says
/// so, closes both and unloads the window.
void load(f_games& window);

/// A button of `Command1`: opens the selected round, adds one, closes the window, or removes the
/// selected round once the user has agreed.
void on_command(f_games& window, int index);

/// The window goes, closed by the user or by the round window. Whatever it says, the window goes.
void unload();

}  // namespace verdane::f_games_func
