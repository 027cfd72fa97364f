#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <QWidget>

#include <set>

#include "shell/start_up.h"
#include "tests/support/hand_widgets.h"
#include "tests/windows/every_window.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// The roles that a screen reader announces by a name. Cells and lines of a list are announced by their text,
/// and the other roles only group these.
const std::set<QAccessible::Role> roles_with_a_name{
    QAccessible::Window,    QAccessible::Dialog,      QAccessible::PushButton,   QAccessible::ButtonMenu,
    QAccessible::CheckBox,  QAccessible::ComboBox,    QAccessible::EditableText, QAccessible::SpinBox,
    QAccessible::List,      QAccessible::Table,       QAccessible::Tree,         QAccessible::PageTab,
    QAccessible::MenuItem,  QAccessible::PageTabList, QAccessible::ProgressBar,  QAccessible::Grouping,
    QAccessible::StaticText};

/// The visible parts of a window in the order of a screen reader.
void collect(QAccessibleInterface* part, QList<QAccessibleInterface*>& parts)
{
    if (!part || !part->isValid() || part->state().invisible)
        return;
    parts << part;
    for (int index = 0; index < part->childCount(); ++index)
        collect(part->child(index), parts);
}

QList<QAccessibleInterface*> parts_of(QWidget& window)
{
    QList<QAccessibleInterface*> parts;
    collect(QAccessible::queryAccessibleInterface(&window), parts);
    return parts;
}

QString described(QAccessibleInterface& part)
{
    const QObject* object = part.object();
    return u"%1 (role %2)"_s
        .arg(object ? object->objectName() + u' ' + QString::fromLatin1(object->metaObject()->className())
                    : u"a part"_s)
        .arg(static_cast<int>(part.role()));
}

QStringList unnamed_parts(QWidget& window)
{
    QStringList unnamed;
    for (QAccessibleInterface* part : parts_of(window)) {
        const bool figure_without_value =
            part->role() == QAccessible::StaticText && qobject_cast<QWidget*>(part->object());
        if (roles_with_a_name.count(part->role()) && !figure_without_value &&
            part->text(QAccessible::Name).trimmed().isEmpty())
            unnamed << described(*part);
    }
    return unnamed;
}

struct accessible_name {
    QString control;
    QString french;
    QString english;
};

/// Names that the toolkit would omit, or take from the value of the control.
const QHash<QString, QList<accessible_name>>& names()
{
    static const QHash<QString, QList<accessible_name>> all{
        {u"MainForm"_s, {{u"B1"_s, u"Ajouter une ronde"_s, u"New Round"_s}}},
        {u"f_new_round"_s,
         {{u"cmb_courses"_s, u"Terrain"_s, u"Golf Course"_s},
          {u"conditions"_s, u"Conditions atmosphériques"_s, u"Weather Conditions"_s},
          {u"cmb_holes"_s, u"Trou"_s, u"Hole"_s},
          {u"pList"_s, u"Partenaires"_s, u"Partners"_s},
          {u"UpDown1"_s, u"Temp."_s, u"Temp."_s},
          {u"Text1"_s, u"Temp."_s, u"Temp."_s},
          {u"text_7"_s, u"Coûts"_s, u"Costs"_s},
          {u"text_38"_s, u"Normale"_s, u"Par"_s}}},
        {u"f_new_round shot by shot"_s, {{u"details"_s, u"Coups"_s, u"Shots"_s}}},
        {u"f_get_date"_s,
         {{u"Text1"_s, u"Heures"_s, u"Hours"_s},
          {u"qt_calendar_prevmonth"_s, u"Mois précédent"_s, u"Previous month"_s},
          {u"qt_calendar_calendarview"_s, u"Jours"_s, u"Days"_s}}},
        {u"f_date_range for rounds"_s, {{u"pList"_s, u"Partenaire"_s, u"Partners"_s}}},
        {u"f_sticks with filters"_s,
         {{u"sn_0"_s, u"Nom du bâton 1"_s, u"Club name 1"_s},
          {u"Text1_13"_s, u"Moyenne du bâton 14"_s, u"Club average 14"_s},
          {u"List1"_s, u"De..."_s, u"From..."_s},
          {u"List2"_s, u"À..."_s, u"To..."_s},
          {u"conditions"_s, u"Conditions atmosphériques"_s, u"Weather Conditions"_s},
          {u"pList"_s, u"Partenaire"_s, u"Partners"_s},
          {u"cmb_courses"_s, u"Terrain"_s, u"Golf Course"_s}}},
        {u"f_courses page 1"_s, {{u"departure"_s, u"Départ"_s, u"Teeing Area"_s}}},
    };
    return all;
}

QStringList wrong_names(QWidget& window, const QString& view, bool french)
{
    QStringList wrong;
    for (const accessible_name& expected : names().value(view)) {
        auto* control = window.findChild<QWidget*>(expected.control);
        const QString name = control ? QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name)
                                     : u"no such control"_s;
        if (name != (french ? expected.french : expected.english))
            wrong << expected.control + u" is named \"" + name + u'"';
    }
    return wrong;
}

QStringList faults_of(QWidget& window, const QString& view, bool french)
{
    QStringList faults = unnamed_parts(window) << wrong_names(window, view, french);
    const QAccessible::Role role = QAccessible::queryAccessibleInterface(&window)->role();
    if (role != QAccessible::Window && role != QAccessible::Dialog)
        faults << u"the window has the role %1"_s.arg(static_cast<int>(role));
    return faults;
}

/// The statistics of the round window: read-only boxes, each with a name and a value.
QStringList faults_of_statistics(const QWidget& window)
{
    constexpr int classes_of_a_hole = 24;
    QStringList faults;
    int figures = 0;
    for (QAccessibleInterface* part : parts_of(*window.findChild<QWidget*>(u"Frame1"_s))) {
        if (part->role() != QAccessible::EditableText)
            continue;
        ++figures;
        if (part->text(QAccessible::Name).isEmpty() || part->text(QAccessible::Value).isEmpty() ||
            !part->state().readOnly)
            faults << described(*part);
    }
    if (figures != classes_of_a_hole)
        faults << u"%1 figures"_s.arg(figures);
    return faults;
}

bool shows_statistics(const program_window& window)
{
    return window.view == u"f_new_round"_s;
}

}  // namespace

class test_window_names : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        prepare_application(*qApp);
        for (const bool french : {true, false})
            visit_every_window(french, [&](hand& user, const program_window& window) {
                user.look([&] {
                    QWidget& seen = *visible_window(window.name(french));
                    faults_.add(window, french, faults_of(seen, window.view, french));
                    if (shows_statistics(window))
                        faults_of_statistics_.add(window, french, faults_of_statistics(seen));
                });
            });
    }

    void every_control_has_a_name_in_its_language_data() { every_window_in_both_languages(); }
    void every_control_has_a_name_in_its_language() { faults_.verify_nothing_found(); }

    void the_figures_of_the_statistics_have_a_name_and_a_value_data()
    {
        every_window_in_both_languages(shows_statistics);
    }
    void the_figures_of_the_statistics_have_a_name_and_a_value()
    {
        faults_of_statistics_.verify_nothing_found();
    }

private:
    window_findings faults_;
    window_findings faults_of_statistics_;
};

QTEST_MAIN(test_window_names)
#include "test_window_names.moc"
