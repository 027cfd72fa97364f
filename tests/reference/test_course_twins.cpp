#include <QLabel>
#include <QTest>

#include "reference/f_courses.h"
#include "tests/reference/course_windows.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

struct seen {
    QStringList list;
    QStringList editor;
};

seen names_in(bool french)
{
    seen names;
    const course_store store(french);
    store.add({});
    in_course_list_until_ok([&](hand& user) {
        names.list = controls_of_window(user);
        user.click(u"Command1_0"_s);
        user.wait_for_window(editor_window());
        names.editor = controls_of_window(user);
        discard(user);
    });
    return names;
}

}  // namespace

class test_course_twins : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void twins_have_the_same_controls()
    {
        const seen french = names_in(true);
        const seen english = names_in(false);
        QCOMPARE(french.list, english.list);
        QCOMPARE(french.editor, english.editor);
        QVERIFY(french.list.contains(u"QListWidget List1"_s));
        QVERIFY(french.editor.contains(u"QLineEdit txt_normal_17"_s));
    }

    void every_control_that_can_be_used_has_a_name()
    {
        const course_store store;
        in_new_course([](hand& user) {
            with_editor(user, [](f_courses& window) {
                for (const QWidget* control : window.findChildren<QWidget*>()) {
                    if (control->focusPolicy() != Qt::NoFocus || qobject_cast<const QLabel*>(control))
                        QVERIFY2(!control->objectName().isEmpty(), control->metaObject()->className());
                }
            });
            discard(user);
        });
    }

    void nothing_is_clipped_data() { both_languages(); }
    void nothing_is_clipped()
    {
        QFETCH(bool, french);
        const course_store store(french);
        store.add({.yards = -1820});
        in_stored_course(0, [](hand& user) {
            for (const int page : {1, 2, 3}) {
                user.click_tab(u"TabStrip1"_s, page);
                user.same(clipped_controls(user).join(u'|'), {},
                          u"clipped on page "_s + QString::number(page));
            }
            user.same(user.text(u"lbl_total"_s), u"-32760"_s, u"the widest total"_s);
            discard(user);
            user.wait_for_window(list_window());
            user.same(clipped_controls(user).join(u'|'), {}, u"clipped in the list"_s);
        });
    }
};

QTEST_MAIN(test_course_twins)
#include "test_course_twins.moc"
