#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include "base/language.h"
#include "controls/control_array.h"
#include "tests/reference/cost_windows.h"
#include "tests/support/entering_boxes.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString stored_amounts =
    u"select fg || ' ' || cm || ' ' || vt || ' ' || ft || ' ' || ba || ' ' || tee || ' ' || tex || ' ' || "
    "nrt || ' ' || lg || ' ' || bs || ' ' || ln || ' ' || au from cost where date = '20240614093000'"_s;

QString box_texts(hand& user)
{
    QStringList texts;
    for (int index = 0; index < 12; ++index)
        texts << user.text(u"cost_%1"_s.arg(index));
    return texts.join(u' ');
}

control_array<QLineEdit> amounts_of(const QWidget& window)
{
    control_array<QLineEdit> amounts(u"cost");
    for (int index = 0; index < 12; ++index)
        amounts.add(index, &find_control<QLineEdit>(window, u"cost_%1"_s.arg(index)));
    return amounts;
}

void leave_by_ok(hand& user)
{
    user.click(u"OKButton"_s);
}

struct key_row {
    const char* words;
    QString before;
    QString typed;
    QString after;
    int bells;
};

std::vector<key_row> key_rows()
{
    return {{"digits", u"0"_s, u"25"_s, u"25"_s, 0},
            {"four digits", u"0"_s, u"9999"_s, u"9999"_s, 0},
            {"a fifth digit", u"0"_s, u"12345"_s, u"1234"_s, 1},
            {"a minus", u"0"_s, u"-5"_s, u"5"_s, 1},
            {"a point", u"0"_s, u"1.5"_s, u"15"_s, 1},
            {"a comma and a letter", u"0"_s, u"1,a2"_s, u"12"_s, 2},
            {"a blank", u"0"_s, u"7 "_s, u"7"_s, 1},
            {"a digit of another script", u"0"_s, u"٣4"_s, u"4"_s, 1},
            {"a full box refuses though all is selected", u"1234"_s, u"5"_s, u"1234"_s, 1}};
}

}  // namespace

