#include <QScrollBar>

#include "tests/reports/preview_reader.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

class test_page_turning : public preview_reader {
    Q_OBJECT

    /// Nine pages of that size, in a view into which a part of one, several or all of them fit.
    void open_small(int zoom, int height)
    {
        open(nullptr, 9);
        window_->resize(900, height);
        QCoreApplication::processEvents();
        while (window_->pages().zoom() > zoom)
            press(Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(window_->pages().zoom(), zoom);
    }

    /// The text of the label after each press of a key.
    QStringList turned(Qt::Key key, int times)
    {
        QStringList seen;
        for (int time = 0; time < times; ++time) {
            press(key);
            seen.append(label("page_of_pages").section(u' ', 1, 1));
        }
        return seen;
    }

    /// Whether "Picture…" saves that page, counted from 1.
    bool saves_page(int page)
    {
        answer_ = file(u"page.png"_s);
        click("save_picture");
        const QImage wanted = render_report(file(u"Three.rpt"_s))->page_image(page - 1, 200);
        return QImage(answer_).convertToFormat(QImage::Format_RGB32) ==
               wanted.convertToFormat(QImage::Format_RGB32);
    }

private Q_SLOTS:
    void init() { start_in_english(); }
    void cleanup() { delete window_; }

    void pages_turn_by_button_and_by_key()
    {
        open();
        // The view is lower than a page: Page Up first scrolls to the top of the last page.
        window_->resize(900, 500);
        QCoreApplication::processEvents();
        click("next_page");
        QCOMPARE(label("page_of_pages"), u"Page 2 of 3"_s);
        press(Qt::Key_PageDown);
        QCOMPARE(label("page_of_pages"), u"Page 3 of 3"_s);
        press(Qt::Key_PageDown);
        QCOMPARE(label("page_of_pages"), u"Page 3 of 3"_s);
        press(Qt::Key_PageUp);
        press(Qt::Key_PageUp);
        QCOMPARE(label("page_of_pages"), u"Page 2 of 3"_s);
        click("previous_page");
        QCOMPARE(label("page_of_pages"), u"Page 1 of 3"_s);
    }

    void pages_turn_one_by_one_however_many_are_in_view_data()
    {
        QTest::addColumn<int>("zoom");
        QTest::addColumn<int>("height");
        for (const int zoom : {25, 33, 50})
            for (const int height : {480, 600, 1020, 2400, 4200})
                QTest::addRow("%d percent, %d high", zoom, height) << zoom << height;
    }
    void pages_turn_one_by_one_however_many_are_in_view()
    {
        QFETCH(int, zoom);
        QFETCH(int, height);
        open_small(zoom, height);
        QCOMPARE(label("page_of_pages"), u"Page 1 of 9"_s);
        QVERIFY(saves_page(1));
        QCOMPARE(turned(Qt::Key_PageDown, 9), u"2 3 4 5 6 7 8 9 9"_s.split(u' '));
        QVERIFY(saves_page(9));
        QCOMPARE(turned(Qt::Key_PageUp, 9), u"8 7 6 5 4 3 2 1 1"_s.split(u' '));
        QCOMPARE(window_->pages().verticalScrollBar()->value(), 0);
    }

    void scrolling_by_hand_shows_the_topmost_page_and_at_the_end_the_last()
    {
        open_small(50, 1020);
        QScrollBar* bar = window_->pages().verticalScrollBar();
        bar->setValue(bar->maximum());
        QCOMPARE(label("page_of_pages"), u"Page 9 of 9"_s);
        QCOMPARE(turned(Qt::Key_PageUp, 1), QStringList(u"8"_s));
        bar->setValue(bar->maximum() - 1);
        QCOMPARE(label("page_of_pages"), u"Page 8 of 9"_s);
        bar->setValue(0);
        QCOMPARE(label("page_of_pages"), u"Page 1 of 9"_s);
        press(Qt::Key_Down);
        QCOMPARE(label("page_of_pages"), u"Page 1 of 9"_s);
        for (int step = 0; step < 5; ++step)
            press(Qt::Key_Down);
        QCOMPARE(label("page_of_pages"), u"Page 2 of 9"_s);
    }

    void a_page_to_which_the_user_turned_stays_current_after_a_zoom()
    {
        open_small(25, 600);
        turned(Qt::Key_PageDown, 3);
        for (int time = 0; time < 6; ++time) {
            press(Qt::Key_Plus, Qt::ControlModifier);
            QCOMPARE(label("page_of_pages"), u"Page 4 of 9"_s);
        }
        QVERIFY(window_->pages().zoom() >= 100);
        press(Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(label("page_of_pages"), u"Page 4 of 9"_s);
    }
};

QTEST_MAIN(test_page_turning)
#include "test_page_turning.moc"
