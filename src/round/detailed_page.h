#pragma once

#include <QGroupBox>

#include <functional>
#include <optional>
#include <vector>

#include "round/shot_entry.h"
#include "round/shot_rows.h"

class QLayout;
class QPushButton;

namespace verdane {

class Form;
class shot_grid;
struct shortcut;
struct text_pair;

/// The result of `detailed_page::drop_blank_shot`.
struct blank_shot {
    bool removed = false;
    /// The result of `check_shots`, which runs only when no shot was removed.
    std::optional<bool> shots_complete;
};

/// Shot-by-shot entry: the grid of shots and its commands. `shot_entry` changes the rows; the page calls it
/// and shows the results and the messages.
class detailed_page : public QGroupBox {
    Q_OBJECT

public:
    /// `hole` returns the hole on screen.
    detailed_page(Form& window, shot_rows& rows, std::function<hole_on_screen()> hole);

    /// The hole that was summarised last has classified shots.
    bool isdetailed() const { return entry_.isdetailed(); }
    /// The shot that is being entered is a putt.
    bool PUT_MODE() const { return entry_.PUT_MODE(); }

    /// True when the hole has only the blank shot of a new hole.
    bool is_untouched() const { return rows_.only_blank_shot(); }
    /// Removes that shot from the store.
    void drop_untouched_shot() { entry_.drop_untouched_shot(); }

    /// Commits what is being typed into a cell of the grid. False when the distance is too large: the cell
    /// stays in edit mode, and the caller must not continue.
    bool finish_typing();

    /// Prepares the grid for the page that becomes visible: names of the clubs, columns, cursor.
    void enter();
    /// After another window was open: shows the shots again, with the cursor on the same row.
    void enter_again();
    void focus_grid();
    /// Moves the cursor to the club of the current shot and focuses the grid.
    void focus_club();
    /// Unbinds the grid from its rows.
    void unbind();

    /// Loads the shots of the hole on screen into the grid; a hole without shots gets a blank shot. Shows a
    /// message and returns false as long as the round has no date.
    bool open_hole_shots();

    /// True when every shot of the loaded hole has its club and kind, or no hole is loaded. Otherwise a
    /// message names the first incomplete shot, and the cursor is on it.
    bool check_shots();

    /// Removes the first shot of the hole if the cursor is on it and it lacks club or kind. Otherwise checks
    /// the shots.
    blank_shot drop_blank_shot();

    /// Adds a shot after the last one. If the last one lacks club, kind or distance, shows a message instead.
    void next_shot();
    /// Removes the shot under the cursor.
    void remove_shot();
    /// Removes a blank first shot and summarises the hole; a hole without shots gets a blank shot.
    void finish_hole();
    /// Counts the shots of the hole on screen and reports the figures (`summarised`).
    void summarise_hole();

    void show_finish_button(bool visible);

    /// The controls in the order of the Tab key.
    std::vector<QWidget*> tab_order() const;

Q_SIGNALS:
    /// The shots of the hole on screen were counted.
    void summarised(const hole_summary& figures);

private:
    QPushButton* make_command(const text_pair& caption, QStringView name, const shortcut& keys);
    QLayout* make_commands();
    void connect_events();
    void show_incomplete(const QString& number);
    void start_hole_again();

    Form& window_;
    shot_rows& rows_;
    shot_entry entry_;
    shot_grid* grid_;
    QPushButton* next_button_ = nullptr;
    QPushButton* remove_button_ = nullptr;
    QPushButton* finish_button_ = nullptr;
};

}  // namespace verdane
