#pragma once

#include "controls/control_array.h"
#include "controls/Form.h"

class QListWidget;
class QPushButton;

namespace verdane {

/// The list of stored rounds, from which the user reopens one, adds another or removes one; in
/// English `f_games_en`.
///
/// The constructor loads it: `rsgames` and `rsfield_info` are opened and stay open, because a round that is
/// opened from here uses them. The window of that round unloads the list and closes both; a list that the
/// user closes closes them itself. If no round is stored, a message box reports that and `show_modal`
/// returns at once.
class f_games final : public Form {
public:
    /// The members of `Command1`.
    enum command { open = 0, add = 1, ok = 2, remove = 3 };

    f_games();

    QListWidget* List1 = nullptr;
    control_array<QPushButton> Command1{u"Command1"};

    /// Same as the OK button.
    void closeForm() override;

protected:
    void unloading() override;
    void close_requested() override;

private:
    void build();
    QWidget* make_rounds_frame();
    QWidget* make_buttons();
    void connect_events();
};

}  // namespace verdane
