#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QWindow>

#include "controls/boxes.h"
#include "tests/support/hand.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

QString title_on_screen(hand& user)
{
    QString title;
    user.look([&title] { title = QApplication::activeModalWidget()->windowHandle()->title(); });
    return title;
}

}  // namespace

class test_boxes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_message_box_shows_its_title_or_none_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("on_screen");
        QTest::newRow("title") << "Verdane"
                               << "Verdane";
        // The toolkit would replace an empty title by the name of the program.
        QTest::newRow("none") << ""
                              << " ";
    }
    void a_message_box_shows_its_title_or_none()
    {
        QFETCH(QString, title);
        QFETCH(QString, on_screen);
        play([&] { show_information(u"Something"_s, QMessageBox::NoIcon, title); },
             [&](hand& user) {
                 user.wait_for_window(u"message_box"_s);
                 user.same(title_on_screen(user), on_screen, u"title on the screen"_s);
                 user.answer({u"Something"_s, QMessageBox::NoIcon, title});
             });
    }

    void a_message_box_without_a_title_gets_the_keyboard_and_leaves_the_controls_below_as_they_were()
    {
        QWidget owner;
        const QPushButton button(u"Below"_s, &owner);
        owner.show();
        play(
            [&] {
                show_message({u"Something"_s, QMessageBox::NoIcon, QString()}, &owner);
            },
            [](hand& user) {
                user.wait_for_window(u"message_box"_s);
                // Space reaches the button OK only if the box has the keyboard.
                user.key(Qt::Key_Space);
                user.wait_until_closed(u"message_box"_s);
            });
        QVERIFY(!button.testAttribute(Qt::WA_NativeWindow));
    }
};

QTEST_MAIN(test_boxes)

#include "test_boxes.moc"
