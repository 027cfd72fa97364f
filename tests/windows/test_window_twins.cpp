#include <QTest>
#include <QWidget>

#include "shell/start_up.h"
#include "tests/support/hand_widgets.h"
#include "tests/windows/control_names.h"
#include "tests/windows/every_window.h"
#include "tests/windows/window_captions.h"
#include "tests/windows/window_controls.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// The French and the English window of a family.
class test_window_twins : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        prepare_application(*qApp);
        for (const bool french : {true, false})
            visit_every_window(french, [&](hand& user, const program_window& window) {
                user.look([&] {
                    const QWidget& seen = *visible_window(window.name(french));
                    controls_.add(window, french, controls_of(seen));
                    unnamed_.add(window, french, unnamed_controls_of(seen));
                    captions_.add(window, french, captions_of(seen));
                });
            });
    }

    void the_twins_have_the_same_controls_data() { every_window_once(); }
    void the_twins_have_the_same_controls()
    {
        QFETCH(QString, view);
        QVERIFY(!controls_.of(view, true).isEmpty());
        QCOMPARE(controls_.of(view, false).join(u'\n'), controls_.of(view, true).join(u'\n'));
    }

    void each_window_has_exactly_the_listed_controls_data() { every_window_once(); }
    void each_window_has_exactly_the_listed_controls()
    {
        QFETCH(QString, view);
        QStringList names;
        for (const QString& control : controls_.of(view, true))
            names << control.section(u' ', 0, 0);
        names.sort();
        QCOMPARE(names.join(u' '), expected_controls(view.section(u' ', 0, 0)).join(u' '));
    }

    void every_control_that_takes_the_focus_has_an_object_name_data() { every_window_in_both_languages(); }
    void every_control_that_takes_the_focus_has_an_object_name() { unnamed_.verify_nothing_found(); }

    void the_captions_are_those_of_the_language_data() { every_window_in_both_languages(); }
    void the_captions_are_those_of_the_language()
    {
        QFETCH(QString, view);
        QFETCH(bool, french);
        QStringList seen = captions_.of(view, french);
        QStringList expected = expected_captions(view, french);
        seen.sort();
        expected.sort();
        QCOMPARE(seen.join(u'\n'), expected.join(u'\n'));
    }

private:
    window_findings controls_;
    window_findings unnamed_;
    window_findings captions_;
};

QTEST_MAIN(test_window_twins)
#include "test_window_twins.moc"
