#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QTest>

/// For tests of what a box does when it gains the focus.
namespace verdane::testing {

using namespace Qt::StringLiterals;

/// A row of data for each reason for which a box gains the focus, in the column `reason`.
inline void focus_reasons()
{
    QTest::addColumn<Qt::FocusReason>("reason");
    QTest::newRow("Tab") << Qt::TabFocusReason;
    QTest::newRow("a click") << Qt::MouseFocusReason;
    QTest::newRow("a short cut") << Qt::ShortcutFocusReason;
    QTest::newRow("the program") << Qt::OtherFocusReason;
}

/// Moves the focus to a box with the text "12" and presses the digit 7 before any other event is handled.
/// Returns the text of the box afterwards. To be called in the window thread.
inline QString text_after_focus_and_digit(QLineEdit& box, Qt::FocusReason reason)
{
    if (QWidget* focused = QApplication::focusWidget())
        focused->clearFocus();
    box.setText(u"12"_s);
    box.setFocus(reason);
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_7, u'7', Qt::NoModifier);
    return box.text();
}

/// Does the same with the visible boxes of an array that take the focus. Returns how many of them replace
/// their text by the digit.
template <typename Boxes>
int boxes_that_replace_their_text(const Boxes& boxes, Qt::FocusReason reason)
{
    int replacing = 0;
    for (const auto& [index, box] : boxes.members()) {
        if (box->isVisible() && box->focusPolicy() != Qt::NoFocus &&
            text_after_focus_and_digit(*box, reason) == u"7")
            ++replacing;
    }
    return replacing;
}

}  // namespace verdane::testing
