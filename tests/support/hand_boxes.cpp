#include <QAbstractButton>
#include <QApplication>
#include <QPointer>
#include <QTest>

#include "tests/support/hand.h"
#include "tests/support/hand_thread.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

QString described(const expected_box& box)
{
    return u"title \"%1\", icon %2, buttons %3, text \"%4\""_s.arg(box.title)
        .arg(static_cast<int>(box.icon))
        .arg(static_cast<int>(box.buttons), 0, 16)
        .arg(box.text);
}

expected_box shown_box(const QMessageBox& box)
{
    return {box.text(), box.icon(), box.windowTitle(), box.standardButtons()};
}

QMessageBox* box_on_top()
{
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

}  // namespace

void hand::answer(const expected_box& box, QMessageBox::StandardButton answer)
{
    wait_until(u"a message box: " + described(box), [] { return box_on_top() != nullptr; });
    const auto seen = result_of<expected_box>([] { return shown_box(*box_on_top()); });
    same(described(seen), described(box), u"message box"_s);
    const QPointer<QMessageBox> answered = result_of<QMessageBox*>([] { return box_on_top(); });
    click_in_box(answer);
    wait_until(u"the end of the message box"_s, [&] { return !answered || !answered->isVisible(); });
}

void hand::click_in_box(QMessageBox::StandardButton button)
{
    post([button] {
        if (QMessageBox* box = box_on_top())
            QTest::mouseClick(static_cast<QWidget*>(box->button(button)), Qt::LeftButton);
    });
}

}  // namespace verdane::testing
