#include <QLineEdit>
#include <QTest>

#include "round/f_new_round.h"
#include "tests/round/round_windows.h"
#include "tests/support/entering_boxes.h"

using namespace verdane;
using namespace verdane::testing;

namespace {

const QStringList order{
    QStringLiteral("text_vrd_0"), QStringLiteral("text_vrd_1"), QStringLiteral("text_vrd_2"),
    QStringLiteral("text_p_3"),   QStringLiteral("text_p_4"),   QStringLiteral("text_p_5"),
    QStringLiteral("text_p_6"),   QStringLiteral("text_s_8"),   QStringLiteral("text_s_9"),
    QStringLiteral("text_s_10"),  QStringLiteral("text_s_11"),  QStringLiteral("Command1_4")};

void same_text(hand& user, const QString& box, const QString& expected)
{
    user.same(user.text(box), expected, box);
}

}  // namespace

class test_quick_entry : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eleven_keys_tell_a_hole_and_Enter_stores_it()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.type(QStringLiteral("12345678910"));
            user.same(user.focus(), QStringLiteral("Command1_4"), QStringLiteral("focus"));
            user.same(boxes(user), QStringLiteral("1 2 3 4 5 6 7 8 9 1 0"), QStringLiteral("boxes"));
            user.key(Qt::Key_Return);
            user.wait_until_gone(round_window());
        });
        QCOMPARE(store.of_round(QStringLiteral("games"),
                                QStringLiteral("long_1 || approach_1 || putt_1 || missed_1 || pen_water_1 || "
                                               "pen_lost_1 || pen_rule_1 || pen_bounds_1")),
                 QStringLiteral("12368910"));
        QCOMPARE(
            store.of_round(QStringLiteral("games2"), QStringLiteral("fairway_1 || sand_1 || recovery_1")),
            QStringLiteral("457"));
    }

    void each_digit_moves_on_to_the_next_box()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            for (qsizetype place = 0; place + 1 < order.size(); ++place) {
                user.same(user.focus(), order.at(place), QStringLiteral("focus before the digit"));
                user.same(user.selected_text(order.at(place)), user.text(order.at(place)),
                          QStringLiteral("what a digit replaces"));
                user.type(QStringLiteral("1"));
                same_text(user, order.at(place), QStringLiteral("1"));
            }
            user.same(user.focus(), order.back(), QStringLiteral("focus at the end"));
            discard(user);
        });
    }

    void a_digit_replaces_the_figure_after_a_click_too()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            for (const char* digit : {"3", "4"}) {
                user.click(QStringLiteral("text_p_3"));
                user.click(QStringLiteral("text_p_3"));
                user.type(QString::fromLatin1(digit));
                same_text(user, QStringLiteral("text_p_3"), QString::fromLatin1(digit));
            }
            discard(user);
        });
    }

    void a_digit_replaces_the_figure_in_the_moment_a_box_gains_the_focus_data() { ways_into_a_box(); }
    void a_digit_replaces_the_figure_in_the_moment_a_box_gains_the_focus()
    {
        QFETCH(Qt::FocusReason, reason);
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            with_round(user, [&](f_new_round& window) {
                QCOMPARE(boxes_that_replace_their_text(window.text_vrd, reason), 3);
                QCOMPARE(boxes_that_replace_their_text(window.text_p, reason), 4);
                QCOMPARE(boxes_that_replace_their_text(window.text_s, reason), 4);
            });
            discard(user);
        });
    }

    void the_Tab_key_walks_the_same_boxes()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            for (const QString& box : order.first(order.size() - 1)) {
                user.same(user.focus(), box, QStringLiteral("focus"));
                user.key(Qt::Key_Tab);
            }
            user.same(user.focus(), QStringLiteral("cmb_courses"), QStringLiteral("focus"));
            discard(user);
        });
    }

    void what_is_no_digit_rings_and_changes_nothing_data()
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

    void what_is_no_digit_rings_and_changes_nothing()
    {
        QFETCH(QString, box);
        QFETCH(QString, key);
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            user.click(box);
            const int bells = user.bells();
            user.type(key);
            user.same(user.bells(), bells + 1, QStringLiteral("bells"));
            same_text(user, box, QStringLiteral("0"));
            user.same(user.focus(), box, QStringLiteral("focus"));
            discard(user);
        });
    }

    void a_pasted_text_must_be_digits()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            const int bells = user.bells();
            user.paste(QStringLiteral("text_vrd_0"), QStringLiteral("3a"));
            same_text(user, QStringLiteral("text_vrd_0"), QStringLiteral("0"));
            user.check(user.bells() > bells, QStringLiteral("the bell rings"));
            user.paste(QStringLiteral("text_vrd_0"), QStringLiteral("12"));
            same_text(user, QStringLiteral("text_vrd_0"), QStringLiteral("12"));
            same_text(user, QStringLiteral("text_vrd_3"), QStringLiteral("12"));
            discard(user);
        });
    }

    void an_emptied_box_counts_as_nothing()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.type(QStringLiteral("412"));
            user.click(QStringLiteral("text_vrd_0"));
            const int bells = user.bells();
            user.key(Qt::Key_Backspace);
            user.same(user.bells(), bells, QStringLiteral("bells"));
            same_text(user, QStringLiteral("text_vrd_0"), QString());
            same_text(user, QStringLiteral("text_vrd_3"), QStringLiteral("3"));
            accept(user);
        });
        QCOMPARE(store.at(QStringLiteral("games"), 3), QStringLiteral("0"));
        QCOMPARE(store.at(QStringLiteral("games"), 4), QStringLiteral("1"));
    }

    void an_emptied_situation_box_is_stored_as_the_store_converts_it()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.click(QStringLiteral("text_p_4"));
            user.key(Qt::Key_Backspace);
            accept(user);
        });
        QCOMPARE(store.at(QStringLiteral("games2"), 3), QStringLiteral("0"));
    }

    void the_number_of_shots_leaves_the_penalties_out()
    {
        const round_store store;
        store.add({QStringLiteral("ALPHA-0"), QStringLiteral("Alpha"), QStringLiteral("70"),
                   QStringLiteral("113"), QStringLiteral("5")});
        in_keyed_round([](hand& user) {
            user.type(QStringLiteral("412"));
            same_text(user, QStringLiteral("text_vrd_3"), QStringLiteral("7"));
            same_text(user, QStringLiteral("text_28"), QStringLiteral("7"));
            user.click(QStringLiteral("text_s_8"));
            user.type(QStringLiteral("1"));
            same_text(user, QStringLiteral("text_vrd_3"), QStringLiteral("7"));
            same_text(user, QStringLiteral("text_36"), QStringLiteral("1"));
            same_text(user, QStringLiteral("text_28"), QStringLiteral("8"));
            user.type(QStringLiteral("234"));
            same_text(user, QStringLiteral("text_36"), QStringLiteral("10"));
            discard(user);
        });
    }

    void every_change_of_a_box_is_something_to_save_data()
    {
        QTest::addColumn<QString>("box");
        QTest::newRow("strokes") << "text_vrd_1";
        QTest::newRow("situation") << "text_p_5";
        QTest::newRow("penalties") << "text_s_10";
    }

    void every_change_of_a_box_is_something_to_save()
    {
        QFETCH(QString, box);
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            with_round(user, [](f_new_round& window) { window.needSave = false; });
            user.click(box);
            user.type(QStringLiteral("1"));
            with_round(user, [](f_new_round& window) { QVERIFY(window.needSave); });
            discard(user);
        });
    }

    void a_figure_of_two_digits_set_by_the_program_is_kept_and_replaced_by_a_digit()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            with_round(user, [](f_new_round& window) { window.text_vrd(1).setText(QStringLiteral("10")); });
            same_text(user, QStringLiteral("text_vrd_3"), QStringLiteral("10"));
            user.type(QStringLiteral("12"));
            same_text(user, QStringLiteral("text_vrd_1"), QStringLiteral("2"));
            same_text(user, QStringLiteral("text_vrd_3"), QStringLiteral("3"));
            discard(user);
        });
    }
};

QTEST_MAIN(test_quick_entry)

#include "test_quick_entry.moc"
