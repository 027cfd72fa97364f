#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include "controls/Form.h"
#include "controls/look.h"
#include "records/Main_module.h"
#include "reference/f_sticks.h"
#include "tests/reference/golf_bags.h"
#include "tests/support/recording_frame.h"
#include "tests/support/ways_to_close.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

class test_bag_window : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_bag_shows_names_and_averages_data() { both_languages(); }
    void the_bag_shows_names_and_averages()
    {
        QFETCH(bool, french);
        const filled_bag bag(french);
        in_bag([&](hand& user) {
            user.same(user.title(bag_window()), french ? u"Mes bâtons"_s : u"My Golf Clubs"_s, u"title"_s);
            user.same(user.text(u"sn_0"_s), u"D1"_s, u"first name"_s);
            user.same(user.text(u"sn_13"_s), u"PU"_s, u"last name"_s);
            user.same(user.text(u"Text1_0"_s), u"200.5"_s, u"first average"_s);
            user.same(user.text(u"Text1_1"_s), u"0"_s, u"an average of 0"_s);
            user.same(user.text(u"Text1_13"_s), u"3"_s, u"last average"_s);
            user.check(!user.visible(u"Frame1"_s), u"the filters are hidden"_s);
            user.click(u"Fer"_s);
        });
    }

    void figures_have_a_unit_and_disabled_boxes_have_labels_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QString>("words");
        QTest::newRow("French") << true << u"verges|verges|Heure :|entre |et |Température :|entre |et "_s;
        QTest::newRow("English") << false
                                 << u"yards|yards|Time :|between |and |Temperature :|between |and "_s;
    }
    void figures_have_a_unit_and_disabled_boxes_have_labels()
    {
        QFETCH(bool, french);
        QFETCH(QString, words);
        const filled_bag bag(french);
        in_bag([&](hand& user) {
            user.click(u"Command1"_s);
            QStringList seen;
            for (const char* name : {"lbl_unit_0", "lbl_unit_1", "lbl_unread_0", "lbl_Text1_14",
                                     "lbl_Text1_15", "lbl_unread_1", "lbl_Text1_16", "lbl_Text1_17"})
                seen << user.text(QString::fromLatin1(name));
            user.same(seen.join(u'|'), words, u"words"_s);
            user.click(u"Fer"_s);
        });
    }

    void the_filters_list_rounds_weathers_partners_and_courses_data() { both_languages(); }
    void the_filters_list_rounds_weathers_partners_and_courses()
    {
        QFETCH(bool, french);
        const filled_bag bag(french);
        bag.book.store.write(u"update games set long_18 = 0, approach_18 = 0, putt_18 = 0 where date = '"_s +
                             key_of_day(2) + u'\'');
        const QStringList rounds{u"2003-01-01 09:30:00 |  - PEBBLE BEACH"_s,
                                 u"2003-01-02 09:30:00 |  - PEBBLE BEACH**"_s,
                                 u"2003-01-03 09:30:00 |  - PEBBLE BEACH"_s};
        in_bag([&](hand& user) {
            user.click(u"Command1"_s);
            user.check(user.visible(u"Frame1"_s), u"the filters show"_s);
            for (const QString& list : {u"List1"_s, u"List2"_s}) {
                user.same(user.entries(list).join(u'/'), rounds.join(u'/'), list);
                user.same(user.selected(list), 0, list);
            }
            user.same(user.entries(u"conditions"_s).join(u'/'),
                      french ? u"Toutes/Ensoleillé/Ciel variable/Pluie/Vent"_s
                             : u"ALL/Sunny/Variable cloudiness/Rainy/Windy"_s,
                      u"weather"_s);
            user.same(user.entries(u"pList"_s).join(u'/'), (french ? u"Tous"_s : u"All"_s) + u"/Anne, Douze",
                      u"partners"_s);
            user.same(user.entries(u"cmb_courses"_s).join(u'/'),
                      french ? u"Tous les terrains/Pebble Beach        , OR"_s
                             : u"All courses/Pebble Beach        , GOLD"_s,
                      u"courses"_s);
            for (const QString& filter : {u"conditions"_s, u"pList"_s, u"cmb_courses"_s})
                user.same(user.selected(filter), 0, filter);
            for (int box = 14; box <= 17; ++box)
                user.check(!user.enabled(u"Text1_%1"_s.arg(box)), u"the box is disabled"_s);
            user.click(u"Fer"_s);
        });
    }

    void the_window_is_placed_and_widened_for_its_filters_data() { both_languages(); }
    void the_window_is_placed_and_widened_for_its_filters()
    {
        QFETCH(bool, french);
        const filled_bag bag(french);
        const recording_frame frame;
        in_bag([&](hand& user) {
            user.look([&] {
                user.check(frame.locked, u"the menu is locked"_s);
                user.check(current_form == active_form(), u"current_form"_s);
                QCOMPARE(active_form()->width(), pixels(7000));
                QVERIFY(!scrolls(*active_form()));
                QCOMPARE(active_form()->y(), 80 + 40 / 15);
            });
            user.click(u"Command1"_s);
            user.look([&] {
                QCOMPARE(active_form()->width(), pixels(10605));
                QVERIFY(!scrolls(*active_form()));
                QCOMPARE(active_form()->y(), 80);
            });
            user.click(u"Fer"_s);
        });
        QVERIFY(!frame.locked);
    }

    void without_rounds_a_message_box_is_shown_and_no_window_opens_data() { both_languages(); }
    void without_rounds_a_message_box_is_shown_and_no_window_opens()
    {
        QFETCH(bool, french);
        const store_folder store(french);
        const recording_frame frame;
        play(
            [] {
                f_sticks window;
                window.show_modal();
            },
            [&](hand& user) {
                user.answer({french ? u"Attention : Verdane n'a trouvé aucune ronde enregistrée"_s
                                    : u"Attention : Verdane did not find any round"_s,
                             QMessageBox::Information, u"VERDANE"_s, QMessageBox::Ok});
            });
        QVERIFY(open_recordsets().isEmpty());
        QVERIFY(!frame.locked);
    }

    void closing_in_any_way_except_OK_discards_the_changes_data()
    {
        every_way_to_close(
            ways_to_close(bag_window, {{"the cancel button", [](hand& user) { user.click(u"Fer"_s); }}}));
    }
    void closing_in_any_way_except_OK_discards_the_changes()
    {
        QFETCH(leaving, leave);
        const filled_bag bag;
        const recording_frame frame;
        in_bag([&](hand& user) {
            compute(user, 0, 2);
            user.fill(u"sn_0"_s, u"Big"_s);
            leave(user);
        });
        QVERIFY(!frame.locked);
        QCOMPARE(bag.average(1), 200.5);
        QCOMPARE(bag.shots(1), 0);
        QCOMPARE(bag.name(1), u"D1"_s);
        QCOMPARE(Main_module::club_names[0], u"D1"_s);
    }
};

QTEST_MAIN(test_bag_window)
#include "test_bag_window.moc"
