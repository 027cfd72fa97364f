#pragma once

#include <QStringView>

#include <vector>

#include "base/language.h"

/// The menu and the toolbar of the main window, as tables.
namespace verdane {

/// One entry of the menu. If the English caption is empty, the French one is shown in English, too.
struct menu_entry {
    QStringView name;
    text_pair caption;
    void (*command)() = nullptr;
    bool locked_while_a_window_is_open = false;
    /// Hidden and disabled; its command is connected nevertheless.
    bool hidden = false;
};

struct top_menu {
    QStringView name;
    text_pair caption;
    std::vector<menu_entry> entries;
    bool locked_while_a_window_is_open = false;
    /// The command of a top entry without entries below it.
    void (*command)() = nullptr;
};

struct tool_button {
    QStringView key;
    QStringView tool_tip;
    /// The name for screen readers in English; in French it is the tool tip.
    QStringView english_name;
    void (*command)() = nullptr;
    bool locked_while_a_window_is_open = false;
};

const std::vector<top_menu>& main_menu();

/// The tool tips are in French in both languages.
const std::vector<tool_button>& main_toolbar();

}  // namespace verdane
