#pragma once

#include <QKeySequence>
#include <QObject>
#include <QStringList>

#include <functional>
#include <vector>

#include "base/language.h"

class QAbstractButton;
class QWidget;

namespace verdane {

/// The keys as a keyboard of the language names them: "Ctrl+Suppr" in French, "Ctrl+Del" in English.
QString key_text(const QKeySequence& keys, bool french);

/// A tool tip that names what the keys do: "Coup suivant (Ctrl+N)".
QString tool_tip_with_keys(const text_pair& words, const QKeySequence& keys, bool french);

/// The shortcuts of one window. F1 lists them in a message box, in the language of the window. Keys that are
/// held down act once.
class window_shortcuts : public QObject {
public:
    /// Belongs to the window and is deleted with it.
    window_shortcuts(QWidget& window, bool french);

    /// The keys click the button while it is visible and enabled, from any control of the window. The
    /// button gets the tool tip.
    void add(const QKeySequence& keys, const text_pair& words, QAbstractButton& button);

    /// The keys run the routine from any control of the window. With a control, its tool tip gets a line
    /// for the keys.
    void add(const QKeySequence& keys, const text_pair& words, std::function<void()> routine,
             QWidget* control = nullptr);

    /// Keys that a control handles by itself: they are listed only.
    void mention(const QKeySequence& keys, const text_pair& words);

    void set_language(bool french) { french_ = french; }

    /// One line for each shortcut in the order in which they were added, then those of every window.
    QStringList lines() const;

private:
    struct entry {
        QKeySequence keys;
        text_pair words;
    };

    void listen(const QKeySequence& keys, QWidget& place, std::function<void()> routine);
    void show_list() const;

    QWidget& window_;
    bool french_;
    std::vector<entry> entries_;
};

}  // namespace verdane
