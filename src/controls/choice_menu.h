#pragma once

#include <QMenu>

#include <chrono>
#include <functional>

namespace verdane {

/// A pop-up of a few words, chosen from by the mouse, the arrows and Enter, or by typing. A letter that only
/// one entry begins with chooses that entry; one that several begin with marks the next of them. Letters
/// typed within a second of each other are one beginning, as long as an entry has it: "P" and "W" choose
/// "PW". Blanks in the captions need not be typed.
class choice_menu : public QMenu {
public:
    using QMenu::QMenu;

    /// The time since some fixed moment. The default is the steady clock; tests set their own.
    static std::function<std::chrono::milliseconds()> clock;

    /// Adds an entry of that name. The caption is shown and found as it stands, whatever it holds.
    QAction* add_choice(const QString& name, const QString& caption);
    static void set_caption(QAction& entry, const QString& caption);
    static QString caption_of(const QAction& entry);

    /// Shows the menu with the entry of that caption marked, the first entry when there is none.
    void popup_on(const QPoint& place, const QString& caption);

    /// Chooses the only entry that begins with a letter, without showing the menu; false when there is
    /// none or more than one.
    bool choose_only(QChar letter);
    /// Adds the letter to what was typed, marks an entry that begins so, and chooses it when it is the only
    /// one. False when no entry begins with the letter.
    bool choose_by_letter(QChar letter);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QList<QAction*> beginning_with(const QString& typed) const;
    /// What was typed within the last second and the letter, if an entry begins with both; else the letter.
    QString continued_by(QChar letter) const;
    void mark(const QList<QAction*>& matching);

    QString typed_;
    std::chrono::milliseconds typed_at_{0};
};

}  // namespace verdane
