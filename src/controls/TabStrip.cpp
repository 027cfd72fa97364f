#include "controls/TabStrip.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>

#include "controls/failure_guard.h"

namespace verdane {

TabStrip::TabStrip(QWidget* parent) : QTabBar(parent)
{
    setDrawBase(true);
    setExpanding(false);
    setUsesScrollButtons(false);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QTabBar::currentChanged, this, &TabStrip::selected_from_outside);
}

void TabStrip::select(int tab)
{
    selected_index_ = tab - 1;
    setCurrentIndex(tab - 1);
}

/// The action of a screen reader sets the index of the toolkit, without a click. The first tab is selected by
/// the toolkit when it is added.
void TabStrip::selected_from_outside(int index)
{
    if (index == selected_index_)
        return;
    if (selected_index_ < 0) {
        selected_index_ = index;
        return;
    }
    setCurrentIndex(selected_index_);
    click(index + 1);
}

void TabStrip::click(int tab)
{
    run_event([&] {
        if (before_click_ && !before_click_())
            return;
        select(tab);
        Q_EMIT clicked();
    });
}

void TabStrip::mousePressEvent(QMouseEvent* event)
{
    const int index = tabAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index >= 0)
        click(index + 1);
}

void TabStrip::keyPressEvent(QKeyEvent* event)
{
    int tab = selected();
    switch (event->key()) {
    case Qt::Key_Space:
        click(tab);
        return;
    case Qt::Key_Left:
        --tab;
        break;
    case Qt::Key_Right:
        ++tab;
        break;
    case Qt::Key_Home:
        tab = 1;
        break;
    case Qt::Key_End:
        tab = count();
        break;
    default:
        event->ignore();
        return;
    }
    tab = std::clamp(tab, 1, count());
    if (tab != selected())
        click(tab);
}

void TabStrip::wheelEvent(QWheelEvent* event)
{
    // By default the wheel changes the tab, without the check.
    event->ignore();
}

}  // namespace verdane
