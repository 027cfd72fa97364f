#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "controls/boxes.h"
#include "controls/control_array.h"
#include "controls/events.h"
#include "controls/Form.h"
#include "controls/leaving.h"
#include "tests/support/hand.h"

using namespace verdane;
using verdane::testing::expected_box;
using verdane::testing::hand;
using verdane::testing::play;

namespace {

/// A box that is left only while it holds "1"; a refusal says so.
class careful_form : public Form {
public:
    careful_form() : Form(u"f_careful")
    {
        auto* layout = new QVBoxLayout(this);
        box = named(new QLineEdit, u"box");
        next = named(new QLineEdit, u"next");
        button = named(make_button(QStringLiteral("&Press")), u"button");
        rows = named(new QListWidget, u"rows");
        rows->addItems({QStringLiteral("first"), QStringLiteral("second")});
        for (QWidget* widget : std::initializer_list<QWidget*>{box, next, button, rows})
            layout->addWidget(widget);
        when_left(*box, [this] {
            ++asked;
            if (box->text() == u"1")
                return true;
            tell(QStringLiteral("refused"));
            box->setText(QStringLiteral("0"));
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

const expected_box refusal{QStringLiteral("refused"), QMessageBox::NoIcon, default_title(), QMessageBox::Ok};

}  // namespace

class test_leaving : public QObject {
    Q_OBJECT

    void in_window(careful_form& window, const std::function<void(hand&)>& script)
    {
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.wait_for_window(QStringLiteral("f_careful"));
                 user.click(QStringLiteral("box"));
                 script(user);
                 user.close_window(QStringLiteral("f_careful"));
             });
    }

private Q_SLOTS:
    void an_allowed_box_is_left_by_tab_and_asked_once()
    {
        careful_form window;
        in_window(window, [](hand& user) {
            user.type(QStringLiteral("1"));
            user.key(Qt::Key_Tab);
            user.same(user.focus(), QStringLiteral("next"), QStringLiteral("focus"));
        });
        QCOMPARE(window.asked, 1);
    }

    void a_refused_box_keeps_the_focus_on_tab()
    {
        careful_form window;
        in_window(window, [](hand& user) {
            user.type(QStringLiteral("7"));
            user.key(Qt::Key_Tab);
            user.answer(refusal);
            user.same(user.focus(), QStringLiteral("box"), QStringLiteral("focus"));
            user.same(user.text(QStringLiteral("box")), QStringLiteral("0"), QStringLiteral("text"));
        });
    }

    void a_refusal_keeps_a_button_from_being_clicked()
    {
        careful_form window;
        in_window(window, [](hand& user) {
            user.type(QStringLiteral("7"));
            user.click(QStringLiteral("button"));
            user.answer(refusal);
            user.same(user.focus(), QStringLiteral("box"), QStringLiteral("focus"));
        });
        QCOMPARE(window.presses, 0);
    }

    void a_refusal_keeps_the_row_of_a_list_from_being_clicked()
    {
        careful_form window;
        in_window(window, [](hand& user) {
            user.type(QStringLiteral("7"));
            user.click_row(QStringLiteral("rows"), 1);
            user.answer(refusal);
            user.same(user.focus(), QStringLiteral("box"), QStringLiteral("focus"));
        });
        QVERIFY(window.rows->selectedItems().isEmpty());
    }

    void a_box_that_refuses_a_click_keeps_the_selection_that_the_refusal_makes()
    {
        careful_form window;
        in_window(window, [](hand& user) {
            user.type(QStringLiteral("7"));
            user.click(QStringLiteral("next"));
            user.answer(refusal);
            user.wait_for_window(QStringLiteral("f_careful"));
            user.same(user.selected_text(QStringLiteral("box")), QStringLiteral("0"),
                      QStringLiteral("selection"));
        });
    }

    void a_refusal_keeps_a_short_cut_from_pressing_a_button()
    {
        careful_form window;
        in_window(window, [](hand& user) {
            user.type(QStringLiteral("7"));
            user.key(Qt::Key_P, Qt::AltModifier);
            user.answer(refusal);
        });
        QCOMPARE(window.presses, 0);
    }

    void an_allowed_box_lets_the_click_through()
    {
        careful_form window;
        in_window(window, [](hand& user) {
            user.type(QStringLiteral("1"));
            user.click(QStringLiteral("button"));
        });
        QCOMPARE(window.presses, 1);
    }

    void closing_the_window_asks_nothing()
    {
        careful_form window;
        in_window(window, [](hand& user) { user.type(QStringLiteral("7")); });
        QCOMPARE(window.asked, 0);
    }
};

QTEST_MAIN(test_leaving)
#include "test_leaving.moc"
