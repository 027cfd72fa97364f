#include <QApplication>
#include <QLabel>
#include <QTest>

#include "base/language.h"
#include "base/program.h"
#include "records/Main_module.h"
#include "round/places_left.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// Takes places for keys of rounds until that many are left.
void leave_places(int places, bool of_different_rounds = false)
{
    Main_module::round_keys.clear();
    Main_module::round_key_count = 0;
    for (int i = 0; i < 366 - places; ++i)
        Main_module::append_round_key(u"19990101%1"_s.arg(of_different_rounds ? i : 0, 6, 10, QChar(u'0')));
}

/// The line of the warning in the open round window; null if there is none.
const QLabel* note()
{
    const auto* found = visible_window(round_window())->findChild<QLabel*>(u"places_left"_s);
    return found && found->isVisible() ? found : nullptr;
}

QString line_on_screen(hand& user)
{
    QString line;
    user.look([&line] { line = note() ? note()->text() : QString(); });
    return line;
}

QString line_of(int places)
{
    return warning_of_places(places, 1, is_french).line;
}

/// Where the visible controls of the window are, except the warning.
QStringList places_of_controls()
{
    QStringList places;
    QWidget* window = visible_window(round_window());
    for (const QWidget* control : window->findChildren<QWidget*>()) {
        if (!control->isVisible() || control->objectName() == u"places_left"_s)
            continue;
        const QPoint at = control->mapTo(window, QPoint());
        places << u"%1 %2 %3 %4 %5"_s.arg(control->objectName())
                      .arg(at.x())
                      .arg(at.y())
                      .arg(control->width())
                      .arg(control->height());
    }
    return places;
}

}  // namespace

/// The round window warns when few saves are left.
class test_places_left : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { set_interface_language(true); }

    void the_line_states_how_many_saves_are_left_data()
    {
        QTest::addColumn<int>("places");
        QTest::addColumn<QString>("french");
        QTest::addColumn<QString>("english");
        QTest::newRow("enough") << 21 << QString() << QString();
        QTest::newRow("few") << 20 << u"Encore 20 enregistrements, puis rouvrez Verdane."_s
                             << u"20 saves left, then open Verdane again."_s;
        QTest::newRow("one") << 1 << u"Encore 1 enregistrement, puis rouvrez Verdane."_s
                             << u"1 save left, then open Verdane again."_s;
        QTest::newRow("none") << 0 << u"Plus aucun enregistrement : rouvrez Verdane."_s
                              << u"No save left: open Verdane again."_s;
    }
    void the_line_states_how_many_saves_are_left()
    {
        QFETCH(int, places);
        QTEST(warning_of_places(places, 1, true).line, "french");
        QTEST(warning_of_places(places, 1, false).line, "english");
    }

    void the_explanation_says_what_is_safe_and_names_the_command_for_a_full_diary()
    {
        for (const bool french : {true, false}) {
            QVERIFY(warning_of_places(0, 1, french).explanation.contains(u"intact"));
            QVERIFY(!warning_of_places(5, 345, french).explanation.contains(u"verdane-store archive"));
            QVERIFY(warning_of_places(5, 346, french).explanation.contains(u"verdane-store archive"));
            QCOMPARE(warning_of_places(21, 300, french).explanation, QString());
        }
    }

    void the_warning_appears_when_twenty_saves_are_left_and_counts_each_save_data() { both_languages(); }
    void the_warning_appears_when_twenty_saves_are_left_and_counts_each_save()
    {
        QFETCH(bool, french);
        const round_store store;
        set_interface_language(french);
        store.add_two_courses();
        leave_places(22);
        in_keyed_round([](hand& user) {
            QStringList before;
            user.look([&before] { before = places_of_controls(); });
            user.same(line_on_screen(user), QString(), u"22 places"_s);
            user.click_tab(u"TabStrip1"_s, 2);
            user.same(line_on_screen(user), QString(), u"21 places"_s);
            user.click_tab(u"TabStrip1"_s, 1);
            user.same(line_on_screen(user), line_of(20), u"20 places"_s);
            user.same(user.focus(), u"text_vrd_0"_s, u"the focus"_s);
            QStringList after;
            user.look([&after] { after = places_of_controls(); });
            user.same(after.join(u'\n'), before.join(u'\n'), u"no control moves"_s);
            user.type(u"4"_s);
            user.click_tab(u"TabStrip1"_s, 2);
            user.same(line_on_screen(user), line_of(19), u"19 places"_s);
            user.look([] {
                QVERIFY(note()->sizeHint().width() <= note()->width());
                QVERIFY(note()->fontMetrics().height() <= note()->height());
                QCOMPARE(note()->toolTip(), warning_of_places(19, 1, is_french).explanation);
                QCOMPARE(note()->accessibleDescription(), note()->toolTip());
            });
            discard(user);
        });
    }

    void a_window_that_is_opened_with_few_places_warns_at_once()
    {
        const round_store store;
        store.add_two_courses();
        leave_places(7, true);
        in_keyed_round([](hand& user) {
            user.same(line_on_screen(user), line_of(7), u"7 places"_s);
            user.look([] { QVERIFY(note()->toolTip().contains(u"verdane-store archive")); });
            discard(user);
        });
    }

    void the_save_that_takes_the_last_place_is_followed_by_the_line_about_none()
    {
        const round_store store;
        store.add_two_courses();
        leave_places(1);
        in_keyed_round([&store](hand& user) {
            user.type(u"5"_s);
            user.click_tab(u"TabStrip1"_s, 2);
            user.same(line_on_screen(user), line_of(0), u"no place"_s);
            user.same(store.of_round(u"games"_s, u"long_1"_s), u"5"_s, u"stored"_s);
            discard(user);
        });
    }
};

QTEST_MAIN(test_places_left)
#include "test_places_left.moc"
