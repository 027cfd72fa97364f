#pragma once

#include <QDialog>
#include <QEventLoop>
#include <QString>
#include <QStringView>

#include <vector>

class QAbstractButton;
class QLayout;
class QPushButton;

namespace verdane {

class scrolled_content;
class window_shortcuts;

/// A window of the program that works on the store: modal, made in one language and keeping it.
///
/// One class serves a family. Made while the interface is French it is `f_games`, made in English it
/// is `f_games_en`: the name and the captions differ, nothing else can.
///
/// The life of a window: its constructor builds the controls and loads it; `show_modal` shows it, runs
/// `activated` and lets it work until `unload`. A window that opened another is activated again when
/// that one has gone. Message boxes, pop-ups and other programs coming and going activate nothing.
class Form : public QDialog {
public:
    /// `family` is the French twin's name. A single form for both languages has no twin.
    enum class twins { two, one };
    explicit Form(QStringView family, twins kind = twins::two);
    ~Form() override;

    bool french() const { return french_; }

    /// The caption for the window's language.
    QString caption(QStringView french, QStringView english) const;

    /// Adds the part of the window that scrolls when the window is smaller than its content. Controls that
    /// must stay visible, such as OK and Cancel, are outside of it. Takes ownership of the layout.
    scrolled_content* scrolled(QLayout* content);

    /// Gives the window a size, or a larger one at which nothing scrolls, limited to the available size of
    /// its screen. To be called after all controls are added, and before Place and lock.
    void take_size(QSize wanted);

    /// The shortcuts of the window; F1 lists them.
    window_shortcuts& shortcuts() { return *shortcuts_; }

    /// Shows the window above the others and returns when it has been unloaded. Afterwards the window
    /// (or the main frame) that was at work is activated.
    void show_modal();

    /// Takes the window away, after its own `unloading`, once. Safe to call again.
    void unload();
    bool is_loaded() const { return loaded_; }

    /// The public operations of every window, reached from the main frame.
    virtual void save() {}
    virtual void closeForm() { unload(); }

    /// Takes keyboard input away while a long computation runs, and paints what changed. Called
    /// whenever the computation moves its progress bar.
    static void paint_now();

protected:
    /// Escape clicks this button. In a window without one Escape is the title bar's close box.
    void set_cancel_button(QAbstractButton& button) { cancel_button_ = &button; }

    /// Shown for the first time, or back from another window of the program.
    virtual void activated() {}
    /// The window is about to go.
    virtual void unloading() {}
    /// The title bar's close box.
    virtual void close_requested() { unload(); }

    void closeEvent(QCloseEvent* event) override;
    /// Escape.
    void reject() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void work_until_unloaded();
    void resize_now(QSize size);
    /// Gives the keyboard back to the window below (the main window when null) and activates it.
    static void wake(Form* opener);

    bool french_;
    bool loaded_ = true;
    window_shortcuts* shortcuts_;
    QAbstractButton* cancel_button_ = nullptr;
    QEventLoop loop_;
    std::vector<scrolled_content*> scrolled_;
};

/// The window at work: the last one shown that has not gone; null when none is up.
Form* form_at_work();

/// The open window of a family ("f_games"), whichever twin it is; null when there is none.
Form* open_form(QStringView family);

/// A push button that Enter presses only while it has the focus.
QPushButton* make_button(const QString& caption);

}  // namespace verdane
