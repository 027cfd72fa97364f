#include <QLineEdit>
#include <QTest>

#include "round/f_new_round.h"
#include "tests/round/round_windows.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// The contents of the panel: "box=text" for every box that is not blank, in the order of the boxes.
QString panel(hand& user)
{
    QStringList cells;
    with_round(user, [&](f_new_round& window) {
        for (int box = 12; box <= 35; ++box) {
            const QString text = find_control<QLineEdit>(window, u"text_%1"_s.arg(box)).text();
            if (text != u" ")
                cells << u"%1=%2"_s.arg(box).arg(text);
        }
    });
    return cells.join(u' ');
}

void totals_are(hand& user, const QString& brut, const QString& hand_icap, const QString& net,
                const QString& plus)
{
    user.same(user.text(u"l_brut"_s), brut, u"gross"_s);
    user.same(user.text(u"l_hand"_s), hand_icap, u"handicap"_s);
    user.same(user.text(u"l_net"_s), net, u"net"_s);
    user.same(user.text(u"l_plus"_s), plus, u"over par"_s);
}

/// Adds a round whose first 17 holes have that many long shots each.
void add_round_of(const round_store& store, int strokes)
{
    store.add_round(key_of_keyed_round());
    for (int hole = 1; hole <= 17; ++hole)
        store.store.write(u"update games set long_%1 = %2"_s.arg(hole).arg(strokes));
}

}  // namespace

