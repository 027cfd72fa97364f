#pragma once

#include <QAction>
#include <QMainWindow>
#include <QToolBar>

#include <map>
#include <memory>

#include "base/language.h"
#include "controls/main_frame.h"
#include "controls/shortcuts.h"
#include "shell/main_menu.h"
#include "shell/pane_notes.h"
#include "shell/picture_pane.h"

namespace verdane {

/// The main window: a menu, a toolbar and a picture. It has the same name in both languages.
class MainForm : public QMainWindow, public main_frame_interface {
public:
    MainForm();
    ~MainForm() override;

    /// The main window; null before `show_first`.
    static MainForm* of_run();
    /// Creates the main window and shows it.
    static void show_first();
    /// Deletes it, after the last window is closed.
    static void end_of_run();

    /// Shows a line below the picture that reports a problem, in the current language.
    void show_problem(const text_pair& line, const QString& details);
    /// Shows what to do first if no course is stored, and hides it otherwise. Called once after the start;
    /// from then on, the window calls it whenever it is activated.
    void update_first_steps();

    QWidget* frame_widget() override { return this; }
    void lock_menu() override { set_locked(true); }
    void unlock_menu() override { set_locked(false); }
    void enable_tool_button(QStringView key, bool enabled) override;
    void reload() override;
    void activated() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void add_menu(const top_menu& menu);
    QAction* add_entry(const menu_entry& entry);
    void add_toolbar();
    void add_pictures();
    void load();
    void name_tool_buttons();
    void tick_language();
    void unload();
    void set_locked(bool locked);
    void fit_pictures();

    window_shortcuts shortcuts_{*this, is_french};
    std::map<QString, QAction*> actions_;
    std::map<QString, QAction*> tool_actions_;
    picture_pane* Picture1_ = nullptr;
    picture_pane* Picture2_ = nullptr;
    std::unique_ptr<pane_notes> notes_;
    bool first_steps_known_ = false;
};

}  // namespace verdane
