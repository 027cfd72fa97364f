#pragma once

#include <QStringView>

namespace verdane {

class f_courses;

/// The logic of the course editor, one routine for each event, shared by both twins.
namespace f_courses_func {

/// Fills the window from the current rows.
void load(f_courses& window);

/// Checks and commits both rows; `saveSucceed` of the window has the result.
void save(f_courses& window);

/// While `needtosave` is set, shows the question whether to save. Closes the window unless the user cancels
/// or the save is refused.
void close(f_courses& window);

/// A click on a tab: shows its page and sets the focus to the page's first box.
void page_clicked(f_courses& window);

/// A length was left and accepted: computes the totals again.
void yards_entered(f_courses& window);

/// A tool button of the main window, by its key, pressed through its shortcut: `B1` saves, any other closes.
void toolbar_clicked(f_courses& window, QStringView key);

/// The window is being unloaded: discards what was not saved.
void unload(f_courses& window);

}  // namespace f_courses_func
}  // namespace verdane
