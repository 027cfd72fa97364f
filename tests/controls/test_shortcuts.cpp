#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "base/language.h"
#include "controls/box_focus.h"
#include "controls/control_array.h"
#include "controls/events.h"
#include "controls/Form.h"
#include "controls/shortcuts.h"
#include "tests/support/hand.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// A window with a box that may refuse to be left, a shortcut of a button and one of the window.
class trial : public Form {
public:
    trial() : Form(u"f_trial")
    {
        auto* layout = new QVBoxLayout(this);
        box = named(new QLineEdit, u"box");
        press = named(make_button(u"press"_s), u"press");
        layout->addWidget(box);
        layout->addWidget(press);
        on_click(*press, [this] { ++clicks; });
        when_left(*box, [this] {
            ++questions;
            return may_leave;
        });
        shortcuts().add(shortcut_table::next_shot, *press);
        shortcuts().add(
            shortcut_table::next_hole, [this] { ++runs; }, box);
        shortcuts().add(
            shortcut_table::previous_hole, [] {}, box);
        shortcuts().mention({Qt::Key_Return, {u"Ouvrir", u"Open"}});
    }

    QLineEdit* box;
    QPushButton* press;
    bool may_leave = true;
    int questions = 0;
    int clicks = 0;
    int runs = 0;
};

void in_trial(trial& window, const std::function<void(hand&)>& script)
{
    play([&] { window.show_modal(); },
         [&](hand& user) {
             user.wait_for_window(window.objectName());
             user.click(u"box"_s);
             script(user);
             user.close_window(window.objectName());
         });
}

expected_box list_of(trial& window)
{
    return {window.shortcuts().lines().join(u'\n'), QMessageBox::NoIcon,
            window.caption(u"Raccourcis clavier", u"Keyboard shortcuts")};
}

}  // namespace

