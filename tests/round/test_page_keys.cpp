#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <QUrl>

#include "base/language.h"
#include "controls/guide.h"
#include "controls/TabStrip.h"
#include "records/Main_module.h"
#include "round/f_new_round.h"
#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int holes = 18;
const QString page_tabs = u"TabStrip2"_s;

/// Types and counts the keys.
class typist {
public:
    explicit typist(hand& user) : user_(user) {}
    void type(const QString& characters)
    {
        keys_ += static_cast<int>(characters.size());
        user_.type(characters);
    }
    void press(Qt::Key key)
    {
        ++keys_;
        user_.key(key);
    }
    int keys() const { return keys_; }

private:
    hand& user_;
    int keys_ = 0;
};

/// Eleven digits that differ from hole to hole.
QString digits_of(int hole)
{
    QString digits = u"12010000000"_s;
    digits[0] = QChar(u'0' + hole % 10);
    digits[10] = QChar(u'0' + hole / 10);
    return digits;
}

QString figures_of(int hole)
{
    return digits_of(hole).split(QString(), Qt::SkipEmptyParts).join(u' ');
}

void set_focus(hand& user, const QString& control)
{
    with_round(user, [&](f_new_round& window) {
        auto* found = window.findChild<QWidget*>(control);
        found->setFocus(Qt::OtherFocusReason);
        QVERIFY2(found->hasFocus() || (found->focusProxy() && found->focusProxy()->hasFocus()),
                 qUtf8Printable(control));
    });
}

int shown_hole(hand& user)
{
    return user.selected(hole_tabs) + 1;
}

/// Presses a key and holds it down, so that the keyboard repeats it.
void hold_down(hand& user, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    user.look([&] {
        for (const bool repeated : {false, true, true, true}) {
            QKeyEvent press(QEvent::KeyPress, key, modifiers, QString(), repeated);
            QCoreApplication::sendEvent(QApplication::focusWidget(), &press);
        }
    });
}

/// The displayed parameters of the round.
QString parameters(hand& user)
{
    return u"%1 %2 %3 %4"_s.arg(user.selected(u"cmb_courses"_s))
        .arg(user.selected(u"conditions"_s))
        .arg(user.selected(u"pList"_s))
        .arg(user.text(u"Text1"_s));
}

/// A store with more partners than fit into their list.
struct partner_store : golfer_store {
    partner_store()
    {
        for (int code = 1; code <= 9; ++code)
            store.add_partner(u"Ann"_s, u"Berg"_s, code);
    }
};

/// The controls that Tab visits after OK, until it is at OK again.
QStringList tab_order_from_ok(hand& user)
{
    set_focus(user, ok_button);
    QStringList visited;
    for (int step = 0; step < 60; ++step) {
        user.key(Qt::Key_Tab);
        const QString focused = user.focus();
        if (focused == ok_button)
            break;
        if (visited.isEmpty() || visited.back() != focused)
            visited << focused;
    }
    return visited;
}

const QStringList head{u"Command1_2"_s, u"TabStrip1"_s, u"cmb_holes"_s,
                       u"TabStrip2"_s,  u"b_putts"_s,   u"Command4"_s};
const QStringList foot{u"cmb_courses"_s, u"conditions"_s, u"UpDown1"_s, u"pList"_s, u"Command2"_s};
const QStringList quick_boxes{u"text_vrd_0"_s, u"text_vrd_1"_s, u"text_vrd_2"_s, u"text_p_3"_s,
                              u"text_p_4"_s,   u"text_p_5"_s,   u"text_p_6"_s,   u"text_s_8"_s,
                              u"text_s_9"_s,   u"text_s_10"_s,  u"text_s_11"_s};

}  // namespace

