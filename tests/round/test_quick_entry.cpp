#include <QLineEdit>
#include <QTest>

#include <map>

#include "round/f_new_round.h"
#include "tests/round/round_windows.h"
#include "tests/support/entering_boxes.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QStringList order{u"text_vrd_0"_s, u"text_vrd_1"_s, u"text_vrd_2"_s, u"text_p_3"_s,
                        u"text_p_4"_s,   u"text_p_5"_s,   u"text_p_6"_s,   u"text_s_8"_s,
                        u"text_s_9"_s,   u"text_s_10"_s,  u"text_s_11"_s,  u"Command1_4"_s};

void same_text(hand& user, const QString& box, const QString& expected)
{
    user.same(user.text(box), expected, box);
}

struct box_list {
    std::map<int, QLineEdit*> boxes;
    const std::map<int, QLineEdit*>& members() const { return boxes; }
};

box_list eleven_boxes(const QWidget& window)
{
    box_list list;
    for (int place = 0; place < 11; ++place)
        list.boxes[place] = &find_control<QLineEdit>(window, order[place]);
    return list;
}

}  // namespace

class test_quick_entry : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eleven_keys_enter_a_hole_and_Enter_stores_it()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.type(u"12345678910"_s);
            user.same(user.focus(), u"Command1_4"_s, u"focus"_s);
            user.same(boxes(user), u"1 2 3 4 5 6 7 8 9 1 0"_s, u"boxes"_s);
            user.key(Qt::Key_Return);
            user.wait_until_closed(round_window());
        });
        QCOMPARE(store.of_round(u"games"_s, u"long_1 || approach_1 || putt_1 || missed_1 || pen_water_1 || "
                                            u"pen_lost_1 || pen_rule_1 || pen_bounds_1"_s),
                 u"12368910"_s);
        QCOMPARE(store.of_round(u"games2"_s, u"fairway_1 || sand_1 || recovery_1"_s), u"457"_s);
    }

    void each_digit_moves_the_focus_to_the_next_box()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            for (qsizetype place = 0; place + 1 < order.size(); ++place) {
                user.same(user.focus(), order.at(place), u"focus before the digit"_s);
                user.same(user.selected_text(order.at(place)), user.text(order.at(place)),
                          u"what a digit replaces"_s);
                user.type(u"1"_s);
                same_text(user, order.at(place), u"1"_s);
            }
            user.same(user.focus(), order.back(), u"focus at the end"_s);
            discard(user);
        });
    }

    void a_digit_replaces_the_figure_after_a_click()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            for (const char* digit : {"3", "4"}) {
                user.click(u"text_p_3"_s);
                user.click(u"text_p_3"_s);
                user.type(QString::fromLatin1(digit));
                same_text(user, u"text_p_3"_s, QString::fromLatin1(digit));
            }
            discard(user);
        });
    }

    void a_digit_replaces_the_figure_as_soon_as_a_box_has_the_focus_data() { focus_reasons(); }
    void a_digit_replaces_the_figure_as_soon_as_a_box_has_the_focus()
    {
        QFETCH(Qt::FocusReason, reason);
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            with_round(user, [&](f_new_round& window) {
                QCOMPARE(boxes_that_replace_their_text(eleven_boxes(window), reason), 11);
            });
            discard(user);
        });
    }

    void Tab_visits_the_boxes_in_the_same_order()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            for (const QString& box : order.first(order.size() - 1)) {
                user.same(user.focus(), box, u"focus"_s);
                user.key(Qt::Key_Tab);
            }
            user.same(user.focus(), u"cmb_courses"_s, u"focus"_s);
            discard(user);
        });
    }

    void a_key_that_is_no_digit_rings_the_bell_and_changes_nothing_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("key");
        QTest::newRow("a letter") << "text_vrd_1"
                                  << "a";
        QTest::newRow("a point") << "text_p_4"
                                 << ".";
        QTest::newRow("a minus") << "text_s_9"
                                 << "-";
        QTest::newRow("a blank") << "text_s_11"
                                 << " ";
        QTest::newRow("a digit of another script") << "text_vrd_0" << QString(QChar(0x0663));
    }

    void a_key_that_is_no_digit_rings_the_bell_and_changes_nothing()
    {
        QFETCH(QString, box);
        QFETCH(QString, key);
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            user.click(box);
            const int bells = user.bells();
            user.type(key);
            user.same(user.bells(), bells + 1, u"bells"_s);
            same_text(user, box, u"0"_s);
            user.same(user.focus(), box, u"focus"_s);
            discard(user);
        });
    }

    void a_pasted_text_must_consist_of_digits()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            const int bells = user.bells();
            user.paste(u"text_vrd_0"_s, u"3a"_s);
            same_text(user, u"text_vrd_0"_s, u"0"_s);
            user.check(user.bells() > bells, u"the bell rings"_s);
            user.paste(u"text_vrd_0"_s, u"12"_s);
            same_text(user, u"text_vrd_0"_s, u"12"_s);
            same_text(user, u"text_vrd_3"_s, u"12"_s);
            discard(user);
        });
    }

    void an_empty_box_counts_as_0()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.type(u"412"_s);
            user.click(u"text_vrd_0"_s);
            const int bells = user.bells();
            user.key(Qt::Key_Backspace);
            user.same(user.bells(), bells, u"bells"_s);
            same_text(user, u"text_vrd_0"_s, QString());
            same_text(user, u"text_vrd_3"_s, u"3"_s);
            accept(user);
        });
        QCOMPARE(store.at(u"games"_s, 3), u"0"_s);
        QCOMPARE(store.at(u"games"_s, 4), u"1"_s);
    }

    void an_empty_situation_box_is_stored_as_0()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.click(u"text_p_4"_s);
            user.key(Qt::Key_Backspace);
            accept(user);
        });
        QCOMPARE(store.at(u"games2"_s, 3), u"0"_s);
    }

    void the_number_of_shots_does_not_include_penalties()
    {
        const round_store store;
        store.add(course_of_pars(u"5"_s, u"70"_s, u"113"_s));
        in_keyed_round([](hand& user) {
            user.type(u"412"_s);
            same_text(user, u"text_vrd_3"_s, u"7"_s);
            same_text(user, u"text_28"_s, u"7"_s);
            user.click(u"text_s_8"_s);
            user.type(u"1"_s);
            same_text(user, u"text_vrd_3"_s, u"7"_s);
            same_text(user, u"text_36"_s, u"1"_s);
            same_text(user, u"text_28"_s, u"8"_s);
            user.type(u"234"_s);
            same_text(user, u"text_36"_s, u"10"_s);
            discard(user);
        });
    }

    void every_change_of_a_box_marks_the_round_as_changed_data()
    {
        QTest::addColumn<QString>("box");
        QTest::newRow("strokes") << "text_vrd_1";
        QTest::newRow("situation") << "text_p_5";
        QTest::newRow("penalties") << "text_s_10";
    }

    void every_change_of_a_box_marks_the_round_as_changed()
    {
        QFETCH(QString, box);
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            with_round(user, [](f_new_round& window) {
                window.save_round(true);
                QVERIFY(!window.needSave());
            });
            user.click(box);
            user.type(u"1"_s);
            with_round(user, [](f_new_round& window) { QVERIFY(window.needSave()); });
            discard(user);
        });
    }

    void a_figure_of_two_digits_set_by_the_program_is_shown_and_replaced_by_a_digit()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            with_round(user, [](f_new_round& window) {
                find_control<QLineEdit>(window, u"text_vrd_1"_s).setText(u"10"_s);
            });
            same_text(user, u"text_vrd_3"_s, u"10"_s);
            user.type(u"12"_s);
            same_text(user, u"text_vrd_1"_s, u"2"_s);
            same_text(user, u"text_vrd_3"_s, u"3"_s);
            discard(user);
        });
    }
};

QTEST_MAIN(test_quick_entry)

#include "test_quick_entry.moc"
