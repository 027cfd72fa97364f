#pragma once

#include <QStringList>

#include "controls/control_array.h"
#include "controls/Form.h"

class QListWidget;
class QPushButton;

namespace verdane {

/// The list of stored rounds (`f_games`, `f_games_en`), from which the user reopens, adds and removes
/// rounds.
///
/// The constructor loads it: `rsgames` and `rsfield_info` are opened and stay open, because a round that is
/// opened from here uses them. The window of that round unloads the list and closes both. If the user
/// closes the list, the list closes them. If no round is stored, a message box reports that and `show_modal`
/// returns at once.
class f_games final : public Form {
public:
    /// The members of the control array `Command1`.
    enum command { open = 0, add = 1, ok = 2, remove = 3 };

    f_games();

    /// Fills the empty list: a line for each round, oldest first.
    void show_rounds(const QStringList& lines);
    /// The selected line; null (`isNull`) if there is none.
    QString selected_line() const;
    void remove_selected_line();

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

    QListWidget* lines_;
    control_array<QPushButton> buttons_{u"Command1"};
};

}  // namespace verdane