/// The keys that change the hole and the page from every control of the window.
class test_page_keys : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eighteen_holes_take_fewer_than_230_keys()
    {
        const golfer_store round;
        int keys = 0;
        in_keyed_round([&](hand& user) {
            typist golfer(user);
            for (int hole = 1; hole <= holes; ++hole) {
                golfer.type(digits_of(hole));
                golfer.press(hole < holes ? Qt::Key_PageDown : Qt::Key_Return);
            }
            keys = golfer.keys();
        });
        QVERIFY2(keys < 230, qPrintable(QString::number(keys)));
        for (int hole = 1; hole <= holes; ++hole)
            QCOMPARE(stored_figures(round.store, hole), figures_of(hole));
    }

    void PageDown_and_PageUp_change_the_hole_from_every_control_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<int>("page");
        for (const QString& control : head + foot + QStringList{ok_button, u"Text1"_s}) {
            QTest::addRow("%s on page 1", qPrintable(control)) << control << 1;
            QTest::addRow("%s on page 2", qPrintable(control)) << control << 2;
        }
        for (const QString& control : quick_boxes)
            QTest::addRow("%s", qPrintable(control)) << control << 1;
        for (const char* control : {"details", "CommandSuiv", "CommandSup"})
            QTest::addRow("%s", control) << control << 2;
    }
    void PageDown_and_PageUp_change_the_hole_from_every_control()
    {
        QFETCH(QString, control);
        QFETCH(int, page);
        const partner_store round;
        in_keyed_round([&](hand& user) {
            user.click_tab(page_tabs, page);
            if (page == 2)
                enter_hole(user);
            set_focus(user, control);
            const QString before = parameters(user);
            user.key(Qt::Key_PageDown);
            user.same(shown_hole(user), 2, u"hole after PageDown"_s);
            user.same(user.focus(), page == 1 ? quick_boxes.front() : details, u"focus"_s);
            if (page == 2)
                enter_shot(user, 0, 1, u"60"_s, 1);
            set_focus(user, control);
            user.key(Qt::Key_PageUp);
            user.same(shown_hole(user), 1, u"hole after PageUp"_s);
            user.same(parameters(user), before, u"parameters"_s);
            accept(user);
        });
    }

    void before_the_first_hole_and_after_the_last_the_bell_rings()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            const int bells = user.bells();
            user.key(Qt::Key_PageUp);
            user.same(shown_hole(user), 1, u"hole"_s);
            user.same(user.bells() - bells, 1, u"bells"_s);
            user.click_tab(hole_tabs, holes);
            user.key(Qt::Key_PageDown);
            user.same(shown_hole(user), holes, u"hole"_s);
            user.same(user.bells() - bells, 2, u"bells"_s);
            discard(user);
        });
    }

    void a_key_that_is_held_down_changes_one_hole_and_stores_it_once()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            const int keys = plain(Main_module::round_key_count);
            hold_down(user, Qt::Key_PageDown);
            user.same(shown_hole(user), 2, u"hole after PageDown"_s);
            hold_down(user, Qt::Key_PageUp);
            user.same(shown_hole(user), 1, u"hole after PageUp"_s);
            user.same(plain(Main_module::round_key_count) - keys, 2, u"places taken"_s);
            discard(user);
        });
    }

    void a_key_that_is_held_down_at_the_last_hole_rings_once()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.click_tab(hole_tabs, holes);
            const int bells = user.bells();
            hold_down(user, Qt::Key_PageDown);
            user.same(user.bells() - bells, 1, u"bells"_s);
            discard(user);
        });
    }

    void page_keys_do_not_change_the_round_below_another_window()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.click(u"Command2"_s);
            user.wait_for_window(in_language(u"f_cost", u"f_cost_en"));
            user.key(Qt::Key_PageDown);
            user.key(Qt::Key_2, Qt::ControlModifier);
            user.click(u"OKButton"_s);
            user.wait_for_window(round_window());
            user.same(shown_hole(user), 1, u"hole under the costs"_s);
            user.same(user.selected(page_tabs), 0, u"page under the costs"_s);
            user.key(Qt::Key_F1, Qt::ControlModifier);
            user.wait_for_window(u"message_box"_s);
            user.key(Qt::Key_PageDown);
            user.key(Qt::Key_Return);
            user.wait_for_window(round_window());
            user.same(shown_hole(user), 1, u"hole under a message box"_s);
            discard(user);
        });
    }

    void a_distance_that_is_being_typed_is_committed_before_the_hole_changes()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_shot(user, 0, 1, u"60"_s, 1);
            user.click_cell(details, 0, 3);
            user.type(u"45"_s);
            user.key(Qt::Key_PageDown);
            user.same(shown_hole(user), 2, u"hole"_s);
            open_quick_page(user);
            accept(user);
        });
        QVERIFY(stored_shots(round.store, 1).startsWith(u"1 101>45 "));
    }

    void F1_keeps_a_distance_that_is_being_typed()
    {
        const golfer_store round;
        QList<QUrl> opened;
        guide().open = [&](const QUrl& page) {
            opened << page;
            return true;
        };
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_shot(user, 0, 1, u"60"_s, 1);
            user.click_cell(details, 0, 3);
            user.type(u"4"_s);
            user.key(Qt::Key_F1);
            user.wait_until(u"the page of the guide"_s, [&] { return !opened.isEmpty(); });
            user.type(u"5"_s);
            user.key(Qt::Key_PageDown);
            user.same(shown_hole(user), 2, u"hole"_s);
            open_quick_page(user);
            accept(user);
        });
        QVERIFY(stored_shots(round.store, 1).startsWith(u"1 101>45 "));
    }

    void while_a_shot_is_incomplete_the_keys_show_its_messages_and_keep_the_hole_data() { both_languages(); }
    void while_a_shot_is_incomplete_the_keys_show_its_messages_and_keep_the_hole()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_incomplete_second_shot(user);
            user.key(Qt::Key_PageDown);
            user.answer(refusal_of_shot(u" 2"_s));
            user.answer(refusal_of_shot(u" 2"_s));
            user.wait_for_window(round_window());
            user.same(shown_hole(user), 1, u"hole"_s);
            with_round(user, [](f_new_round& window) { window.unload(); });
        });
    }

    void PageDown_in_an_open_list_does_not_change_the_hole()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.press_and_release(u"conditions"_s);
            user.wait_until(u"the open list"_s, [] { return QApplication::activePopupWidget() != nullptr; });
            for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_Return}) {
                user.look([key] {
                    QWidget* popup = QApplication::activePopupWidget();
                    QWidget* focused = popup->focusWidget();
                    QTest::keyClick(focused ? focused : popup, key);
                });
            }
            user.same(user.selected(u"conditions"_s), 3, u"weather"_s);
            user.same(shown_hole(user), 1, u"hole"_s);
            discard(user);
        });
    }

    void ctrl_f1_does_nothing_while_a_list_is_open()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.press_and_release(u"conditions"_s);
            user.wait_until(u"the open list"_s, [] { return QApplication::activePopupWidget() != nullptr; });
            user.look([] {
                QWidget* popup = QApplication::activePopupWidget();
                QWidget* focused = popup->focusWidget();
                QTest::keyClick(focused ? focused : popup, Qt::Key_F1, Qt::ControlModifier);
            });
            user.check(!user.is_open(u"message_box"_s), u"no list of shortcuts"_s);
            user.menu_key(Qt::Key_Escape);
            discard(user);
        });
    }

    void an_open_menu_gets_its_keys()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            user.open_menu(details, 0, 2);
            user.menu_key(Qt::Key_PageDown);
            user.wait_for_menu(u"mSticks"_s);
            user.choose_menu_entry(u"ms1_1"_s);
            user.same(shown_hole(user), 1, u"hole"_s);
            with_round(user, [](f_new_round& window) { window.unload(); });
        });
    }

    void Ctrl_and_a_digit_select_the_page_data()
    {
        QTest::addColumn<int>("detailed");
        QTest::addColumn<int>("quick");
        QTest::newRow("digits without Shift") << int(Qt::Key_2) << int(Qt::Key_1);
        QTest::newRow("digits with Shift") << int(Qt::Key_Eacute) << int(Qt::Key_Ampersand);
    }
    void Ctrl_and_a_digit_select_the_page()
    {
        QFETCH(int, detailed);
        QFETCH(int, quick);
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.key(detailed, Qt::ControlModifier);
            user.same(user.selected(page_tabs), 1, u"page"_s);
            user.same(user.focus(), details, u"focus"_s);
            enter_shot(user, 0, 1, u"60"_s, 1);
            user.click_cell(details, 0, 3);
            user.type(u"45"_s);
            user.key(quick, Qt::ControlModifier);
            user.same(user.selected(page_tabs), 0, u"page"_s);
            user.same(user.focus(), quick_boxes.front(), u"focus"_s);
            user.same(user.text(quick_boxes.front()), u"1"_s, u"long shots"_s);
            accept(user);
        });
        QVERIFY(stored_shots(round.store, 1).startsWith(u"1 101>45 "));
    }

    void the_tool_tips_of_the_tabs_name_their_keys_data() { both_languages(); }
    void the_tool_tips_of_the_tabs_name_their_keys()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            with_round(user, [&](f_new_round& window) {
                const auto words = [&](const char* french_tip, const char* english_tip) {
                    return QString::fromUtf8(french ? french_tip : english_tip);
                };
                QCOMPARE(find_control<TabStrip>(window, hole_tabs).toolTip(),
                         words("Trou suivant (Page suiv.)\nTrou précédent (Page préc.)",
                               "Next hole (Page Down)\nPrevious hole (Page Up)"));
                QCOMPARE(find_control<TabStrip>(window, u"TabStrip2"_s).tabToolTip(0),
                         words("Entrée rapide (Ctrl+1)", "Quick entry (Ctrl+1)"));
                QCOMPARE(find_control<TabStrip>(window, u"TabStrip2"_s).tabToolTip(1),
                         words("Entrée détaillée (Ctrl+2)", "Detailed Entry (Ctrl+2)"));
            });
            discard(user);
        });
    }

    void Tab_visits_Cancel_after_OK_and_then_the_quick_page()
    {
        const partner_store round;
        in_keyed_round([&](hand& user) {
            user.same(tab_order_from_ok(user).join(u' '), (head + quick_boxes + foot).join(u' '), u"order"_s);
            discard(user);
        });
    }

    void Tab_visits_Cancel_after_OK_and_then_the_detailed_page()
    {
        const partner_store round;
        in_keyed_round([&](hand& user) {
            user.click_tab(hole_tabs, holes);
            open_detailed_page(user);
            const QStringList shots{details, u"CommandSuiv"_s, u"CommandSup"_s, u"b_carte"_s};
            user.same(tab_order_from_ok(user).join(u' '), (head + shots + foot).join(u' '), u"order"_s);
            open_quick_page(user);
            discard(user);
        });
    }
};

QTEST_MAIN(test_page_keys)

#include "test_page_keys.moc"
