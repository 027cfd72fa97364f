#pragma once

#include <QMenu>

namespace verdane {

/// A pop-up of a few words, chosen from by the mouse, the arrows and Enter, or a first letter: a letter
/// that only one entry begins with chooses it, one that several begin with goes from one to the next.
class choice_menu : public QMenu {
public:
    using QMenu::QMenu;

    /// Shows the menu with the entry of that caption marked, the first entry when there is none.
    void popup_on(const QPoint& place, const QString& caption);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool choose_by_letter(QChar letter);
};

}  // namespace verdane
