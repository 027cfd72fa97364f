#include <QAccessible>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "controls/control_array.h"
#include "controls/Form.h"
#include "controls/TabStrip.h"
#include "tests/support/hand.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using verdane::testing::hand;
using verdane::testing::play;

namespace {

class tabs_form : public Form {
public:
    tabs_form() : Form(u"f_tabs")
    {
        tabs = named(new TabStrip(this), u"TabStrip1");
        for (int i = 1; i <= 3; ++i)
            tabs->addTab(QString::number(i));
        (new QVBoxLayout(this))->addWidget(tabs);
        tabs->set_before_click([this] {
            seen_before.append(QString::number(tabs->selected()));
            return allowed;
        });
        connect(tabs, &TabStrip::clicked, this, [this] { clicks.append(QString::number(tabs->selected())); });
    }

    TabStrip* tabs = nullptr;
    bool allowed = true;
    QString seen_before;
    QString clicks;
};

void press_as_screen_reader(TabStrip& tabs, int tab)
{
    QAccessibleInterface* button = QAccessible::queryAccessibleInterface(&tabs)->child(tab - 1);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

}  // namespace

class test_tab_strip : public QObject {
    Q_OBJECT

    void in_window(tabs_form& window, const std::function<void(hand&)>& script)
    {
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.wait_for_window(u"f_tabs"_s);
                 script(user);
                 user.close_window(u"f_tabs"_s);
             });
    }

private Q_SLOTS:
    void before_click_is_called_on_the_old_tab_and_clicked_on_the_new()
    {
        tabs_form window;
        in_window(window, [](hand& user) { user.click_tab(u"TabStrip1"_s, 3); });
        QCOMPARE(window.seen_before, u"1"_s);
        QCOMPARE(window.clicks, u"3"_s);
    }

    void a_refused_click_keeps_the_tab()
    {
        tabs_form window;
        window.allowed = false;
        in_window(window, [](hand& user) { user.click_tab(u"TabStrip1"_s, 2); });
        QCOMPARE(window.tabs->selected(), 1);
        QCOMPARE(window.clicks, QString());
    }

    void a_click_on_the_selected_tab_calls_clicked()
    {
        tabs_form window;
        in_window(window, [](hand& user) { user.click_tab(u"TabStrip1"_s, 1); });
        QCOMPARE(window.clicks, u"1"_s);
    }

    void keys_select_tabs_as_clicks_do_and_stop_at_the_ends()
    {
        tabs_form window;
        in_window(window, [](hand& user) {
            user.click_tab(u"TabStrip1"_s, 1);
            for (const int key : {Qt::Key_Right, Qt::Key_End, Qt::Key_Right, Qt::Key_Left, Qt::Key_Home})
                user.key(key);
        });
        QCOMPARE(window.clicks, u"12321"_s);
    }

    void space_clicks_the_selected_tab()
    {
        tabs_form window;
        in_window(window, [](hand& user) {
            user.click_tab(u"TabStrip1"_s, 2);
            user.key(Qt::Key_Space);
        });
        QCOMPARE(window.clicks, u"22"_s);
    }

    void the_action_of_a_screen_reader_clicks_the_tab()
    {
        tabs_form window;
        press_as_screen_reader(*window.tabs, 3);
        QCOMPARE(window.seen_before, u"1"_s);
        QCOMPARE(window.clicks, u"3"_s);
        window.allowed = false;
        press_as_screen_reader(*window.tabs, 2);
        QCOMPARE(window.tabs->selected(), 3);
        QCOMPARE(window.clicks, u"3"_s);
    }

    void the_wheel_does_not_change_the_tab()
    {
        tabs_form window;
        QWheelEvent turn({5, 5}, {5, 5}, {0, -120}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(window.tabs, &turn);
        QCOMPARE(window.tabs->selected(), 1);
    }
};

QTEST_MAIN(test_tab_strip)
#include "test_tab_strip.moc"
