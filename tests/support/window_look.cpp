#include "tests/support/window_look.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>

#include <algorithm>

#include "controls/Form.h"
#include "controls/look.h"
#include "store/DataEnvironment1.h"

namespace verdane::testing {

namespace {

bool shows_a_caption(const QWidget& control)
{
    return qobject_cast<const QLabel*>(&control) || qobject_cast<const QPushButton*>(&control) ||
           qobject_cast<const QComboBox*>(&control) || qobject_cast<const QGroupBox*>(&control) ||
           qobject_cast<const QTabBar*>(&control);
}

bool is_clipped(const QWidget& control)
{
    if (const auto* box = qobject_cast<const QLineEdit*>(&control))
        return box->width() < box->fontMetrics().horizontalAdvance(box->text()) + rhythm;
    const QSize wanted = control.minimumSizeHint();
    return shows_a_caption(control) &&
           (control.width() < wanted.width() || control.height() < wanted.height());
}

}  // namespace

QStringList clipped_controls(hand& user)
{
    QStringList names;
    user.look([&] { names = clipped_controls_of(*active_form()); });
    return names;
}

QStringList clipped_controls_of(const QWidget& window)
{
    QStringList names;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        if (control->isVisible() && is_clipped(*control))
            names << control->objectName();
    }
    return names;
}

bool scrolls(const QWidget& window)
{
    const auto areas = window.findChildren<QScrollArea*>();
    return std::any_of(areas.begin(), areas.end(), [](const QScrollArea* area) {
        return area->verticalScrollBar()->maximum() > 0 || area->horizontalScrollBar()->maximum() > 0;
    });
}

QStringList open_recordsets()
{
    QStringList names;
    for (Recordset& recordset : data_environment().recordsets()) {
        if (recordset.is_open())
            names << recordset.name();
    }
    return names;
}

}  // namespace verdane::testing