class test_shortcuts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { is_french = true; }

    void keys_are_named_in_the_language_data()
    {
        QTest::addColumn<QKeyCombination>("keys");
        QTest::addColumn<QString>("french");
        QTest::addColumn<QString>("english");
        QTest::newRow("letter") << QKeyCombination(Qt::CTRL | Qt::Key_N) << u"Ctrl+N"_s << u"Ctrl+N"_s;
        QTest::newRow("delete") << QKeyCombination(Qt::CTRL | Qt::Key_Delete) << u"Ctrl+Suppr"_s
                                << u"Ctrl+Del"_s;
        QTest::newRow("page") << QKeyCombination(Qt::Key_PageDown) << u"Page suiv."_s << u"Page Down"_s;
        QTest::newRow("page up") << QKeyCombination(Qt::Key_PageUp) << u"Page préc."_s << u"Page Up"_s;
        QTest::newRow("escape") << QKeyCombination(Qt::Key_Escape) << u"Échap"_s << u"Esc"_s;
        QTest::newRow("enter") << QKeyCombination(Qt::Key_Return) << u"Entrée"_s << u"Enter"_s;
        QTest::newRow("plus") << QKeyCombination(Qt::CTRL | Qt::Key_Plus) << u"Ctrl++"_s << u"Ctrl++"_s;
        QTest::newRow("function key") << QKeyCombination(Qt::Key_F5) << u"F5"_s << u"F5"_s;
    }
    void keys_are_named_in_the_language()
    {
        QFETCH(QKeyCombination, keys);
        QFETCH(QString, french);
        QFETCH(QString, english);
        QCOMPARE(key_text(keys, true), french);
        QCOMPARE(key_text(keys, false), english);
    }

    void a_shortcut_acts_from_any_control()
    {
        trial window;
        in_trial(window, [&](hand& user) {
            user.key(Qt::Key_N, Qt::ControlModifier);
            user.key(Qt::Key_PageDown);
            user.look([&] { window.press->setFocus(); });
            user.key(Qt::Key_PageDown);
        });
        QCOMPARE(window.clicks, 1);
        QCOMPARE(window.runs, 2);
    }

    void a_shortcut_that_is_held_down_acts_once()
    {
        trial window;
        in_trial(window, [&](hand& user) {
            user.look([&] {
                for (const bool repeated : {false, true, true}) {
                    QVERIFY(qt_sendShortcutOverrideEvent(window.box, 0, Qt::Key_N, Qt::ControlModifier,
                                                         QString(), repeated));
                    QVERIFY(qt_sendShortcutOverrideEvent(window.box, 0, Qt::Key_PageDown, Qt::NoModifier,
                                                         QString(), repeated));
                }
            });
        });
        QCOMPARE(window.clicks, 1);
        QCOMPARE(window.runs, 1);
    }

    void the_shortcut_of_a_disabled_or_hidden_button_does_nothing()
    {
        trial window;
        in_trial(window, [&](hand& user) {
            user.look([&] { window.press->setEnabled(false); });
            user.key(Qt::Key_N, Qt::ControlModifier);
            user.look([&] {
                window.press->setEnabled(true);
                window.press->hide();
            });
            user.key(Qt::Key_N, Qt::ControlModifier);
        });
        QCOMPARE(window.clicks, 0);
    }

    void while_a_box_may_not_be_left_only_the_list_of_shortcuts_opens()
    {
        trial window;
        window.may_leave = false;
        in_trial(window, [&](hand& user) {
            user.key(Qt::Key_N, Qt::ControlModifier);
            user.key(Qt::Key_PageDown);
            user.look([&] { QCOMPARE(window.questions, 2); });
            user.key(Qt::Key_F1, Qt::ControlModifier);
            user.answer(list_of(window));
        });
        QCOMPARE(window.questions, 2);
        QCOMPARE(window.clicks + window.runs, 0);
    }

    void tool_tips_name_the_keys_data() { both_languages(); }
    void tool_tips_name_the_keys()
    {
        QFETCH(bool, french);
        is_french = french;
        const trial window;
        QCOMPARE(window.press->toolTip(), in_language(u"Coup suivant (Ctrl+N)", u"Next shot (Ctrl+N)"));
        QCOMPARE(window.box->toolTip(), in_language(u"Trou suivant (Page suiv.)\nTrou précédent (Page préc.)",
                                                    u"Next hole (Page Down)\nPrevious hole (Page Up)"));
    }

    void ctrl_f1_lists_the_shortcuts_in_the_language_of_the_window_data() { both_languages(); }
    void ctrl_f1_lists_the_shortcuts_in_the_language_of_the_window()
    {
        QFETCH(bool, french);
        is_french = french;
        trial window;
        is_french = !french;
        const QString lines = french ? u"Échap : Annuler ou fermer la fenêtre\n"
                                       "Ctrl+N : Coup suivant\n"
                                       "Page suiv. : Trou suivant\n"
                                       "Page préc. : Trou précédent\n"
                                       "Entrée : Ouvrir\n"
                                       "Alt+lettre soulignée : Choisir le menu, le bouton ou la zone\n"
                                       "F1 : Ouvrir le guide\n"
                                       "Ctrl+F1 : Montrer cette liste"_s
                                     : u"Esc: Cancel or close the window\n"
                                       "Ctrl+N: Next shot\n"
                                       "Page Down: Next hole\n"
                                       "Page Up: Previous hole\n"
                                       "Enter: Open\n"
                                       "Alt+underlined letter: Choose the menu, button or box\n"
                                       "F1: Open the guide\n"
                                       "Ctrl+F1: Show this list"_s;
        in_trial(window, [&](hand& user) {
            user.key(Qt::Key_F1, Qt::ControlModifier);
            user.answer({lines, QMessageBox::NoIcon,
                         french ? u"Raccourcis clavier"_s : u"Keyboard shortcuts"_s, QMessageBox::Ok});
            user.same(user.focus(), u"box"_s, u"focus"_s);
        });
    }

    void ctrl_f1_does_nothing_in_a_message_box()
    {
        trial window;
        in_trial(window, [&](hand& user) {
            user.key(Qt::Key_F1, Qt::ControlModifier);
            user.wait_for_window(u"message_box"_s);
            user.key(Qt::Key_F1, Qt::ControlModifier);
            user.answer(list_of(window));
            user.check(!user.is_open(u"message_box"_s), u"there was one list"_s);
        });
    }
};

QTEST_MAIN(test_shortcuts)
#include "test_shortcuts.moc"
