#include "window_look.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "Form.h"

namespace verdane::testing {

namespace {

bool shows_a_caption(const QWidget& control)
{
    return qobject_cast<const QLabel*>(&control) || qobject_cast<const QPushButton*>(&control) ||
           qobject_cast<const QComboBox*>(&control) || qobject_cast<const QGroupBox*>(&control);
}

}  // namespace

QStringList controls_of_window(hand& user)
{
    QStringList lines;
    user.look([&] {
        for (const QWidget* control : form_at_work()->findChildren<QWidget*>()) {
            if (!control->objectName().isEmpty() && !control->objectName().startsWith(u"qt_"))
                lines << QString::fromLatin1(control->metaObject()->className()) + u' ' +
                             control->objectName();
        }
    });
    return lines;
}

QStringList clipped_controls(hand& user)
{
    QStringList names;
    user.look([&] {
        for (const QWidget* control : form_at_work()->findChildren<QWidget*>()) {
            const QSize wanted = control->minimumSizeHint();
            const bool small = control->width() < wanted.width() || control->height() < wanted.height();
            if (control->isVisible() && shows_a_caption(*control) && small)
                names << control->objectName();
        }
    });
    return names;
}

}  // namespace verdane::testing
