#include <QApplication>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "controls/boxes.h"
#include "controls/control_array.h"
#include "controls/Form.h"
#include "tests/support/keyboard_hand.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using verdane::testing::hand;
using verdane::testing::keyboard_hand;
using verdane::testing::play;

namespace {

/// A list of three rows and two buttons. The second one can only be clicked with the mouse.
class small_form : public Form {
public:
    small_form() : Form(u"f_small")
    {
        rows = named(new QListWidget, u"rows");
        rows->addItems({u"a"_s, u"b"_s, u"c"_s});
        auto* reachable = named(make_button(u"Ask"_s), u"ask");
        auto* unreachable = named(make_button(u"No focus"_s), u"no_focus");
        unreachable->setFocusPolicy(Qt::NoFocus);
        auto* lines = new QVBoxLayout(this);
        for (QWidget* control : std::initializer_list<QWidget*>{rows, reachable, unreachable})
            lines->addWidget(control);
        connect(reachable, &QPushButton::clicked, this, [this] { yes = ask_yes_no(u"Yes?"_s); });
    }

    QListWidget* rows;
    bool yes = false;
};

/// Opens the window, plays the script by keys and closes the window by Escape.
void play_by_keys(small_form& window, const std::function<void(hand&)>& script)
{
    keyboard_hand user;
    play([&] { window.show_modal(); },
         [&](hand& one) {
             one.wait_for_window(u"f_small"_s);
             script(one);
             one.close_window(u"f_small"_s);
         },
         user);
}

const QHash<QString, std::function<void(hand&)>>& failing_scripts()
{
    static const QHash<QString, std::function<void(hand&)>> all{
        {u"--unreachable"_s, [](hand& user) { user.click(u"no_focus"_s); }},
        {u"--mouse"_s, [](hand& user) { user.hand::click(u"ask"_s); }},
    };
    return all;
}

}  // namespace

class test_keyboard_hand : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_row_and_a_button_and_an_answer_are_chosen_by_keys()
    {
        small_form window;
        play_by_keys(window, [](hand& user) {
            user.click_row(u"rows"_s, 1);
            user.click(u"ask"_s);
            user.answer({u"Yes?"_s, QMessageBox::NoIcon, default_title(), QMessageBox::Yes | QMessageBox::No},
                        QMessageBox::Yes);
        });
        QCOMPARE(window.rows->currentRow(), 1);
        QVERIFY(window.yes);
    }

    void a_control_without_focus_and_a_click_of_the_mouse_fail_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("message");
        QTest::newRow("unreachable control")
            << u"--unreachable"_s << u"no_focus was not reached by pressing Tab"_s;
        QTest::newRow("mouse") << u"--mouse"_s << u"the mouse was used on"_s;
    }

    void a_control_without_focus_and_a_click_of_the_mouse_fail()
    {
        QFETCH(QString, script);
        QFETCH(QString, message);
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {script});
        QVERIFY(child.waitForFinished(60000));
        const QString errors = QString::fromUtf8(child.readAllStandardError());
        QCOMPARE(child.exitCode(), 1);
        QVERIFY2(errors.contains(message), qPrintable(errors));
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const auto script = failing_scripts().find(application.arguments().value(1));
    if (script != failing_scripts().end()) {
        small_form window;
        play_by_keys(window, *script);
        return 77;  // Not reached: the script fails.
    }
    test_keyboard_hand test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_keyboard_hand.moc"
