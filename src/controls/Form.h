#pragma once

#include <QDialog>
#include <QEventLoop>
#include <QPointer>
#include <QString>
#include <QStringView>

#include <vector>

class QAbstractButton;
class QLayout;
class QPushButton;

namespace verdane {

class scrolled_content;
class window_shortcuts;

/// The base class of every window that the main window opens. It is modal, and keeps the language in which it
/// was made.
///
/// One class makes both twins of a family: `f_games` while the interface is French, `f_games_en` while it is
/// English. Only the name and the captions differ.
///
/// Life cycle: the constructor builds the controls and loads the data. `show_modal` shows the window, calls
/// `activated` and runs until `unload`. `activated` is called again when another window that this one opened
/// is closed. Message boxes, pop-ups and other programs do not cause it.
class Form : public QDialog {
public:
    /// `family` is the name of the French twin. With `one`, a single window is used for both languages.
    enum class twins { two, one };
    explicit Form(QStringView family, twins kind = twins::two);
    ~Form() override;

    bool french() const { return french_; }

    /// The caption in the language of the window.
    QString caption(QStringView french, QStringView english) const;

    /// Adds a part of the window that scrolls when the window is smaller than its content, and takes
    /// ownership of its layout. Controls that must stay visible, such as OK and Cancel, do not belong in it.
    scrolled_content* scrolled(QLayout* content);

    /// Resizes the window to a size, or to a larger one at which nothing scrolls, limited to the available
    /// size of its screen. To be called after all controls are added, and before `Place_and_lock`.
    void take_size(QSize wanted);

    /// The shortcuts of the window; Ctrl+F1 lists them.
    window_shortcuts& shortcuts() { return *shortcuts_; }

    /// Shows the window above the others and returns after it is unloaded. Then the window that was active
    /// before, or the main window, is activated.
    void show_modal();

    /// Calls `unloading` and closes the window. Further calls do nothing.
    void unload();
    bool is_loaded() const { return loaded_; }

    /// The operations of every window that the commands Save and Close of the main window call.
    virtual void save() {}
    virtual void closeForm() { unload(); }

    /// Paints what has changed, without handling input. Called during a long computation, each time it moves
    /// its progress bar.
    static void paint_now();

protected:
    /// Escape clicks this button. In a window without one, Escape acts as the close button of the title bar.
    void set_cancel_button(QAbstractButton& button) { cancel_button_ = &button; }

    /// The window is shown for the first time, or another window that it opened was closed.
    virtual void activated() {}
    /// The window is about to be closed.
    virtual void unloading() {}
    /// The close button of the title bar.
    virtual void close_requested() { unload(); }

    void closeEvent(QCloseEvent* event) override;
    /// Escape.
    void reject() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void run_until_unloaded();
    void resize_now(QSize size);
    /// Activates the window that opened this one; the main window when null.
    static void activate_opener(Form* opener);

    bool french_;
    bool loaded_ = true;
    window_shortcuts* shortcuts_;
    QAbstractButton* cancel_button_ = nullptr;
    QEventLoop loop_;
    std::vector<scrolled_content*> scrolled_;
};

/// The active window: the last one shown that is not unloaded; null when there is none.
Form* active_form();

/// The open window of a family ("f_games"), either twin; null when there is none.
Form* open_form(QStringView family);

/// The window that the commands Save and Close act on. Each window sets it to itself when it opens; it is
/// null once that window is deleted.
extern QPointer<Form> current_form;

/// Moves the window near the top of the main window, centred from left to right, but with no part off the
/// screen, and locks the menu.
void Place_and_lock(Form& form);

/// A push button that Enter clicks only while it has the focus.
QPushButton* make_button(const QString& caption);

/// The same for OK and Cancel at the end of a window. All these buttons have the same minimum width.
QPushButton* make_end_button(const QString& caption);

}  // namespace verdane
