#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "base/language.h"
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

/// A window that opens another one and counts its events.
class trial : public Form {
public:
    explicit trial(QStringView family) : Form(family)
    {
        auto* layout = new QVBoxLayout(this);
        opener = named(make_button(u"open"_s), u"opener");
        asker = named(make_button(u"ask"_s), u"asker");
        box = named(new QLineEdit, u"box");
        for (QWidget* widget :
             {static_cast<QWidget*>(opener), static_cast<QWidget*>(asker), static_cast<QWidget*>(box)})
            layout->addWidget(widget);
        on_click(*asker, [this] {
            ++notices;
            show_information(u"a notice"_s);
        });
        on_click(*opener, [this] {
            trial child(u"f_child");
            child.show_modal();
            child_activations = child.activations;
        });
    }

    void cancel_by_asker() { set_cancel_button(*asker); }

    QPushButton* opener = nullptr;
    int notices = 0;
    QPushButton* asker = nullptr;
    QLineEdit* box = nullptr;
    int activations = 0;
    int unloads = 0;
    int child_activations = 0;

protected:
    void activated() override { ++activations; }
    void unloading() override { ++unloads; }
};

const expected_box notice{u"a notice"_s, QMessageBox::NoIcon, default_title(), QMessageBox::Ok};

}  // namespace

class test_form : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { is_french = true; }

    void the_name_of_the_english_twin_ends_in_en()
    {
        QCOMPARE(trial(u"f_trial").objectName(), u"f_trial"_s);
        is_french = false;
        QCOMPARE(trial(u"f_trial").objectName(), u"f_trial_en"_s);
        QCOMPARE(Form(u"f_single", Form::twins::one).objectName(), u"f_single"_s);
    }

    void a_window_keeps_the_language_it_was_made_in()
    {
        trial window(u"f_trial");
        is_french = false;
        QCOMPARE(window.caption(u"oui", u"yes"), u"oui"_s);
        QCOMPARE(trial(u"f_trial").caption(u"oui", u"yes"), u"yes"_s);
    }

    void a_window_is_activated_when_shown_and_not_after_a_message_box()
    {
        trial window(u"f_trial");
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.wait_for_window(u"f_trial"_s);
                 user.click(u"asker"_s);
                 user.answer(notice);
                 user.close_window(u"f_trial"_s);
             });
        QCOMPARE(window.activations, 1);
        QCOMPARE(window.unloads, 1);
    }

    void a_double_click_on_a_button_of_long_work_acts_once()
    {
        trial window(u"f_trial");
        take_double_click_as_one(*window.asker);
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.wait_for_window(u"f_trial"_s);
                 user.double_click(u"asker"_s);
                 user.answer(notice);
                 user.wait_until_closed(u"message_box"_s);
                 user.close_window(u"f_trial"_s);
             });
        QCOMPARE(window.notices, 1);
    }

    void a_window_is_activated_again_when_another_one_is_closed()
    {
        trial window(u"f_trial");
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.wait_for_window(u"f_trial"_s);
                 user.click(u"opener"_s);
                 user.wait_for_window(u"f_child"_s);
                 user.close_window(u"f_child"_s);
                 user.wait_until_closed(u"f_child"_s);
                 user.close_window(u"f_trial"_s);
             });
        QCOMPARE(window.activations, 2);
        QCOMPARE(window.child_activations, 1);
    }

    void a_window_that_unloads_before_it_is_shown_never_shows()
    {
        trial window(u"f_trial");
        window.unload();
        window.show_modal();
        QVERIFY(!window.isVisible());
        QCOMPARE(window.activations, 0);
        QCOMPARE(window.unloads, 1);
    }

    void a_second_unload_does_nothing()
    {
        trial window(u"f_trial");
        window.unload();
        window.unload();
        QCOMPARE(window.unloads, 1);
    }

    void escape_clicks_the_cancel_button()
    {
        trial window(u"f_trial");
        window.cancel_by_asker();
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.wait_for_window(u"f_trial"_s);
                 user.key(Qt::Key_Escape);
                 user.answer(notice);
                 user.close_window(u"f_trial"_s);
             });
        QCOMPARE(window.notices, 1);
        QCOMPARE(window.unloads, 1);
    }

    void escape_clicks_the_cancel_button_only_if_the_box_may_be_left()
    {
        trial window(u"f_trial");
        window.cancel_by_asker();
        bool may_leave = false;
        when_left(*window.box, [&] { return may_leave; });
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.click(u"box"_s);
                 user.key(Qt::Key_Escape);
                 user.look([&] {
                     QCOMPARE(window.notices, 0);
                     may_leave = true;
                 });
                 user.key(Qt::Key_Escape);
                 user.answer(notice);
                 user.close_window(u"f_trial"_s);
             });
    }

    void escape_closes_a_window_without_a_cancel_button()
    {
        trial window(u"f_trial");
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.wait_for_window(u"f_trial"_s);
                 user.key(Qt::Key_Escape);
             });
        QCOMPARE(window.unloads, 1);
    }

    void enter_clicks_only_the_button_with_the_focus()
    {
        trial window(u"f_trial");
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.click(u"box"_s);
                 user.key(Qt::Key_Return);
                 user.check(!user.is_open(u"message_box"_s), u"Enter in a box clicks no button"_s);
                 user.look([&] { window.asker->setFocus(); });
                 user.key(Qt::Key_Return);
                 user.answer(notice);
                 user.close_window(u"f_trial"_s);
             });
    }

    void the_active_window_and_the_window_of_a_family_are_found()
    {
        is_french = false;
        trial window(u"f_trial");
        QCOMPARE(active_form(), nullptr);
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.wait_for_window(u"f_trial_en"_s);
                 user.look([&] {
                     QCOMPARE(active_form(), &window);
                     QCOMPARE(open_form(u"f_trial"), &window);
                     QCOMPARE(open_form(u"f_other"), nullptr);
                 });
                 user.close_window(u"f_trial_en"_s);
             });
        QCOMPARE(open_form(u"f_trial"), nullptr);
    }

    void the_current_window_is_null_after_it_is_deleted()
    {
        {
            trial window(u"f_trial");
            current_form = &window;
            QVERIFY(current_form);
        }
        QVERIFY(!current_form);
    }

    void an_index_without_a_control_is_a_failure()
    {
        control_array<QLineEdit> boxes(u"text_vrd");
        QLineEdit box;
        boxes.add(3, &box);
        QCOMPARE(box.objectName(), u"text_vrd_3"_s);
        QCOMPARE(&boxes(3), &box);
        QVERIFY_EXCEPTION_THROWN(boxes(4), run_time_failure);
    }
};

QTEST_MAIN(test_form)
#include "test_form.moc"
