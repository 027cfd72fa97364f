#pragma once

#include <QPoint>
#include <QPointer>
#include <QStringView>

class QWidget;

namespace verdane {

class Form;

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
    /// Called when the last other window is closed.
    virtual void activated() = 0;
};

/// The main window; null while there is none.
main_frame_interface* main_frame();
void set_main_frame(main_frame_interface* frame);

/// The window that the commands Save and Close act on. Each window sets it to itself when it opens; it is
/// null once that window is deleted.
extern QPointer<Form> current_form;

/// Disables and enables the commands of the main window. Without a main window they do nothing.
void Lock_menu();
void Unlock_menu();

/// Moves the window near the top of the main window, centred from left to right, but with no part off the
/// screen, and locks the menu.
void Place_and_lock(Form& form);

/// The pixels of a length in twips (1/1440 inch) at 96 pixels an inch.
constexpr int pixels(int twips)
{
    return twips / 15;
}

}  // namespace verdane
