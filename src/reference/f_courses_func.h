#pragma once

#include <QStringView>

namespace verdane {

class f_courses;

/// What the course editor does, one routine for each event; what its boxes accept stands in
/// `f_courses_boxes.h`.
namespace f_courses_func {

/// Fills the window from the rows under it.
void load(f_courses& window);

/// Checks and commits both rows; the answer is the window's `saveSucceed`.
void save(f_courses& window);

/// Asks whether to save while `needtosave` holds; closes unless the user or a refusal keeps the
/// window open.
void close(f_courses& window);

/// A click on a tab: shows its page and gives the focus to the page's first box.
void page_clicked(f_courses& window);

/// A tool button of the main window, by its key, pressed through its shortcut: `B1` saves, any other closes.
void toolbar_clicked(f_courses& window, QStringView key);

/// The window goes: drops what was not saved.
void unload(f_courses& window);

}  // namespace f_courses_func
}  // namespace verdane
