#pragma once

#include <QPoint>
#include <QPointer>
#include <QStringView>

#include "controls/Form.h"

namespace verdane {

/// What the windows need of the main window: its menu lock, its measures and its waking up. The main
/// window implements it; nothing down here knows that window.
class main_frame_interface {
public:
    virtual ~main_frame_interface() = default;

    virtual QWidget* frame_widget() = 0;
    /// Disables the commands that open windows, and Quit. Safe to call twice.
    virtual void lock_menu() = 0;
    /// The exact reverse.
    virtual void unlock_menu() = 0;
    /// Enables or disables one tool button, by its key (`B1` to `B8`).
    virtual void enable_tool_button(QStringView key, bool enabled) = 0;
    /// The main window is at work again.
    virtual void activated() = 0;
};

/// The main window of the run; null before it exists.
main_frame_interface* main_frame();
void set_main_frame(main_frame_interface* frame);

/// The window that the commands Save and Close address. Each window sets it to itself when it opens;
/// it reads null once that window no longer exists.
extern QPointer<Form> current_form;

/// Disables and enables the commands of the main window; nothing happens while there is none.
void Lock_menu();
void Unlock_menu();

/// Puts the window near the top of the main window, centred from left to right, but with no part off the
/// screen, and locks the menu.
void Place_and_lock(Form& form);

/// Pixels of a length in twips (1/1440 inch) at the toolkit's 96 pixels an inch.
constexpr int pixels(int twips)
{
    return twips / 15;
}

}  // namespace verdane
