#pragma once

#include <QMenu>

#include <chrono>
#include <functional>
#include <utility>

namespace verdane {

/// A pop-up menu whose entries can also be chosen by typing. A letter with which only one entry begins
/// chooses that entry; one with which several begin marks the next of them. Letters that are typed within a
/// second of each other are combined as long as an entry begins with them: "P" and "W" choose "PW". Blanks in
/// the captions are ignored.
class choice_menu : public QMenu {
public:
    using QMenu::QMenu;

    using time_function = std::function<std::chrono::milliseconds()>;
    /// Replaces the steady clock in all menus, for tests: the time since a fixed moment.
    static void set_clock(time_function clock) { clock_ = std::move(clock); }

    /// Adds an entry. Its caption is shown and found literally: an ampersand marks no mnemonic.
    QAction* add_choice(const QString& name, const QString& caption);
    static void set_caption(QAction& entry, const QString& caption);
    static QString caption_of(const QAction& entry);

    /// Shows the menu and marks the entry with that caption, or the first entry if there is none.
    void popup_on(const QPoint& place, const QString& caption);

    /// Chooses the entry that begins with a letter, without showing the menu; false if there is not exactly
    /// one.
    bool choose_only(QChar letter);
    /// Adds a letter to those typed before, marks an entry that begins with them, and chooses it when it is
    /// the only one. False if no entry begins with the letter.
    bool choose_by_letter(QChar letter);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QList<QAction*> beginning_with(const QString& typed) const;
    /// The letters typed within the last second and this one, if an entry begins with them; else this one.
    QString continued_by(QChar letter) const;
    void mark(const QList<QAction*>& matching);

    static time_function clock_;

    QString typed_;
    std::chrono::milliseconds typed_at_{0};
};

}  // namespace verdane
