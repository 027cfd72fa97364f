#include <QTest>

#include "base/language.h"
#include "controls/Form.h"
#include "reference/f_courses.h"
#include "tests/reference/course_windows.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

QString figures(const course_store& store)
{
    return store.text(u"select group_concat(name || slope, '|') from vrd_fields"_s) + u" / " +
           store.text(u"select group_concat(yards_1, '|') from field_info"_s);
}

const QString figures_before = u"Alpha121|Beta121|Gamma121 / 300|300|300"_s;
const QString figures_after = u"Alpha121|Beta55|Gamma121 / 300|410|300"_s;

/// Changes a figure of the first page and a length.
void change(hand& user)
{
    user.fill(u"text_0"_s, u"55"_s);
    user.click_tab(u"TabStrip1"_s, 2);
    user.fill(u"txt_verge_0"_s, u"410"_s);
    user.key(Qt::Key_Tab);
}

/// Fills in the lengths, stroke indexes and pars of all holes: 54 figures.
void type_all_holes(hand& user)
{
    for (int hole = 1; hole <= 18; ++hole) {
        user.click_tab(u"TabStrip1"_s, hole <= 9 ? 2 : 3);
        const QString index = QString::number(hole - 1);
        user.fill(u"txt_verge_"_s + index, QString::number(400 + hole));
        user.fill(u"txt_hnd_"_s + index, QString::number(hole));
        user.fill(u"txt_normal_"_s + index, u"3"_s);
    }
}

void save_by_shortcut(hand& user)
{
    user.key(Qt::Key_S, Qt::ControlModifier);
    user.answer(notice_of_save());
    user.wait_for_window(editor_window());
}

}  // namespace