class test_round_panel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_panel_shows_the_classes_of_the_hole_on_screen_data()
    {
        QTest::addColumn<QString>("par");
        QTest::addColumn<QString>("strokes");
        QTest::addColumn<QString>("water");
        QTest::addColumn<QString>("cells");
        QTest::newRow("not played") << "4"
                                    << "000"
                                    << "0"
                                    << "";
        QTest::newRow("green in regulation") << "4"
                                             << "112"
                                             << "0"
                                             << "17=1 19=1 20=1 29=4 32=1";
        QTest::newRow("a drive to the green is none") << "4"
                                                      << "102"
                                                      << "0"
                                                      << "13=1 15=1 24=1 29=3";
        QTest::newRow("a penalty counts against regulation") << "4"
                                                             << "200"
                                                             << "1"
                                                             << "15=1 22=1 24=1 29=3";
        QTest::newRow("hole in one") << "3"
                                     << "100"
                                     << "0"
                                     << "19=1 22=1 25=1 27=1 30=1";
        QTest::newRow("up and down on a par 5") << "5"
                                                << "311"
                                                << "0"
                                                << "14=1 15=1 20=1 23=1 28=5 31=1";
        QTest::newRow("one putt for the par") << "4"
                                              << "211"
                                              << "0"
                                              << "14=1 15=1 20=1 23=1 29=4 32=1";
        QTest::newRow("water on the way") << "4"
                                          << "110"
                                          << "1"
                                          << "15=1 22=1 24=1 29=3";
        QTest::newRow("three putts, double") << "4"
                                             << "213"
                                             << "0"
                                             << "12=1 15=1 29=6 34=1";
        QTest::newRow("three putts in regulation") << "4"
                                                   << "113"
                                                   << "0"
                                                   << "16=1 19=1 29=5 35=1";
        QTest::newRow("triple") << "3"
                                << "222"
                                << "0"
                                << "13=1 15=1 30=6 33=1";
        QTest::newRow("par 3") << "3"
                               << "102"
                               << "0"
                               << "17=1 19=1 20=1 21=1 30=3";
        QTest::newRow("an albatross on a par 4 in one") << "4"
                                                        << "100"
                                                        << "0"
                                                        << "15=1 22=1 26=1 27=1 29=1";
        QTest::newRow("nothing played on a par 2") << "2"
                                                   << "000"
                                                   << "0"
                                                   << "19=1 21=";
        QTest::newRow("nothing played on a par 0") << "0"
                                                   << "000"
                                                   << "0"
                                                   << "20=1 21=";
        QTest::newRow("one shot on a par 0") << "0"
                                             << "100"
                                             << "0"
                                             << "15=1 21= 22=1 27=1 35=1";
        QTest::newRow("two shots on a par 0") << "0"
                                              << "101"
                                              << "0"
                                              << "14=1 15=1 21= 34=1";
        QTest::newRow("four shots and a penalty on a par 0") << "0"
                                                             << "112"
                                                             << "1"
                                                             << "13=1 15=1 21= 33=1";
    }

    void the_panel_shows_the_classes_of_the_hole_on_screen()
    {
        QFETCH(QString, par);
        QFETCH(QString, strokes);
        QFETCH(QString, water);
        QFETCH(QString, cells);
        const round_store store;
        store.add(course_of_pars(par, u"70"_s, u"113"_s));
        in_keyed_round([&](hand& user) {
            user.type(strokes);
            user.click(u"text_s_8"_s);
            user.type(water);
            user.same(panel(user), cells, u"panel while typing"_s);
            user.click_tab(u"TabStrip1"_s, 2);
            user.click_tab(u"TabStrip1"_s, 1);
            user.same(panel(user), cells, u"panel from the rows"_s);
            discard(user);
        });
    }

    void the_totals_are_computed_after_each_stroke_on_the_last_hole()
    {
        const round_store store;
        store.add_two_courses();
        add_round_of(store, 5);
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.click_tab(u"TabStrip1"_s, 18);
            totals_are(user, u"85"_s, u"12.60"_s, u"73"_s, u"13"_s);
            user.type(u"5"_s);
            totals_are(user, u"90"_s, u"16.95"_s, u"74"_s, u"18"_s);
            discard(user);
        });
    }

    void a_penalty_is_added_to_the_totals_at_the_next_stroke()
    {
        const round_store store;
        store.add_two_courses();
        add_round_of(store, 5);
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.choose(u"cmb_holes"_s, 17);
            user.click(u"text_s_9"_s);
            user.type(u"2"_s);
            user.same(user.text(u"text_36"_s), u"2"_s, u"penalties"_s);
            user.same(user.text(u"l_brut"_s), u"85"_s, u"gross"_s);
            user.click(u"text_vrd_2"_s);
            user.type(u"1"_s);
            user.same(user.text(u"l_brut"_s), u"88"_s, u"gross"_s);
            discard(user);
        });
    }

    void a_round_under_the_rating_adds_to_the_net()
    {
        const round_store store;
        store.add(course_of_pars(u"4"_s, u"70"_s, u"113"_s));
        add_round_of(store, 3);
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.click_tab(u"TabStrip1"_s, 18);
            user.type(u"9"_s);
            totals_are(user, u"60"_s, u"-10"_s, u"70"_s, u"-12"_s);
            discard(user);
        });
    }

    void without_a_slope_the_differential_is_0()
    {
        const round_store store;
        store.add(course_of_pars(u"4"_s, u"70"_s, u"0"_s));
        add_round_of(store, 5);
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.click_tab(u"TabStrip1"_s, 18);
            totals_are(user, u"85"_s, u"0"_s, u"85"_s, u"13"_s);
            discard(user);
        });
    }

    void on_a_course_of_par_0_every_stroke_is_over_par()
    {
        const round_store store;
        store.add(course_of_pars(u"0"_s, u"70"_s, u"113"_s));
        add_round_of(store, 5);
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.same(user.text(u"text_38"_s), u"0"_s, u"par"_s);
            user.click_tab(u"TabStrip1"_s, 18);
            user.type(u"113"_s);
            totals_are(user, u"90"_s, u"20"_s, u"70"_s, u"90"_s);
            accept(user);
        });
        QCOMPARE(store.text(u"select long_18 || approach_18 || putt_18 from games"_s), u"113"_s);
    }

    void the_totals_are_computed_when_the_last_hole_equals_the_one_before()
    {
        const round_store store;
        store.add_two_courses();
        store.add_round(key_of_keyed_round());
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.click_tab(u"TabStrip1"_s, 17);
            user.type(u"112"_s);
            user.click(u"text_s_8"_s);
            user.type(u"1"_s);
            user.choose(u"cmb_holes"_s, 17);
            user.same(user.text(u"l_brut"_s), u"5"_s, u"gross"_s);
            discard(user);
        });
    }

    void the_totals_are_visible_on_the_last_hole_only()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            const auto in_sight = [&](bool expected) {
                user.same(user.visible(u"Frame7"_s), expected, u"totals are visible"_s);
            };
            in_sight(false);
            user.choose(u"cmb_holes"_s, 17);
            in_sight(true);
            user.choose(u"cmb_holes"_s, 16);
            in_sight(false);
            user.click_tab(u"TabStrip1"_s, 18);
            in_sight(true);
            user.click_tab(u"TabStrip1"_s, 1);
            in_sight(false);
            discard(user);
        });
    }
};

QTEST_MAIN(test_round_panel)

#include "test_round_panel.moc"
