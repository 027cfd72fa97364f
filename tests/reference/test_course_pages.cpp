#include <QFrame>
#include <QTest>

#include "base/language.h"
#include "controls/Form.h"
#include "reference/f_courses.h"
#include "tests/reference/course_windows.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

QRect geometry_of(const QString& control)
{
    return find_control(control)->geometry();
}

void check_page(hand& user, int page, const QString& focus)
{
    for (int other = 1; other <= 3; ++other)
        user.same(user.visible(u"frm_"_s + QString::number(other)), other == page,
                  u"page "_s + QString::number(other));
    user.same(user.focus(), focus, u"focus"_s);
    with_editor(user, [page](f_courses& window) { QCOMPARE(plain(window.curFrame()), page); });
}

/// The boxes that Tab visits from the focus to `last`, both included.
QStringList tabbed(hand& user, const QString& last)
{
    QStringList names{user.focus()};
    while (names.last() != last && names.size() < 100) {
        user.key(Qt::Key_Tab);
        names << user.focus();
    }
    return names;
}

QStringList nine(const QString& name, int first)
{
    QStringList names;
    for (int index = first; index < first + 9; ++index)
        names << name + u'_' + QString::number(index);
    return names;
}

}  // namespace

class test_course_pages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_first_page_uses_its_space_data() { both_languages(); }
    void the_first_page_uses_its_space()
    {
        QFETCH(bool, french);
        const course_store store(french);
        in_new_course([](hand& user) {
            with_editor(user, [](f_courses& window) {
                const QRect tee = geometry_of(u"departure"_s);
                for (const QString& box : {u"text_0"_s, u"text_2"_s}) {
                    QCOMPARE(geometry_of(box).left(), tee.left());
                    QCOMPARE(geometry_of(box).right(), tee.right());
                }
                const QRect page = find_control(u"frm_1"_s)->rect();
                for (const QString& box : {u"text_1"_s, u"text_3"_s, u"text_4"_s, u"text_5"_s}) {
                    QCOMPARE(geometry_of(box).left(), tee.left());
                    QCOMPARE(geometry_of(box).right(), page.right());
                }
                QVERIFY(geometry_of(u"text_5"_s).bottom() > page.height() * 3 / 4);
                QCOMPARE(window.size(), QSize(10410 / 15, 8700 / 15));
            });
            discard(user);
        });
    }

    void a_tab_shows_its_page_and_gives_the_focus_to_its_first_box()
    {
        const course_store store;
        in_new_course([](hand& user) {
            check_page(user, 1, u"text_1"_s);
            user.click_tab(u"TabStrip1"_s, 2);
            check_page(user, 2, u"txt_verge_0"_s);
            user.click_tab(u"TabStrip1"_s, 3);
            check_page(user, 3, u"txt_verge_9"_s);
            user.click_tab(u"TabStrip1"_s, 1);
            check_page(user, 1, u"text_1"_s);
            discard(user);
        });
    }

    void a_click_on_the_selected_tab_moves_the_focus()
    {
        const course_store store;
        in_new_course([](hand& user) {
            user.click(u"text_4"_s);
            user.click_tab(u"TabStrip1"_s, 1);
            check_page(user, 1, u"text_1"_s);
            user.click_tab(u"TabStrip1"_s, 2);
            user.click(u"txt_normal_8"_s);
            user.click_tab(u"TabStrip1"_s, 2);
            check_page(user, 2, u"txt_verge_0"_s);
            discard(user);
        });
    }

    void tabs_are_reached_by_the_keyboard()
    {
        const course_store store;
        in_new_course([](hand& user) {
            user.key(Qt::Key_Backtab);
            user.same(user.focus(), u"TabStrip1"_s, u"focus"_s);
            user.key(Qt::Key_Right);
            check_page(user, 2, u"txt_verge_0"_s);
            discard(user);
        });
    }

    void Tab_visits_the_boxes_in_the_order_of_a_scorecard()
    {
        const course_store store;
        in_new_course([](hand& user) {
            user.same(tabbed(user, u"cmdan"_s).join(u'|'),
                      u"text_1|departure|text_2|text_0|text_3|text_4|text_5|smdsave|cmdan"_s, u"page 1"_s);
            user.click_tab(u"TabStrip1"_s, 3);
            const QStringList back =
                nine(u"txt_verge"_s, 9) + nine(u"txt_hnd"_s, 9) + nine(u"txt_normal"_s, 9);
            user.same(tabbed(user, u"txt_normal_17"_s).join(u'|'), back.join(u'|'), u"page 3"_s);
            discard(user);
        });
    }

    void Enter_in_a_box_presses_no_button()
    {
        const course_store store;
        in_new_course([](hand& user) {
            fill_required(user, u"Delta"_s);
            user.key(Qt::Key_Return);
            user.check(user.is_open(editor_window()), u"the editor is still open"_s);
            discard(user);
        });
    }

    void the_window_has_its_size_and_place()
    {
        course_store store;
        in_new_course([&](hand& user) {
            with_editor(user, [&](f_courses& window) {
                QCOMPARE(window.size(), QSize(694, 580));
                QVERIFY(!scrolls(window));
                const QRect frame = store.frame.frame_widget()->geometry();
                QCOMPARE(window.pos(), frame.topLeft() + QPoint((frame.width() - window.width()) / 2, 2));
                QCOMPARE(current_form.data(), &window);
                for (const int page : {1, 2, 3})
                    QCOMPARE(window.findChild<QFrame*>(u"frm_%1"_s.arg(page))->frameShape(), QFrame::NoFrame);
            });
            discard(user);
        });
    }
};

QTEST_MAIN(test_course_pages)
#include "test_course_pages.moc"
