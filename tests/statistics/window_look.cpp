#include "window_look.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "DataEnvironment1.h"
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

QStringList open_recordsets()
{
    QStringList names;
    for (Recordset& recordset : data_environment().recordsets()) {
        if (recordset.is_open())
            names << recordset.name();
    }
    return names;
}

void both_languages()
{
    QTest::addColumn<bool>("french");
    QTest::newRow("French") << true;
    QTest::newRow("English") << false;
}

}  // namespace verdane::testing
