#pragma once

#include <QStringView>

#include <vector>

#include "base/language.h"

/// The menu and the toolbar of the main window, as tables.
namespace verdane {

/// One entry of the menu. A caption whose English text is empty stays as it is in English.
struct menu_entry {
    QStringView name;
    text_pair caption;
    void (*command)() = nullptr;
    bool locked_while_a_window_works = false;
    /// Entries that are switched off are wired all the same.
    bool switched_off = false;
};

struct top_menu {
    QStringView name;
    text_pair caption;
    std::vector<menu_entry> entries;
    bool locked_while_a_window_works = false;
    /// What a top entry without entries of its own does.
    void (*command)() = nullptr;
};

struct tool_button {
    QStringView key;
    QStringView tool_tip;
    /// What screen readers call it in English; in French it is the tool tip.
    QStringView english_name;
    void (*command)() = nullptr;
    bool locked_while_a_window_works = false;
};

const std::vector<top_menu>& main_menu();

/// The tool tips are French in both languages.
const std::vector<tool_button>& main_toolbar();

}  // namespace verdane
