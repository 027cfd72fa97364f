#pragma once

#include <QStringView>

class QWidget;

namespace verdane {

/// The functions of the main window that other windows call. The main window, in a higher library, implements
/// them.
class main_frame_interface {
public:
    virtual ~main_frame_interface() = default;

    virtual QWidget* frame_widget() = 0;
    /// Disables the commands that open windows, and Quit. Safe to call twice.
    virtual void lock_menu() = 0;
    /// Enables them again. Safe to call twice.
    virtual void unlock_menu() = 0;
    /// Enables or disables one tool button, by its key (`B1` to `B8`).
    virtual void enable_tool_button(QStringView key, bool enabled) = 0;
    /// Unloads the window, loads it again in the current language and shows it.
    virtual void reload() = 0;
    /// Called when the last other window is closed.
    virtual void activated() = 0;
};

/// The main window; null while there is none.
main_frame_interface* main_frame();
void set_main_frame(main_frame_interface* frame);

/// Disables and enables the commands of the main window. Without a main window they do nothing.
void Lock_menu();
void Unlock_menu();

}  // namespace verdane
