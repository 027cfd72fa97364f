#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointingDevice>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

#include "controls/box_focus.h"
#include "controls/keys.h"
#include "tests/support/entering_boxes.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int selected = 4;

/// A box that selects four characters when it is entered, below another one that has the focus.
struct two_boxes {
    two_boxes()
    {
        auto* lines = new QVBoxLayout(&window);
        lines->addWidget(other);
        lines->addWidget(box);
        when_entered(*box, [this] {
            ++entered;
            select_characters(*box, selected);
        });
        box->setText(u"123456"_s);
        window.resize(400, 100);
        window.show();
        window.activateWindow();
        // A box can have the focus only in the active window.
        is_active = QTest::qWaitForWindowActive(&window);
        other->setFocus();
    }

    QPoint before(int character) const
    {
        const QPoint middle = box->rect().center();
        int x = 0;
        while (x < box->width() && box->cursorPositionAt({x, middle.y()}) < character)
            ++x;
        return {x, middle.y()};
    }

    QWidget window;
    QLineEdit* other = new QLineEdit;
    QLineEdit* box = new QLineEdit;
    int entered = 0;
    bool is_active = false;
};

}  // namespace

class test_entering : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_text_is_selected_when_setFocus_returns_data() { focus_reasons(); }
    void the_text_is_selected_when_setFocus_returns()
    {
        QFETCH(Qt::FocusReason, reason);
        const two_boxes boxes;
        boxes.box->setFocus(reason);
        QCOMPARE(boxes.box->selectedText(), u"1234"_s);
        QCOMPARE(text_after_focus_and_digit(*boxes.box, reason), u"7"_s);
    }

    void a_click_selects_when_the_button_is_pressed_and_when_it_is_released()
    {
        const two_boxes boxes;
        const QPoint place = boxes.before(3);
        QTest::mousePress(boxes.box, Qt::LeftButton, Qt::NoModifier, place);
        QCOMPARE(boxes.box->selectedText(), u"1234"_s);
        QTest::mouseMove(boxes.box, place + QPoint(2, 0));
        QTest::mouseRelease(boxes.box, Qt::LeftButton, Qt::NoModifier, place + QPoint(2, 0));
        QCOMPARE(boxes.box->selectedText(), u"1234"_s);
    }

    void dragging_the_mouse_selects_the_text_between()
    {
        const two_boxes boxes;
        QTest::mousePress(boxes.box, Qt::LeftButton, Qt::NoModifier, boxes.before(2));
        QMouseEvent drag(QEvent::MouseMove, boxes.before(6), boxes.box->mapToGlobal(boxes.before(6)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(boxes.box, &drag);
        QTest::mouseRelease(boxes.box, Qt::LeftButton, Qt::NoModifier, boxes.before(6));
        QCOMPARE(boxes.box->selectedText(), u"3456"_s);
    }

    void dragging_with_the_right_button_keeps_the_selection()
    {
        const two_boxes boxes;
        QTest::mousePress(boxes.box, Qt::RightButton, Qt::NoModifier, boxes.before(2));
        QMouseEvent drag(QEvent::MouseMove, boxes.before(6), boxes.box->mapToGlobal(boxes.before(6)),
                         Qt::NoButton, Qt::RightButton, Qt::NoModifier);
        QCoreApplication::sendEvent(boxes.box, &drag);
        QTest::mouseRelease(boxes.box, Qt::RightButton, Qt::NoModifier, boxes.before(6));
        QCOMPARE(boxes.box->selectedText(), u"1234"_s);
    }

    void a_double_click_selects_the_word()
    {
        const two_boxes boxes;
        QTest::mouseDClick(boxes.box, Qt::LeftButton, Qt::NoModifier, boxes.before(2));
        QCOMPARE(boxes.box->selectedText(), u"123456"_s);
    }

    void a_touch_selects_as_a_click_does()
    {
        two_boxes boxes;
        const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
        const QPoint place = boxes.box->mapTo(&boxes.window, boxes.before(3));
        QTest::touchEvent(&boxes.window, screen.get()).press(0, place, &boxes.window);
        QTest::touchEvent(&boxes.window, screen.get()).release(0, place, &boxes.window);
        QTRY_VERIFY(boxes.box->hasFocus());
        QCOMPARE(boxes.box->selectedText(), u"1234"_s);
    }

    void a_later_click_into_the_box_sets_the_cursor()
    {
        const two_boxes boxes;
        QTest::mouseClick(boxes.box, Qt::LeftButton, Qt::NoModifier, boxes.before(2));
        const int entered = boxes.entered;
        QTest::mouseClick(boxes.box, Qt::LeftButton, Qt::NoModifier, boxes.before(5));
        QCOMPARE(boxes.entered, entered);
        QVERIFY(!boxes.box->hasSelectedText());
        QCOMPARE(boxes.box->cursorPosition(), 5);
    }

    void a_click_into_a_box_entered_by_key_sets_the_cursor()
    {
        const two_boxes boxes;
        boxes.box->setFocus(Qt::TabFocusReason);
        QTest::mouseClick(boxes.box, Qt::LeftButton, Qt::NoModifier, boxes.before(1));
        QVERIFY(!boxes.box->hasSelectedText());
        QCOMPARE(boxes.box->cursorPosition(), 1);
    }

    void the_context_menu_keeps_the_selection()
    {
        const two_boxes boxes;
        boxes.box->setFocus(Qt::TabFocusReason);
        boxes.box->setSelection(4, 2);
        QMenu menu;
        menu.addAction(u"entry"_s);
        menu.popup(boxes.window.mapToGlobal(QPoint(5, 5)));
        menu.close();
        QCOMPARE(boxes.box->selectedText(), u"56"_s);
    }
};

QTEST_MAIN(test_entering)
#include "test_entering.moc"
