#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QTest>

/// How the tests look at what a box does when it gains the focus.
namespace verdane::testing {

using namespace Qt::StringLiterals;

/// Rows of the ways in which a box gains the focus, in a column "reason".
inline void ways_into_a_box()
{
    QTest::addColumn<Qt::FocusReason>("reason");
    QTest::newRow("Tab") << Qt::TabFocusReason;
    QTest::newRow("a click") << Qt::MouseFocusReason;
    QTest::newRow("a short cut") << Qt::ShortcutFocusReason;
    QTest::newRow("the program") << Qt::OtherFocusReason;
}

/// Gives a box that holds "12" the focus and presses a digit before any other event is handled. Returns the
/// text that the box holds then. To be called in the window thread.
inline QString text_after_focus_and_digit(QLineEdit& box, Qt::FocusReason reason)
{
    if (QWidget* focused = QApplication::focusWidget())
        focused->clearFocus();
    box.setText(u"12"_s);
    box.setFocus(reason);
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_7, u'7', Qt::NoModifier);
    return box.text();
}

/// The same for the visible boxes of an array that take figures; how many replace their text by the digit.
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
