#pragma once

#include <QTabBar>

#include <functional>
#include <utility>

namespace verdane {

/// A row of tabs that can refuse a change, and reports every click, also one on the selected tab. Tabs are
/// numbered from 1, as pages and holes are.
///
/// Keyboard: Left, Right, Home and End select another tab as a click does; Space clicks the selected tab. The
/// action of a screen reader is a click, too.
class TabStrip : public QTabBar {
    Q_OBJECT

public:
    explicit TabStrip(QWidget* parent = nullptr);

    /// `check` is called before a click changes the tab; false keeps the old one.
    void set_before_click(std::function<bool()> check) { before_click_ = std::move(check); }

    /// The selected tab, from 1.
    int selected() const { return currentIndex() + 1; }
    /// Selects a tab without calling that check and without `clicked`.
    void select(int tab);

    /// Acts as a click on a tab: calls the check, selects the tab and emits `clicked`.
    void click(int tab);

Q_SIGNALS:
    /// A tab was clicked, also the selected one; the new tab is selected.
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void selected_from_outside(int index);

    std::function<bool()> before_click_;
    /// The tab that `select` has selected last, from 0; -1 without a tab.
    int selected_index_ = -1;
};

}  // namespace verdane
