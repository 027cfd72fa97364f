#include <QFontMetrics>
#include <QListWidget>
#include <QTest>

#include "base/language.h"
#include "controls/Form.h"
#include "statistics/f_carte.h"
#include "tests/statistics/scorecard_windows.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/recording_frame.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

class test_scorecard_window : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_list_has_a_line_for_each_course_and_tee_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QStringList>("colours");
        QTest::newRow("French") << true << QStringList{u"OR"_s, u"BLANC"_s, u"Noir"_s};
        QTest::newRow("English") << false << QStringList{u"Gold"_s, u"White"_s, u"Black"_s};
    }
    void the_list_has_a_line_for_each_course_and_tee()
    {
        QFETCH(bool, french);
        QFETCH(QStringList, colours);
        const stocked_store store(french);
        in_scorecard_window([&](hand& user) {
            const QString long_name = u"Carnoustie Championship"_s.leftJustified(50) + u", "_s;
            const QStringList lines{u"Pebble Beach"_s.leftJustified(50) + u", "_s + colours[0],
                                    long_name + colours[1], long_name + colours[2]};
            user.check(user.entries(u"List1"_s) == lines, user.entries(u"List1"_s).join(u'|'));
            user.same(user.selected(u"List1"_s), 0, u"selection"_s);
        });
    }

    void the_names_of_the_tees_are_aligned()
    {
        const stocked_store store;
        f_carte window;
        const auto& list = find_control<QListWidget>(window, u"List1"_s);
        const QFontMetrics metrics(list.font());
        const auto place_of_tee = [&](int row) {
            const QString line = list.item(row)->text();
            return metrics.horizontalAdvance(line.left(line.lastIndexOf(u',')));
        };
        QCOMPARE(place_of_tee(0), place_of_tee(1));
        window.unload();
    }

    void blanks_around_a_name_and_a_code_are_ignored()
    {
        const stocked_store store;
        store.book.store.write(u"update vrd_fields set name = '  ' || name || ' ', code = code || '  '"_s);
        in_scorecard_window([](hand& user) {
            user.same(user.entries(u"List1"_s).at(1),
                      u"Carnoustie Championship"_s.leftJustified(50) + u", BLANC"_s, u"line"_s);
            print_card(user, 1);
            close_card(user);
        });
        QCOMPARE(store.card(1)[1].toInt(), 401);
    }

    void a_name_longer_than_its_column_is_shown_whole()
    {
        const stocked_store store;
        const QString name(195, u'N');
        store.book.store.write(u"update vrd_fields set name = '%1'"_s.arg(name));
        in_scorecard_window([&](hand& user) {
            user.same(user.entries(u"List1"_s).at(0), name + u", OR"_s, u"line"_s);
            print_card(user, 0);
            close_card(user);
        });
        QCOMPARE(store.card(2)[37].toString(), name);
    }

    void a_double_click_prints_the_course()
    {
        const stocked_store store;
        in_scorecard_window([&](hand& user) {
            user.double_click_row(u"List1"_s, 1);
            close_card(user);
        });
        QCOMPARE(store.card(2)[37].toString(), u"Carnoustie Championship"_s);
    }

    void both_course_tables_are_open_for_the_life_of_the_window()
    {
        const stocked_store store;
        recording_frame frame;
        in_scorecard_window([&](hand& user) {
            user.look([&] {
                const QStringList open = open_recordsets();
                QCOMPARE(open, (QStringList{u"rsvrd_fields"_s, u"rsfield_info"_s}));
                QVERIFY(frame.locked);
                QCOMPARE(current_form.data(), active_form());
            });
        });
        QVERIFY(open_recordsets().isEmpty());
        QVERIFY(!frame.locked);
    }

    void the_title_bar_and_the_close_command_close_the_window()
    {
        const stocked_store store;
        for (const bool by_title_bar : {true, false}) {
            recording_frame frame;
            play([] { f_carte().show_modal(); },
                 [&](hand& user) {
                     user.wait_for_window(scorecard_window());
                     if (by_title_bar)
                         user.close_window(scorecard_window());
                     else
                         user.look([] { current_form->closeForm(); });
                     user.wait_until_closed(scorecard_window());
                 });
            QVERIFY(open_recordsets().isEmpty());
            QVERIFY(!frame.locked);
        }
    }

    void the_save_command_does_nothing()
    {
        const stocked_store store;
        const auto before = store.book.store.rows(u"select * from r_card"_s);
        in_scorecard_window([](hand& user) {
            user.look([] { current_form->save(); });
            user.check(user.is_open(scorecard_window()), u"the window stays open"_s);
        });
        QCOMPARE(store.book.store.rows(u"select * from r_card"_s), before);
    }

    void without_a_course_ok_prints_nothing()
    {
        const store_folder store;
        in_scorecard_window([](hand& user) {
            user.check(user.entries(u"List1"_s).isEmpty(), u"no line"_s);
            user.click(u"Command1_0"_s);
            user.check(!user.is_open(preview), u"no report"_s);
        });
        QVERIFY(open_recordsets().isEmpty());
    }
};

QTEST_MAIN(test_scorecard_window)
#include "test_scorecard_window.moc"
