#pragma once

#include <QTabBar>

#include <functional>

namespace verdane {

/// A row of tabs that asks before it changes and tells every click, also one on the tab that is
/// shown already. Tabs are numbered from 1, as the windows number their pages and holes.
///
/// Keyboard: Left, Right, Home and End choose a tab as a click would.
class TabStrip : public QTabBar {
public:
    explicit TabStrip(QWidget* parent = nullptr);

    /// Asked before a click of the user changes the tab; the answer false keeps the old one.
    std::function<bool()> before_click;
    /// Told after a click of the user, the new tab being selected.
    std::function<void()> clicked;

    /// The selected tab, from 1.
    int selected() const { return currentIndex() + 1; }
    /// Selects a tab without asking or telling.
    void select(int tab) { setCurrentIndex(tab - 1); }

    /// A click of the user on a tab (from 1): asks, selects, tells.
    void click(int tab);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

}  // namespace verdane
