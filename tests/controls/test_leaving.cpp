#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "controls/box_focus.h"
#include "controls/boxes.h"
#include "controls/control_array.h"
#include "controls/events.h"
#include "controls/Form.h"
#include "tests/support/hand.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using verdane::testing::expected_box;
using verdane::testing::hand;
using verdane::testing::play;

namespace {

/// A window with a box that may be left only if its text is "1"; otherwise a message box is shown.
class careful_form : public Form {
public:
    careful_form() : Form(u"f_careful")
    {
        auto* layout = new QVBoxLayout(this);
        box = named(new QLineEdit, u"box");
        next = named(new QLineEdit, u"next");
        button = named(make_button(u"&Press"_s), u"button");
        rows = named(new QListWidget, u"rows");
        rows->addItems({u"first"_s, u"second"_s});
        for (QWidget* widget : std::initializer_list<QWidget*>{box, next, button, rows})
            layout->addWidget(widget);
        when_left(*box, [this] {
            ++asked;
            if (box->text() == u"1")
                return true;
            show_information(u"refused"_s);
            box->setText(u"0"_s);
            box->setFocus();
            box->selectAll();
            return false;
        });
        on_click(*button, [this] { ++presses; });
    }

    QLineEdit* box = nullptr;
    QLineEdit* next = nullptr;
    QPushButton* button = nullptr;
    QListWidget* rows = nullptr;
    int asked = 0;
    int presses = 0;
};

const expected_box refusal{u"refused"_s, QMessageBox::NoIcon, default_title(), QMessageBox::Ok};

}  // namespace

class test_leaving : public QObject {
    Q_OBJECT

    void in_window(careful_form& window, const std::function<void(hand&)>& script)
    {
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.wait_for_window(u"f_careful"_s);
                 user.click(u"box"_s);
                 script(user);
                 user.close_window(u"f_careful"_s);
             });
    }

private Q_SLOTS:
    void tab_leaves_a_box_that_allows_it_and_checks_once()
    {
        careful_form window;
        in_window(window, [](hand& user) {
            user.type(u"1"_s);
            user.key(Qt::Key_Tab);
            user.same(user.focus(), u"next"_s, u"focus"_s);
        });
        QCOMPARE(window.asked, 1);
    }

    void a_box_that_refuses_keeps_the_focus_on_tab()
    {
        careful_form window;
        in_window(window, [](hand& user) {
            user.type(u"7"_s);
            user.key(Qt::Key_Tab);
            user.answer(refusal);
            user.same(user.focus(), u"box"_s, u"focus"_s);
            user.same(user.text(u"box"_s), u"0"_s, u"text"_s);
        });
    }

    void a_click_on_a_button_has_no_effect_if_the_box_refuses()
    {
        careful_form window;
        in_window(window, [](hand& user) {
            user.type(u"7"_s);
            user.click(u"button"_s);
            user.answer(refusal);
            user.same(user.focus(), u"box"_s, u"focus"_s);
        });
        QCOMPARE(window.presses, 0);
    }

    void a_click_on_a_line_of_a_list_has_no_effect_if_the_box_refuses()
    {
        careful_form window;
        in_window(window, [](hand& user) {
            user.type(u"7"_s);
            user.click_row(u"rows"_s, 1);
            user.answer(refusal);
            user.same(user.focus(), u"box"_s, u"focus"_s);
        });
        QVERIFY(window.rows->selectedItems().isEmpty());
    }

    void a_box_that_refuses_a_click_keeps_its_selection()
    {
        careful_form window;
        in_window(window, [](hand& user) {
            user.type(u"7"_s);
            user.click(u"next"_s);
            user.answer(refusal);
            user.wait_for_window(u"f_careful"_s);
            user.same(user.selected_text(u"box"_s), u"0"_s, u"selection"_s);
        });
    }

    void a_shortcut_has_no_effect_if_the_box_refuses()
    {
        careful_form window;
        in_window(window, [](hand& user) {
            user.type(u"7"_s);
            user.key(Qt::Key_P, Qt::AltModifier);
            user.answer(refusal);
        });
        QCOMPARE(window.presses, 0);
    }

    void a_click_on_a_button_acts_if_the_box_may_be_left()
    {
        careful_form window;
        in_window(window, [](hand& user) {
            user.type(u"1"_s);
            user.click(u"button"_s);
        });
        QCOMPARE(window.presses, 1);
    }

    void closing_the_window_does_not_check_the_box()
    {
        careful_form window;
        in_window(window, [](hand& user) { user.type(u"7"_s); });
        QCOMPARE(window.asked, 0);
    }
};

QTEST_MAIN(test_leaving)
#include "test_leaving.moc"
