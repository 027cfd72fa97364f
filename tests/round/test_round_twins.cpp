#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "controls/look.h"
#include "round/f_new_round.h"
#include "scoring/hole_classes.h"
#include "tests/round/round_windows.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// Name and kind of every control, and whether it is in sight.
QStringList controls_of(const QWidget& window)
{
    QStringList lines;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        if (!control->objectName().isEmpty() && !control->objectName().startsWith(u"qt_"))
            lines << u"%1 %2 %3"_s
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
            clipped << u"%1: %2 of %3"_s.arg(control->objectName())
                           .arg(control->width())
                           .arg(words_wide(*control));
        if (speaks && control->isVisible() &&
            !window.rect().contains(QRect(control->mapTo(&window, QPoint()), control->size())))
            clipped << control->objectName() + u" stands out of the window";
    }
    return clipped;
}

/// What labels, frames and buttons say, the figures of the round apart.
QStringList captions_of(const QWidget& window)
{
    QStringList captions;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (label->objectName().isEmpty())
            captions << label->text();
    }
    for (const QGroupBox* frame : window.findChildren<QGroupBox*>())
        captions << frame->title();
    for (const QPushButton* button : window.findChildren<QPushButton*>())
        captions << button->text();
    captions.sort();
    return captions;
}

/// The captions around the statistics, whose own stand with their classes.
const QStringList french_captions{u"Trou :"_qs,
                                  u"Normale :"_qs,
                                  u"Verges :"_qs,
                                  u"Handicap :"_qs,
                                  u"Date :"_qs,
                                  u"Heure :"_qs,
                                  u"Choisir"_qs,
                                  u"Entrée rapide"_qs,
                                  u"Long :"_qs,
                                  u"Approche :"_qs,
                                  u"Putt  :"_qs,
                                  u"Nombre de coups :"_qs,
                                  u"Situation"_qs,
                                  u"Allée :"_qs,
                                  u"Fosse de sable :"_qs,
                                  u"Coups ratés :"_qs,
                                  u"C. de redressement :"_qs,
                                  u"Pénalités"_qs,
                                  u"Pénalité eau :"_qs,
                                  u"Pénalité balle perdue :"_qs,
                                  u"Pén.  (règlement) :"_qs,
                                  u"Pénalité hors limites :"_qs,
                                  u"Total pénalités :"_qs,
                                  u"Statistiques"_qs,
                                  u"Paramètres"_qs,
                                  u"Terrain"_qs,
                                  u"Conditions atmosphériques"_qs,
                                  u"Temp. :"_qs,
                                  u"Partenaires"_qs,
                                  u"Coûts"_qs,
                                  u"Détails"_qs,
                                  u"Coups"_qs,
                                  u"Coup suivant"_qs,
                                  u"Supprimer"_qs,
                                  u"Fin - Rafraichir carte de pointage"_qs,
                                  u"Cliquer pour détailler votre ronde"_qs,
                                  u"Coups roulés"_qs,
                                  u"Brut"_qs,
                                  u"Handicap"_qs,
                                  u"Net"_qs,
                                  u"+/-"_qs,
                                  u"OK"_qs,
                                  u"Annuler"_qs};
const QStringList english_captions{u"Hole :"_qs,
                                   u"Par :"_qs,
                                   u"Yards :"_qs,
                                   u"Handicap :"_qs,
                                   u"Date :"_qs,
                                   u"Time :"_qs,
                                   u"Select"_qs,
                                   u"Quick Entry"_qs,
                                   u"Long :"_qs,
                                   u"Approach :"_qs,
                                   u"Putt  :"_qs,
                                   u"Number of Shots :"_qs,
                                   u"Position"_qs,
                                   u"Fairway Shots :"_qs,
                                   u"Sand Trap Shots :"_qs,
                                   u"Missed Shots :"_qs,
                                   u"Adjustment Shots :"_qs,
                                   u"Penalties"_qs,
                                   u"Water Hazard :"_qs,
                                   u"Lost Ball :"_qs,
                                   u"Rules :"_qs,
                                   u"Out of Bound :"_qs,
                                   u"Total :"_qs,
                                   u"Statistics"_qs,
                                   u"Parameters"_qs,
                                   u"Golf Course"_qs,
                                   u"Weather Conditions "_qs,
                                   u"Temp. :"_qs,
                                   u"Partners"_qs,
                                   u"Costs"_qs,
                                   u"Details"_qs,
                                   u"Shots"_qs,
                                   u"Next Shot"_qs,
                                   u"Remove"_qs,
                                   u"End - Refresh Scorecard"_qs,
                                   u"Cliquer pour détailler votre ronde"_qs,
                                   u"Putts"_qs,
                                   u"Brut"_qs,
                                   u"Handicap"_qs,
                                   u"Net"_qs,
                                   u"+/-"_qs,
                                   u"OK"_qs,
                                   u"Cancel"_qs};

QStringList expected_captions(bool french)
{
    QStringList captions = french ? french_captions : english_captions;
    for (const selector_row& row : panel_selectors)
        captions << row.label.in(french);
    captions.sort();
    return captions;
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
        user.picture(window).save(u"%1/%2.png"_s.arg(folder, name));
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

    void the_captions_are_those_of_the_language_data() { both_languages(); }
    void the_captions_are_those_of_the_language()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            with_round(user, [&](f_new_round& window) {
                QCOMPARE(captions_of(window).join(u'|'), expected_captions(french).join(u'|'));
                QStringList numbers;
                for (int hole = 1; hole <= 18; ++hole)
                    numbers << QString::number(hole);
                QCOMPARE(entries_of(*window.TabStrip1), numbers);
                QCOMPARE(entries_of(*window.cmb_holes), numbers);
            });
            discard(user);
        });
    }

    void nothing_is_clipped_data() { both_languages(); }

    void nothing_is_clipped()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add({u"CLUB DES PINS-0"_s, u"Club des Pins du Grand Lac"_s});
        store.add({u"CLUB DES PINS-6"_s, u"Club des Pins du Grand Lac"_s});
        store.add_partner(u"Tremblay"_s, u"Marie-Josée"_s, 17);
        store.add_partner(u"Gagnon"_s, u"Luc"_s, 23);
        const QString twin = french ? u"fr"_s : u"en"_s;
        in_new_round([&](hand& user) {
            user.wait_for_window(u"f_get_date"_s);
            keep_picture(user, u"f_get_date"_s, u"f_get_date_" + twin);
            tee_off(user, u"9"_s, u"5"_s, QString());
            user.wait_for_window(round_window());
            user.type(u"11210000100"_s);
            user.choose(u"conditions"_s, 1);
            user.click_row(u"pList"_s, 1);
            keep_picture(user, round_window(), u"f_new_round_" + twin);
            user.click_tab(u"TabStrip1"_s, 18);
            user.type(u"112"_s);
            keep_picture(user, round_window(), u"f_new_round_18_" + twin);
            with_round(user,
                       [](f_new_round& window) { QCOMPARE(clipped_in(window).join(u'\n'), QString()); });
            discard(user);
        });
    }
};

QTEST_MAIN(test_round_twins)

#include "test_round_twins.moc"
