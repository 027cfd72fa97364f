#pragma once

#include <QObject>
#include <QStringList>

#include <functional>
#include <vector>

#include "controls/shortcut_table.h"

class QAbstractButton;
class QWidget;

namespace verdane {

/// The keys as a keyboard of the language names them: "Ctrl+Suppr" in French, "Ctrl+Del" in English.
QString key_text(QKeyCombination keys, bool french);

/// The tool tip of a shortcut: "Coup suivant (Ctrl+N)".
QString tool_tip_of(const shortcut& which, bool french);

/// The shortcuts of one window. F1 opens the guide at the page of the window, Ctrl+F1 lists the shortcuts in
/// a message box, both in the language of the window. Keys that are held down act once.
class window_shortcuts : public QObject {
public:
    /// Is deleted with the window.
    window_shortcuts(QWidget& window, bool french);

    /// The keys click the button from any control of the window, while it is visible and enabled. Sets the
    /// tool tip of the button.
    void add(const shortcut& which, QAbstractButton& button);

    /// The keys call the routine from any control of the window. A line is added to the tool tip of the
    /// control, if there is one.
    void add(const shortcut& which, std::function<void()> routine, QWidget* control = nullptr);

    /// Lists a shortcut that a control handles itself.
    void mention(const shortcut& which) { listed_.push_back(which); }

    void set_language(bool french) { french_ = french; }

    /// The list of Ctrl+F1: one line for each shortcut, in the order in which they were added, then the lines
    /// of every window.
    QStringList lines() const;

private:
    void listen_always(QKeyCombination keys, std::function<void()> routine);
    void listen(QKeyCombination keys, QWidget& place, std::function<void()> routine);
    void show_list() const;

    QWidget& window_;
    bool french_;
    std::vector<shortcut> listed_;
};

}  // namespace verdane
