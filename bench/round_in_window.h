#pragma once

#include <QString>

#include <functional>

namespace verdane {
class f_new_round;
}

/// A stored round in its window, opened as the list of rounds opens it.
namespace verdane::bench {

/// Opens the recordsets that the list has open when it opens a round. A store must be open.
void open_tables_of_list();

/// Opens the round in its window, runs `work` when it is shown, and unloads the window without saving.
void in_round_window(const QString& key, const std::function<void(f_new_round&)>& work);

/// The same, the shots of hole 1 being on screen.
void on_detailed_page_of(const QString& key, const std::function<void(f_new_round&)>& work);

/// Clicks the tab of shot-by-shot entry.
void click_tab_of_shots(f_new_round& window);

}  // namespace verdane::bench
