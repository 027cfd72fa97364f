#pragma once

#include <QMenu>

namespace verdane {

/// A pop-up of a few words, chosen from by the mouse, the arrows and Enter, or a first letter: a letter
/// that only one entry begins with chooses it, one that several begin with goes from one to the next.
class choice_menu : public QMenu {
public:
    using QMenu::QMenu;

    /// Adds an entry of that name. The caption is shown and found as it stands, whatever it holds.
    QAction* add_choice(const QString& name, const QString& caption);
    static void set_caption(QAction& entry, const QString& caption);
    static QString caption_of(const QAction& entry);

    /// Shows the menu with the entry of that caption marked, the first entry when there is none.
    void popup_on(const QPoint& place, const QString& caption);

    /// Chooses the only entry that begins with a letter, without showing the menu; false when there is
    /// none or more than one.
    bool choose_only(QChar letter);
    /// Goes to the next entry that begins with the letter, and chooses it when it is the only one.
    bool choose_by_letter(QChar letter);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QList<QAction*> beginning_with(QChar letter) const;
};

}  // namespace verdane
