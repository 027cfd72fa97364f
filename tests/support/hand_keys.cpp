#include <QApplication>
#include <QClipboard>
#include <QTest>

#include <cstdlib>

#include "tests/support/hand.h"

namespace verdane::testing {

void hand::choose(const QString& combo, int index)
{
    focus_on(combo);
    const int steps = index - selected(combo);
    for (int i = 0; i < std::abs(steps); ++i)
        key(steps > 0 ? Qt::Key_Down : Qt::Key_Up);
    same(selected(combo), index, u"entry chosen in " + combo);
}

void hand::focus_on(const QString& control)
{
    on_control(control, [](QWidget& found) { found.setFocus(Qt::TabFocusReason); });
}

void hand::type(const QString& characters)
{
    wait_for_keyboard();
    for (const QChar character : characters) {
        post([character] {
            if (QWidget* focused = QApplication::focusWidget())
                QTest::sendKeyEvent(QTest::Click, focused,
                                    static_cast<Qt::Key>(character.toUpper().unicode()), QString(character),
                                    Qt::NoModifier);
        });
    }
}

void hand::fill(const QString& box, const QString& characters)
{
    click(box);
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_Delete);
    type(characters);
}

void hand::paste(const QString& box, const QString& text)
{
    click(box);
    look([&] { QApplication::clipboard()->setText(text); });
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_V, Qt::ControlModifier);
}

void hand::key(int key, Qt::KeyboardModifiers modifiers)
{
    wait_for_keyboard();
    post([key, modifiers] {
        QWidget* target = QApplication::focusWidget();
        if (!target)
            target = QApplication::activeWindow();
        if (target)
            QTest::keyClick(target, static_cast<Qt::Key>(key), modifiers);
    });
}

}  // namespace verdane::testing
