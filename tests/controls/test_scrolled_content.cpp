#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

#include "controls/Form.h"
#include "controls/look.h"
#include "controls/screen_limits.h"
#include "controls/scrolled_content.h"
#include "tests/support/recording_frame.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using verdane::testing::recording_frame;

namespace {

constexpr int line_count = 40;

/// A window with a column of boxes, each below its label, and OK.
class long_window : public Form {
public:
    explicit long_window(int lines = line_count) : Form(u"f_long")
    {
        auto* column = new QVBoxLayout;
        for (int line = 0; line < lines; ++line) {
            auto* box = boxes.emplace_back(new QLineEdit);
            column->addWidget(labels.emplace_back(make_label(u"label"_s, box)));
            column->addWidget(box);
        }
        auto* rows = new QVBoxLayout(this);
        content = scrolled(column);
        rows->addWidget(content, 1);
        ok = make_button(u"OK"_s);
        rows->addWidget(ok);
    }

    std::vector<QLineEdit*> boxes;
    std::vector<QLabel*> labels;
    scrolled_content* content;
    QPushButton* ok;

    bool in_view(const QWidget& control) const
    {
        const QRect view = content->viewport()->rect();
        return view.contains(QRect(control.mapTo(content->viewport(), QPoint()), control.size()));
    }
};

void show_active(Form& window)
{
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

}  // namespace

class test_scrolled_content : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_window_gets_a_size_at_which_nothing_scrolls()
    {
        long_window window(6);
        window.take_size({200, 100});
        show_active(window);
        QVERIFY(window.height() > 100);
        QVERIFY(!window.content->verticalScrollBar()->isVisible());
        QVERIFY(window.in_view(*window.boxes.back()));
    }

    void a_window_large_enough_keeps_the_wanted_size()
    {
        long_window window(2);
        window.take_size({410, 333});
        QCOMPARE(window.size(), QSize(410, 333));
    }

    void a_window_higher_than_the_screen_is_limited_to_it_and_scrolls()
    {
        const recording_frame frame;
        long_window window(100);
        window.take_size({300, 200});
        Place_and_lock(window);
        show_active(window);
        QVERIFY(window.screen()->availableGeometry().contains(window.frameGeometry()));
        QVERIFY(window.content->verticalScrollBar()->isVisible());
        QVERIFY(window.rect().contains(window.ok->geometry()));
    }

    void a_window_resized_to_its_minimum_shows_its_buttons()
    {
        long_window window;
        window.take_size({300, 200});
        show_active(window);
        window.resize(1, 1);
        QVERIFY(window.rect().contains(window.ok->geometry()));
        QVERIFY(window.height() < 300);
    }

    void the_control_with_the_focus_is_scrolled_into_view_with_its_label()
    {
        long_window window;
        window.take_size({300, 200});
        window.resize(300, 300);
        show_active(window);
        for (const std::size_t line : {line_count - 1, 0, line_count / 2}) {
            window.boxes[line]->setFocus();
            QVERIFY(window.in_view(*window.boxes[line]));
            QVERIFY(window.in_view(*window.labels[line]));
        }
    }

    void the_control_with_the_focus_stays_in_view_when_the_window_shrinks()
    {
        long_window window;
        window.take_size({300, 200});
        window.resize(300, 500);
        show_active(window);
        window.boxes[6]->setFocus();
        window.resize(300, 200);
        QTRY_VERIFY(window.in_view(*window.boxes[6]));
    }

    void a_window_can_be_deleted_while_a_control_in_it_has_the_focus()
    {
        auto window = std::make_unique<long_window>();
        window->take_size({300, 200});
        show_active(*window);
        window->boxes[3]->setFocus();
        QCOMPARE(QApplication::focusWidget(), window->boxes[3]);
        window.reset();
        QVERIFY(!QApplication::focusWidget());
    }

    void arrow_and_page_keys_are_not_handled()
    {
        long_window window;
        window.resize(300, 300);
        show_active(window);
        for (const int key : {Qt::Key_Down, Qt::Key_PageDown}) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
            QApplication::sendEvent(window.content, &event);
            QVERIFY(!event.isAccepted());
        }
        QCOMPARE(window.content->verticalScrollBar()->value(), 0);
        QCOMPARE(window.content->focusPolicy(), Qt::NoFocus);
    }

    void a_window_off_the_screen_is_moved_onto_it_data()
    {
        QTest::addColumn<QPoint>("place");
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        QTest::newRow("left and top") << QPoint(-50, -20);
        QTest::newRow("right") << QPoint(screen.width() - 10, 30);
        QTest::newRow("bottom") << QPoint(30, screen.height() - 10);
    }
    void a_window_off_the_screen_is_moved_onto_it()
    {
        QFETCH(QPoint, place);
        QWidget window;
        window.resize(200, 100);
        window.move(place);
        window.show();
        keep_on_screen(window);
        QVERIFY(window.screen()->availableGeometry().contains(window.frameGeometry()));
        QCOMPARE(window.size(), QSize(200, 100));
    }
};

QTEST_MAIN(test_scrolled_content)
#include "test_scrolled_content.moc"
