#pragma once

#include "control_array.h"
#include "Form.h"

class QListWidget;
class QPushButton;

namespace verdane {

/// The list of stored rounds, from which the user reopens one, adds another or removes one; in
/// English `f_games_en`.
///
/// Making the window loads it: `rsgames` and `rsfield_info` are opened and stay open, for a round that
/// is opened from here works on. That round's window takes the list away and closes both; a list that
/// the user leaves closes them itself. A store without a round is told in a box, and `show_modal` then
/// returns at once.
class f_games final : public Form {
public:
    /// The members of `Command1`.
    enum command { open = 0, add = 1, ok = 2, remove = 3 };

    f_games();

    QListWidget* List1 = nullptr;
    control_array<QPushButton> Command1{u"Command1"};

    /// As the OK button.
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
