#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPixmap>

#include "controls/boxes.h"
#include "tests/support/hand.h"
#include "tests/support/hand_thread.h"
#include "tests/support/hand_widgets.h"

namespace verdane::testing {

bool hand::is_open(const QString& window)
{
    return result_of<bool>([&] { return visible_window(window) != nullptr; });
}

QString hand::text(const QString& control)
{
    QString text;
    on_control(control, [&](QWidget& found) { text = text_of(found); });
    return text;
}

QString hand::title(const QString& window)
{
    wait_for_window(window);
    return result_of<QString>([&] { return visible_window(window)->windowTitle(); });
}

QStringList hand::entries(const QString& list)
{
    QStringList entries;
    on_control(list, [&](QWidget& found) { entries = entries_of(found); });
    return entries;
}

int hand::selected(const QString& list)
{
    int selected = -1;
    on_control(list, [&](QWidget& found) { selected = selected_of(found); });
    return selected;
}

bool hand::visible(const QString& control)
{
    bool visible = false;
    on_control(control, [&](QWidget& found) { visible = found.isVisible(); });
    return visible;
}

bool hand::enabled(const QString& control)
{
    return result_of<bool>([&] {
        if (QAction* action = find_action(control))
            return action->isEnabled();
        QWidget* found = find_control(control);
        return found && found->isEnabled();
    });
}

bool hand::exists(const QString& control)
{
    return result_of<bool>([&] { return find_control(control) || find_action(control); });
}

QString hand::focus()
{
    wait_for_keyboard();
    return result_of<QString>([] {
        QWidget* focused = QApplication::focusWidget();
        return focused ? focused->objectName() : QString();
    });
}

QString hand::selected_text(const QString& box)
{
    QString selected;
    on_control(box, [&](QWidget& found) { selected = dynamic_cast<QLineEdit&>(found).selectedText(); });
    return selected;
}

int hand::bells()
{
    return result_of<int>([] { return bells_rung(); });
}

QImage hand::picture(const QString& window)
{
    wait_for_window(window);
    return result_of<QImage>([&] { return visible_window(window)->grab().toImage(); });
}

}  // namespace verdane::testing
