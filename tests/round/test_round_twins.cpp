#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "f_new_round.h"
#include "look.h"
#include "round_windows.h"

using namespace verdane;
using namespace verdane::testing;

namespace {

/// Name and kind of every control, and whether it is in sight.
QStringList controls_of(const QWidget& window)
{
    QStringList lines;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        if (!control->objectName().isEmpty() && !control->objectName().startsWith(u"qt_"))
            lines << QStringLiteral("%1 %2 %3")
                         .arg(control->objectName(), QLatin1String(control->metaObject()->className()))
                         .arg(control->isVisibleTo(&window));
    }
    lines.sort();
    return lines;
}

int words_wide(const QWidget& control)
{
    if (auto* box = qobject_cast<const QLineEdit*>(&control))
        return box->fontMetrics().horizontalAdvance(box->text()) + rhythm;
    if (auto* group = qobject_cast<const QGroupBox*>(&control))
        return group->fontMetrics().horizontalAdvance(group->title()) + rhythm;
    return control.sizeHint().width();
}

/// Labels, buttons and boxes that show less than they say.
QStringList clipped_in(const QWidget& window)
{
    QStringList clipped;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        const bool speaks =
            qobject_cast<const QLabel*>(control) || qobject_cast<const QPushButton*>(control) ||
            qobject_cast<const QGroupBox*>(control) || qobject_cast<const QLineEdit*>(control);
        if (speaks && control->isVisible() && control->width() < words_wide(*control))
            clipped << QStringLiteral("%1: %2 of %3")
                           .arg(control->objectName())
                           .arg(control->width())
                           .arg(words_wide(*control));
        if (speaks && control->isVisible() &&
            !window.rect().contains(QRect(control->mapTo(&window, QPoint()), control->size())))
            clipped << control->objectName() + u" stands out of the window";
    }
    return clipped;
}

QStringList controls_in(bool french)
{
    const round_store store(french);
    store.add_two_courses();
    QStringList controls;
    in_keyed_round([&](hand& user) {
        with_round(user, [&](f_new_round& window) { controls = controls_of(window); });
        discard(user);
    });
    return controls;
}

void keep_picture(hand& user, const QString& window, const QString& name)
{
    const QString folder = qEnvironmentVariable("VERDANE_PICTURES");
    if (!folder.isEmpty())
        user.picture(window).save(QStringLiteral("%1/%2.png").arg(folder, name));
}

}  // namespace

class test_round_twins : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { apply_look(*qApp); }

    void the_twins_have_the_same_controls()
    {
        const QStringList french = controls_in(true);
        QVERIFY(french.size() > 60);
        QCOMPARE(controls_in(false), french);
    }

    void nothing_is_clipped_data()
    {
        QTest::addColumn<bool>("french");
        QTest::newRow("French") << true;
        QTest::newRow("English") << false;
    }

    void nothing_is_clipped()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add({QStringLiteral("CLUB DES PINS-0"), QStringLiteral("Club des Pins du Grand Lac")});
        store.add({QStringLiteral("CLUB DES PINS-6"), QStringLiteral("Club des Pins du Grand Lac")});
        store.add_partner(QStringLiteral("Tremblay"), QStringLiteral("Marie-Josée"), 17);
        store.add_partner(QStringLiteral("Gagnon"), QStringLiteral("Luc"), 23);
        const QString twin = french ? QStringLiteral("fr") : QStringLiteral("en");
        in_new_round([&](hand& user) {
            user.wait_for_window(QStringLiteral("f_get_date"));
            keep_picture(user, QStringLiteral("f_get_date"), u"f_get_date_" + twin);
            tee_off(user, QStringLiteral("9"), QStringLiteral("5"), QString());
            user.wait_for_window(round_window());
            user.type(QStringLiteral("11210000100"));
            user.choose(QStringLiteral("conditions"), 1);
            user.click_row(QStringLiteral("pList"), 1);
            keep_picture(user, round_window(), u"f_new_round_" + twin);
            user.click_tab(QStringLiteral("TabStrip1"), 18);
            user.type(QStringLiteral("112"));
            keep_picture(user, round_window(), u"f_new_round_18_" + twin);
            with_round(user,
                       [](f_new_round& window) { QCOMPARE(clipped_in(window).join(u'\n'), QString()); });
            discard(user);
        });
    }
};

QTEST_MAIN(test_round_twins)

#include "test_round_twins.moc"