class test_course_closing : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void No_discards_the_changes_data() { both_languages(); }
    void No_discards_the_changes()
    {
        QFETCH(bool, french);
        const course_store store(french);
        add_three_courses(store);
        in_stored_course(1, [](hand& user) {
            change(user);
            discard(user);
        });
        QCOMPARE(figures(store), figures_before);
    }

    void Yes_saves_and_closes_data() { both_languages(); }
    void Yes_saves_and_closes()
    {
        QFETCH(bool, french);
        const course_store store(french);
        add_three_courses(store);
        in_stored_course(1, [](hand& user) {
            change(user);
            user.click(u"cmdan"_s);
            user.answer(question_on_closing(), QMessageBox::Yes);
            user.answer(notice_of_save());
        });
        QCOMPARE(figures(store), figures_after);
    }

    void Cancel_keeps_the_window_and_the_changes()
    {
        course_store store;
        add_three_courses(store);
        in_stored_course(1, [&](hand& user) {
            change(user);
            user.check(store.frame.locked, u"the menu is locked"_s);
            user.click(u"cmdan"_s);
            user.answer(question_on_closing(), QMessageBox::Cancel);
            user.wait_for_window(editor_window());
            user.check(!store.frame.locked, u"the menu is unlocked"_s);
            user.same(user.text(u"txt_verge_0"_s), u"410"_s, u"length"_s);
            discard(user);
        });
        QCOMPARE(figures(store), figures_before);
    }

    void Yes_with_a_refused_save_keeps_the_window_open()
    {
        const course_store store;
        add_three_courses(store);
        in_stored_course(1, [](hand& user) {
            user.fill(u"text_0"_s, QString());
            user.click(u"cmdan"_s);
            user.answer(question_on_closing(), QMessageBox::Yes);
            user.answer(refusal_of_missing());
            user.wait_for_window(editor_window());
            with_editor(user, [](f_courses& window) { QVERIFY(window.needtosave()); });
            discard(user);
        });
        QCOMPARE(figures(store), figures_before);
    }

    void closing_an_untouched_editor_shows_the_question()
    {
        const course_store store;
        add_three_courses(store);
        in_stored_course(0, [](hand& user) {
            with_editor(user, [](f_courses& window) {
                QVERIFY(window.needtosave());
                QVERIFY(!window.isNew());
                QVERIFY(!window.isCreated());
                QVERIFY(!window.saveSucceed());
            });
            discard(user);
        });
    }

    void a_new_course_that_is_cancelled_leaves_no_row_data()
    {
        QTest::addColumn<QString>("way");
        QTest::newRow("button") << u"button"_s;
        QTest::newRow("title bar") << u"title bar"_s;
        QTest::newRow("Escape") << u"Escape"_s;
    }
    void a_new_course_that_is_cancelled_leaves_no_row()
    {
        QFETCH(QString, way);
        const course_store store;
        add_three_courses(store);
        in_new_course([&](hand& user) {
            with_editor(user, [](f_courses& window) { QVERIFY(window.isNew()); });
            fill_required(user, u"Delta"_s);
            if (way == u"button"_s)
                discard(user);
            else if (way == u"Escape"_s) {
                user.key(Qt::Key_Escape);
                user.answer(question_on_closing(), QMessageBox::No);
            } else
                user.close_window(editor_window());
            user.wait_for_window(list_window());
            // The list still has its rows.
            user.click_row(u"List1"_s, 2);
            user.click(u"Command1_0"_s);
            user.wait_for_window(editor_window());
            user.same(user.text(u"text_1"_s), u"Gamma"_s, u"name"_s);
            discard(user);
        });
        QCOMPARE(figures(store), figures_before);
    }

    void the_close_box_discards_the_changes_without_a_question()
    {
        const course_store store;
        add_three_courses(store);
        in_stored_course(1, [&](hand& user) {
            change(user);
            user.close_window(editor_window());
            user.wait_until_closed(editor_window());
            user.check(!store.frame.locked, u"the menu is unlocked"_s);
        });
        QCOMPARE(figures(store), figures_before);
    }

    void Escape_shows_the_question_before_it_discards_the_figures_of_eighteen_holes_data()
    {
        both_languages();
    }
    void Escape_shows_the_question_before_it_discards_the_figures_of_eighteen_holes()
    {
        QFETCH(bool, french);
        const course_store store(french);
        add_three_courses(store);
        in_stored_course(1, [](hand& user) {
            type_all_holes(user);
            user.key(Qt::Key_Escape);
            user.answer(question_on_closing(), QMessageBox::Cancel);
            user.wait_for_window(editor_window());
            user.key(Qt::Key_Escape);
            user.answer(question_on_closing(), QMessageBox::Yes);
            user.answer(notice_of_save());
            user.wait_until_closed(editor_window());
        });
        for (int hole = 1; hole <= 18; ++hole)
            QCOMPARE(store.text(u"select yards_%1 || ' ' || hcp_%1 || ' ' || par_%1 from field_info "
                                "where FIELD_CODE = 'BETA-1'"_s.arg(hole)),
                     u"%1 %2 3"_s.arg(400 + hole).arg(hole));
    }

    void Escape_refuses_a_wrong_figure_before_it_shows_the_question()
    {
        const course_store store;
        add_three_courses(store);
        in_stored_course(1, [](hand& user) {
            user.click_tab(u"TabStrip1"_s, 2);
            user.fill(u"txt_normal_0"_s, u"9"_s);
            user.key(Qt::Key_Escape);
            user.answer({u"La Normale doit être inférieure à 6 et supérieur à 2."_s, QMessageBox::NoIcon,
                         u"Verdane"_s});
            user.wait_for_window(editor_window());
            user.same(user.text(u"txt_normal_0"_s), u"0"_s, u"par"_s);
            user.same(user.focus(), u"txt_normal_0"_s, u"focus"_s);
            discard(user);
        });
        QCOMPARE(figures(store), figures_before);
    }

    void Ctrl_S_saves_and_Ctrl_W_closes_data() { both_languages(); }
    void Ctrl_S_saves_and_Ctrl_W_closes()
    {
        QFETCH(bool, french);
        const course_store store(french);
        add_three_courses(store);
        in_stored_course(1, [&](hand& user) {
            change(user);
            // Leaving a length counts as a change, so the focus must be in another box.
            user.click_tab(u"TabStrip1"_s, 1);
            save_by_shortcut(user);
            with_editor(user, [](f_courses& window) {
                QVERIFY(window.saveSucceed());
                QVERIFY(!window.needtosave());
            });
            user.key(Qt::Key_W, Qt::ControlModifier);
            user.wait_until_closed(editor_window());
            user.check(!store.frame.locked, u"the menu is unlocked"_s);
        });
        QCOMPARE(figures(store), figures_after);
    }

    void Ctrl_W_shows_the_question_of_Cancel()
    {
        const course_store store;
        add_three_courses(store);
        in_stored_course(1, [](hand& user) {
            change(user);
            user.key(Qt::Key_W, Qt::ControlModifier);
            user.answer(question_on_closing(), QMessageBox::No);
        });
        QCOMPARE(figures(store), figures_before);
    }

    void Ctrl_S_saves_no_figure_that_its_box_refuses()
    {
        const course_store store;
        add_three_courses(store);
        in_stored_course(1, [](hand& user) {
            user.click_tab(u"TabStrip1"_s, 2);
            user.fill(u"txt_hnd_0"_s, u"19"_s);
            user.key(Qt::Key_S, Qt::ControlModifier);
            user.answer(
                {u"La valeur de l'Handicap doit être inférieure à 19."_s, QMessageBox::NoIcon, u"Verdane"_s});
            user.wait_for_window(editor_window());
            user.same(user.text(u"txt_hnd_0"_s), u"0"_s, u"stroke index"_s);
            discard(user);
        });
    }

    void a_new_course_saved_twice_by_key_has_one_row()
    {
        const course_store store;
        in_new_course([](hand& user) {
            fill_required(user, u"Delta"_s);
            save_by_shortcut(user);
            user.fill(u"text_0"_s, u"55"_s);
            save_by_shortcut(user);
            user.key(Qt::Key_W, Qt::ControlModifier);
            user.wait_until_closed(editor_window());
        });
        QCOMPARE(store.text(u"select group_concat(code || ' ' || slope, '|') from vrd_fields"_s),
                 u"DELTA-0 55"_s);
        QCOMPARE(store.text(u"select group_concat(FIELD_CODE, '|') from field_info"_s), u"DELTA-0"_s);
    }

    void a_new_course_saved_by_key_is_a_duplicate_later_although_the_last_save_was_refused()
    {
        const course_store store;
        in_new_course([](hand& user) {
            fill_required(user, u"Delta"_s);
            save_by_shortcut(user);
            user.fill(u"text_0"_s, QString());
            user.key(Qt::Key_S, Qt::ControlModifier);
            user.answer(refusal_of_missing());
            discard(user);
            user.click(u"Command1_1"_s);
            user.wait_for_window(editor_window());
            fill_required(user, u"Delta"_s);
            user.key(Qt::Key_S, Qt::ControlModifier);
            user.answer(refusal_of_duplicate(u"Delta"_s, u"Blanc"_s));
            discard(user);
        });
        QCOMPARE(store.text(u"select group_concat(code || ' ' || slope, '|') from vrd_fields"_s),
                 u"DELTA-0 128"_s);
    }

    void closing_after_a_save_and_another_change_shows_the_question_again_data()
    {
        QTest::addColumn<QString>("box");
        QTest::newRow("a box of the first page") << u"text_5"_s;
        QTest::newRow("a length") << u"txt_verge_0"_s;
    }
    void closing_after_a_save_and_another_change_shows_the_question_again()
    {
        QFETCH(QString, box);
        const course_store store;
        add_three_courses(store);
        in_stored_course(1, [&](hand& user) {
            save_by_shortcut(user);
            user.click_tab(u"TabStrip1"_s, box.startsWith(u"txt"_s) ? 2 : 1);
            user.fill(box, u"0"_s);
            user.key(Qt::Key_Tab);
            user.click(u"cmdan"_s);
            user.answer(question_on_closing(), QMessageBox::No);
        });
    }

    void the_close_command_shows_the_question()
    {
        const course_store store;
        add_three_courses(store);
        in_stored_course(1, [](hand& user) {
            QMetaObject::invokeMethod(
                qApp, [] { current_form->closeForm(); }, Qt::QueuedConnection);
            user.answer(question_on_closing(), QMessageBox::No);
        });
    }
};

QTEST_MAIN(test_course_closing)
#include "test_course_closing.moc"