class test_f_cost : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_boxes_show_the_row_and_its_total_data() { both_languages(); }
    void the_boxes_show_the_row_and_its_total()
    {
        QFETCH(bool, french);
        cost_store store(french);
        in_costs(store, [](hand& user) {
            user.same(user.title(cost_window()), in_language(u"Coûts", u"Costs"), u"title"_s);
            user.same(box_texts(user), u"1 2 3 4 5 6 7 8 9 10 11 12"_s, u"boxes"_s);
            user.same(user.text(u"Text1"_s), u"78"_s, u"total"_s);
            user.same(user.text(u"OKButton"_s), u"OK"_s, u"button"_s);
            user.same(user.text(u"Label2"_s),
                      in_language(u"Arrondir à l'unité près.", u"To be rounded without decimals."),
                      u"notice"_s);
            user.close_window(cost_window());
        });
    }

    void every_amount_has_its_label_and_its_mark_data() { both_languages(); }
    void every_amount_has_its_label_and_its_mark()
    {
        QFETCH(bool, french);
        const QStringList labels =
            (french
                 ? u"Frais de jeu :|Chariot Manuel :|Voiturette :|Frais de transport :|Balles :|Tee :|"
                   "Terrain d'exercice :|Nourriture :|Leçon de golf :|Bâtons et sac :|Vêtements:|Autres :"_s
                 : u"Green Fees :|Hand Cart :|Golf Cart :|Transportation costs :|Balls :|Tees :|"
                   "Practice Range :|Food :|Golf Lessons :|Golf Clubs and Bag :|Clothes :|Other :"_s)
                .split(u'|');
        cost_store store(french);
        in_costs(store, [&](hand& user) {
            for (int index = 0; index < 12; ++index) {
                user.same(user.text(u"lbl_cost_%1"_s.arg(index)), labels[index], u"label"_s);
                user.same(user.text(u"lbl_mark_%1"_s.arg(index)), u"$"_s, u"mark"_s);
            }
            user.same(user.text(u"lbl_total"_s), u"Total :"_s, u"label"_s);
            user.close_window(cost_window());
        });
    }

    void the_first_box_has_the_focus_and_is_selected()
    {
        cost_store store(true, u"1234,0,0,0,0,0,0,0,0,0,0,0"_s);
        in_costs(store, [](hand& user) {
            user.same(user.focus(), u"cost_0"_s, u"focus"_s);
            user.wait_until(u"the selection"_s, [] {
                return qobject_cast<QLineEdit*>(QApplication::focusWidget())->selectedText() == u"1234";
            });
            user.close_window(cost_window());
        });
    }

    void entering_a_box_selects_its_first_four_characters()
    {
        cost_store store(true, u"0,12345,0,0,0,0,0,0,0,0,0,0"_s);
        in_costs(store, [](hand& user) {
            user.key(Qt::Key_Tab);
            user.same(user.focus(), u"cost_1"_s, u"focus"_s);
            user.same(user.selected_text(u"cost_1"_s), u"1234"_s, u"selection"_s);
            user.close_window(cost_window());
        });
    }

    void a_digit_replaces_the_amount_as_soon_as_a_box_has_the_focus_data() { focus_reasons(); }
    void a_digit_replaces_the_amount_as_soon_as_a_box_has_the_focus()
    {
        QFETCH(Qt::FocusReason, reason);
        cost_store store;
        in_costs(store, [reason](hand& user) {
            user.look([reason] {
                QCOMPARE(boxes_that_replace_their_text(amounts_of(*open_form(u"f_cost")), reason), 12);
            });
            user.close_window(cost_window());
        });
    }

    void Tab_visits_the_amounts_and_then_OK()
    {
        cost_store store;
        in_costs(store, [](hand& user) {
            for (int index = 1; index < 12; ++index) {
                user.key(Qt::Key_Tab);
                user.same(user.focus(), u"cost_%1"_s.arg(index), u"focus"_s);
            }
            user.key(Qt::Key_Tab);
            user.same(user.focus(), u"OKButton"_s, u"focus"_s);
            user.key(Qt::Key_Return);
        });
        QCOMPARE(store.totals, QStringList{u"78"_s});
    }

    void a_box_takes_up_to_four_digits_data()
    {
        QTest::addColumn<int>("row");
        for (int row = 0; row < static_cast<int>(key_rows().size()); ++row)
            QTest::newRow(key_rows()[static_cast<std::size_t>(row)].words) << row;
    }
    void a_box_takes_up_to_four_digits()
    {
        QFETCH(int, row);
        const key_row example = key_rows()[static_cast<std::size_t>(row)];
        cost_store store(true, u"0,"_s + example.before + u",0,0,0,0,0,0,0,0,0,0"_s);
        in_costs(store, [&](hand& user) {
            user.key(Qt::Key_Tab);
            user.wait_until(u"the selection"_s, [] {
                return !qobject_cast<QLineEdit*>(QApplication::focusWidget())->selectedText().isEmpty();
            });
            const int bells = user.bells();
            user.type(example.typed);
            user.same(user.text(u"cost_1"_s), example.after, u"box"_s);
            user.same(user.bells() - bells, example.bells, u"bells"_s);
            leave_by_ok(user);
        });
        QCOMPARE(store.totals, QStringList{example.after});
    }

    void an_emptied_box_shows_zero_at_once_and_keeps_the_focus()
    {
        cost_store store;
        in_costs(store, [](hand& user) {
            user.click(u"cost_9"_s);
            user.key(Qt::Key_End);
            user.key(Qt::Key_Backspace);
            user.same(user.text(u"cost_9"_s), u"1"_s, u"after one backspace"_s);
            user.key(Qt::Key_Backspace);
            user.same(user.text(u"cost_9"_s), u"0"_s, u"after two"_s);
            user.same(user.text(u"Text1"_s), u"68"_s, u"total"_s);
            user.same(user.focus(), u"cost_9"_s, u"focus"_s);
            user.type(u"4321"_s);
            user.same(user.text(u"cost_9"_s), u"4321"_s, u"typed over the zero"_s);
            leave_by_ok(user);
        });
        QCOMPARE(store.store.number(u"select bs from cost where date = '20240614093000'"_s), 4321);
    }

    void backspace_passes_in_a_full_box()
    {
        cost_store store(true, u"1234,0,0,0,0,0,0,0,0,0,0,0"_s);
        in_costs(store, [](hand& user) {
            user.key(Qt::Key_End);
            user.key(Qt::Key_Backspace);
            user.type(u"9"_s);
            user.same(user.text(u"cost_0"_s), u"1239"_s, u"box"_s);
            leave_by_ok(user);
        });
    }

    void a_pasted_text_must_pass_the_key_filter_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("after");
        QTest::newRow("digits") << u"250"_s << u"250"_s;
        QTest::newRow("a decimal") << u"12.5"_s << u"1"_s;
        QTest::newRow("a negative amount") << u"-3"_s << u"1"_s;
        QTest::newRow("too many digits") << u"123456"_s << u"1234"_s;
        QTest::newRow("thousands of digits") << QString(5000, u'9') << u"9999"_s;
        QTest::newRow("nothing but blanks") << u"   "_s << u"1"_s;
        QTest::newRow("accents and quotes") << u"é'\"5"_s << u"1"_s;
        QTest::newRow("digits of another script") << u"٣٤"_s << u"1"_s;
    }
    void a_pasted_text_must_pass_the_key_filter()
    {
        QFETCH(QString, pasted);
        QFETCH(QString, after);
        cost_store store;
        in_costs(store, [&](hand& user) {
            const int bells = user.bells();
            user.paste(u"cost_0"_s, pasted);
            user.same(user.text(u"cost_0"_s), after, u"box"_s);
            // The bell rings for a refused text, and not for one that is taken completely.
            if (after == u"1" || after == pasted)
                user.same(user.bells() - bells, after == u"1" ? 1 : 0, u"bells"_s);
            leave_by_ok(user);
        });
    }

    void the_total_is_computed_after_every_change()
    {
        cost_store store(true, u"32766,0,0,0,0,0,0,0,0,0,0,0"_s);
        in_costs(store, [](hand& user) {
            user.fill(u"cost_5"_s, u"1"_s);
            user.same(user.text(u"Text1"_s), u"32767"_s, u"the largest total"_s);
            user.fill(u"cost_0"_s, u"75"_s);
            user.same(user.text(u"Text1"_s), u"76"_s, u"total"_s);
            leave_by_ok(user);
        });
        QCOMPARE(store.totals, QStringList{u"76"_s});
    }

    void OK_commits_the_twelve_amounts_of_the_round_and_no_other_data() { both_languages(); }
    void OK_commits_the_twelve_amounts_of_the_round_and_no_other()
    {
        QFETCH(bool, french);
        cost_store store(french);
        in_costs(store, [](hand& user) {
            for (int index = 0; index < 12; ++index)
                user.fill(u"cost_%1"_s.arg(index), QString::number(1000 + index));
            leave_by_ok(user);
        });
        QCOMPARE(store.store.text(stored_amounts),
                 u"1000 1001 1002 1003 1004 1005 1006 1007 1008 1009 1010 1011"_s);
        QCOMPARE(store.store.number(u"select sum(fg + au) from cost where date = '20230101080000'"_s), 0);
        QCOMPARE(store.totals, QStringList{u"12066"_s});
    }

    void closing_without_OK_returns_the_typed_total_and_keeps_the_old_amounts_data()
    {
        QTest::addColumn<bool>("escape");
        QTest::newRow("the title bar") << false;
        QTest::newRow("Escape") << true;
    }
    void closing_without_OK_returns_the_typed_total_and_keeps_the_old_amounts()
    {
        QFETCH(bool, escape);
        cost_store store;
        in_costs(store, [&](hand& user) {
            user.fill(u"cost_0"_s, u"500"_s);
            if (escape)
                user.key(Qt::Key_Escape);
            else
                user.close_window(cost_window());
        });
        QCOMPARE(store.totals, QStringList{u"577"_s});
        QVERIFY(!data_environment().rscost.pending());
        in_costs(store, [](hand& user) {
            user.same(user.text(u"cost_0"_s), u"1"_s, u"reopened"_s);
            user.same(user.text(u"Text1"_s), u"78"_s, u"total"_s);
            leave_by_ok(user);
        });
        QCOMPARE(store.totals.last(), u"78"_s);
        QCOMPARE(store.store.text(stored_amounts), u"1 2 3 4 5 6 7 8 9 10 11 12"_s);
    }

    void amounts_that_cannot_be_typed_are_shown_and_kept()
    {
        const QString strange = u"-25,12345,0,0,0,0,0,0,0,0,0,1"_s;
        cost_store store(true, strange);
        in_costs(store, [](hand& user) {
            user.same(user.text(u"cost_0"_s) + u' ' + user.text(u"cost_1"_s), u"-25 12345"_s, u"boxes"_s);
            user.same(user.text(u"Text1"_s), u"12321"_s, u"total"_s);
            user.fill(u"cost_2"_s, u"4"_s);
            leave_by_ok(user);
        });
        QCOMPARE(store.totals, QStringList{u"12325"_s});
        QCOMPARE(store.store.text(stored_amounts), u"-25 12345 4 0 0 0 0 0 0 0 0 1"_s);
    }

    void a_box_emptied_by_cutting_shows_zero()
    {
        cost_store store;
        in_costs(store, [](hand& user) {
            user.click(u"cost_11"_s);
            user.key(Qt::Key_A, Qt::ControlModifier);
            user.key(Qt::Key_X, Qt::ControlModifier);
            user.same(user.text(u"cost_11"_s), u"0"_s, u"box"_s);
            user.same(user.text(u"Text1"_s), u"66"_s, u"total"_s);
            leave_by_ok(user);
        });
        QCOMPARE(store.store.number(u"select au from cost where date = '20240614093000'"_s), 0);
    }

    void a_row_without_values_reads_as_zeros()
    {
        cost_store store(true, u"null,null,null,null,null,null,null,null,null,null,null,null"_s);
        in_costs(store, [](hand& user) {
            user.same(box_texts(user), u"0 0 0 0 0 0 0 0 0 0 0 0"_s, u"boxes"_s);
            leave_by_ok(user);
        });
        QCOMPARE(store.totals, QStringList{u"0"_s});
    }
};

QTEST_MAIN(test_f_cost)
#include "test_f_cost.moc"
