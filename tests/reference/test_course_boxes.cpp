#include <QLineEdit>
#include <QTest>
#include <QToolTip>

#include "base/language.h"
#include "base/program.h"
#include "reference/f_courses.h"
#include "tests/reference/course_windows.h"
#include "tests/support/entering_boxes.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString name_box = u"text_1"_s;
const QString rating_box = u"text_2"_s;
const QString slope_box = u"text_0"_s;

expected_box plain_box(const QString& text)
{
    return {text, QMessageBox::NoIcon, u"Verdane"_s, QMessageBox::Ok};
}

expected_box index_is_taken()
{
    return plain_box(in_language(u"Cette handicap est attri1buée à un autre trou",
                                 u"This handicap is associated to another hole."));
}

expected_box index_is_too_high()
{
    return plain_box(in_language(u"La valeur de l'Handicap doit être inférieure à 19.",
                                 u"The handicap must be under 19."));
}

expected_box par_is_wrong()
{
    return plain_box(in_language(u"La Normale doit être inférieure à 6 et supérieur à 2.",
                                 u"The par must be under 6 and above 2."));
}

/// Types into a box of the front nine and leaves it by Tab.
void type_and_tab(hand& user, const QString& box, const QString& typed)
{
    user.fill(box, typed);
    user.key(Qt::Key_Tab);
}

/// How many visible boxes of one kind contain only the digit that is typed when they get the focus.
int boxes_that_replace_their_text(const f_courses& window, const QString& kind, Qt::FocusReason reason)
{
    int replacing = 0;
    for (QLineEdit* box : window.findChildren<QLineEdit*>()) {
        if (box->objectName().startsWith(kind) && box->isVisible() &&
            text_after_focus_and_digit(*box, reason) == u"7")
            ++replacing;
    }
    return replacing;
}

/// A refused box shows "0", selected, and keeps the focus.
void check_refused(hand& user, const QString& box)
{
    user.wait_for_window(editor_window());
    user.same(user.text(box), u"0"_s, u"text of "_s + box);
    user.same(user.focus(), box, u"focus"_s);
    user.same(user.selected_text(box), u"0"_s, u"selection in "_s + box);
}

void check_accepted(hand& user, const QString& box, const QString& text)
{
    user.same(user.text(box), text, u"text of "_s + box);
    user.check(user.focus() != box, u"the focus has left "_s + box);
}

}  // namespace

class test_course_boxes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keys_of_the_first_page_are_filtered_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("kept");
        QTest::addColumn<int>("bells");
        QTest::newRow("a name takes letters and blanks") << name_box << u"Old Ab Zz"_s << u"Old Ab Zz"_s << 0;
        QTest::newRow("a name takes no digit") << name_box << u"A1b2"_s << u"Ab"_s << 2;
        QTest::newRow("a name takes no accented letter") << name_box << u"Épinière"_s << u"pinire"_s << 2;
        QTest::newRow("a name takes no mark") << name_box << u"L'A-b."_s << u"LAb"_s << 3;
        QTest::newRow("neighbours of the letters") << name_box << u"@[`{"_s << QString() << 4;
        QTest::newRow("a rating takes digits and points") << rating_box << u"70.5.1"_s << u"70.5.1"_s << 0;
        QTest::newRow("a rating takes no letter") << rating_box << u"7a,0"_s << u"70"_s << 2;
        QTest::newRow("a rating takes no sign") << rating_box << u"-70"_s << u"70"_s << 1;
        QTest::newRow("digits of other scripts are refused") << rating_box << u"7٣"_s << u"7"_s << 1;
        QTest::newRow("the seventh digit is refused") << slope_box << u"1234567"_s << u"123456"_s << 1;
        QTest::newRow("a point passes after six digits") << slope_box << u"123456.7"_s << u"123456."_s << 1;
        QTest::newRow("an address takes anything")
            << u"text_3"_s << u"1, rue de l'Église"_s << u"1, rue de l'Église"_s << 0;
    }
    void keys_of_the_first_page_are_filtered()
    {
        QFETCH(QString, box);
        QFETCH(QString, typed);
        QFETCH(QString, kept);
        QFETCH(int, bells);
        const course_store store;
        in_new_course([&](hand& user) {
            const int before = user.bells();
            user.fill(box, typed);
            user.same(user.text(box), kept, u"text"_s);
            user.same(user.bells() - before, bells, u"bells"_s);
            discard(user);
        });
    }

    void backspace_always_passes()
    {
        const course_store store;
        in_new_course([](hand& user) {
            const int before = user.bells();
            user.fill(slope_box, u"123456"_s);
            user.key(Qt::Key_Backspace);
            user.type(u"7"_s);
            user.same(user.text(slope_box), u"123457"_s, u"slope"_s);
            user.fill(name_box, u"Ab"_s);
            user.key(Qt::Key_Backspace);
            user.same(user.text(name_box), u"A"_s, u"name"_s);
            user.same(user.bells(), before, u"bells"_s);
            discard(user);
        });
    }

    void a_pasted_text_is_not_filtered()
    {
        const course_store store;
        in_new_course([](hand& user) {
            user.paste(name_box, u"Golf 18 Évian"_s);
            user.same(user.text(name_box), u"Golf 18 Évian"_s, u"name"_s);
            user.paste(slope_box, u"12345678"_s);
            user.same(user.text(slope_box), u"12345678"_s, u"slope"_s);
            discard(user);
        });
    }

    void a_pasted_decimal_comma_becomes_a_point_data() { both_languages(); }
    void a_pasted_decimal_comma_becomes_a_point()
    {
        QFETCH(bool, french);
        const course_store store;
        set_interface_language(french);
        in_new_course([](hand& user) {
            user.paste(rating_box, u"71,3"_s);
            user.same(user.text(rating_box), u"71.3"_s, u"rating"_s);
            user.paste(slope_box, u"121,5"_s);
            user.same(user.text(slope_box), u"121.5"_s, u"slope"_s);
            discard(user);
        });
    }

    void a_typed_decimal_comma_is_refused_with_a_hint_data() { both_languages(); }
    void a_typed_decimal_comma_is_refused_with_a_hint()
    {
        QFETCH(bool, french);
        const course_store store;
        set_interface_language(french);
        in_new_course([french](hand& user) {
            for (const QString& box : {rating_box, slope_box}) {
                const int bells = user.bells();
                user.fill(box, u"71"_s);
                user.look([] { QVERIFY(!QToolTip::isVisible()); });
                user.type(u","_s);
                user.same(user.text(box), u"71"_s, u"text of "_s + box);
                user.same(user.bells() - bells, 1, u"bells"_s);
                user.look([french] {
                    QCOMPARE(QToolTip::text(),
                             text_pair({u"Chiffres seulement, avec un point comme signe décimal : 71.3",
                                        u"Digits only, with a point as the decimal mark: 71.3"})
                                 .in(french));
                    QToolTip::hideText();
                });
                user.wait_until(u"the end of the hint"_s, [] { return !QToolTip::isVisible(); });
                user.type(u".3"_s);
                user.same(user.text(box), u"71.3"_s, u"text of "_s + box);
            }
            discard(user);
        });
    }

    void boxes_of_the_holes_are_checked_when_left_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("accepted");
        const auto row = [](const char* name, const QString& box, const QString& typed, bool accepted) {
            QTest::newRow(name) << box << typed << accepted;
        };
        row("a length", u"txt_verge_0"_s, u"412"_s, true);
        row("a length of 0", u"txt_verge_0"_s, u"0"_s, true);
        row("a negative length", u"txt_verge_0"_s, u"-5"_s, true);
        row("the longest length", u"txt_verge_8"_s, u"32767"_s, true);
        row("a length with a comma", u"txt_verge_0"_s, u"31,5"_s, false);
        row("no length", u"txt_verge_0"_s, QString(), false);
        row("a length in letters", u"txt_verge_0"_s, u"abc"_s, false);
        row("a length with a letter after it", u"txt_verge_0"_s, u"3a"_s, false);
        row("a stroke index", u"txt_hnd_0"_s, u"18"_s, true);
        row("an unknown stroke index", u"txt_hnd_0"_s, u"0"_s, true);
        row("a negative stroke index", u"txt_hnd_0"_s, u"-3"_s, true);
        row("a stroke index that rounds down to 18", u"txt_hnd_0"_s, u"18.5"_s, true);
        row("a stroke index that rounds down to 0", u"txt_hnd_0"_s, u"0.4"_s, true);
        row("a stroke index that rounds up to 0", u"txt_hnd_0"_s, u"-0.3"_s, true);
        row("no stroke index", u"txt_hnd_0"_s, QString(), false);
        row("a stroke index in letters", u"txt_hnd_0"_s, u"x"_s, false);
        row("par 3", u"txt_normal_0"_s, u"3"_s, true);
        row("par 4", u"txt_normal_0"_s, u"4"_s, true);
        row("par 5", u"txt_normal_0"_s, u"5"_s, true);
        row("an unknown par", u"txt_normal_0"_s, u"0"_s, true);
        row("a par between two", u"txt_normal_0"_s, u"3.5"_s, true);
        row("an unknown par with a decimal", u"txt_normal_0"_s, u"0.0"_s, true);
        row("a par with a comma", u"txt_normal_0"_s, u"3,5"_s, false);
        row("no par", u"txt_normal_0"_s, QString(), false);
        row("a par in letters", u"txt_normal_0"_s, u"p"_s, false);
    }
    void boxes_of_the_holes_are_checked_when_left()
    {
        QFETCH(QString, box);
        QFETCH(QString, typed);
        QFETCH(bool, accepted);
        const course_store store;
        in_new_course([&](hand& user) {
            user.click_tab(u"TabStrip1"_s, 2);
            type_and_tab(user, box, typed);
            if (accepted)
                check_accepted(user, box, typed);
            else
                check_refused(user, box);
            discard(user);
        });
    }

    void a_wrong_par_is_refused_with_a_message_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QString>("typed");
        for (const bool french : {true, false}) {
            for (const char* par :
                 {"1", "2", "6", "-4", "32767", "5.4", "2.6", "0.4", "-0.3", "99999", "1e9"})
                QTest::addRow("%s %s", french ? "French" : "English", par)
                    << french << QString::fromLatin1(par);
        }
    }
    void a_wrong_par_is_refused_with_a_message()
    {
        QFETCH(bool, french);
        QFETCH(QString, typed);
        const course_store store(french);
        in_new_course([&](hand& user) {
            user.click_tab(u"TabStrip1"_s, 2);
            type_and_tab(user, u"txt_normal_3"_s, typed);
            user.answer(par_is_wrong());
            check_refused(user, u"txt_normal_3"_s);
            discard(user);
        });
    }

    void a_stroke_index_of_another_hole_is_refused_data() { both_languages(); }
    void a_stroke_index_of_another_hole_is_refused()
    {
        QFETCH(bool, french);
        const course_store store(french);
        in_new_course([](hand& user) {
            user.click_tab(u"TabStrip1"_s, 2);
            type_and_tab(user, u"txt_hnd_0"_s, u"18"_s);
            type_and_tab(user, u"txt_hnd_4"_s, u"18"_s);
            user.answer(index_is_taken());
            check_refused(user, u"txt_hnd_4"_s);
            // Holes of the other page are compared, too, but not the box with itself.
            user.key(Qt::Key_Tab);
            user.click_tab(u"TabStrip1"_s, 3);
            type_and_tab(user, u"txt_hnd_17"_s, u"18"_s);
            user.answer(index_is_taken());
            check_refused(user, u"txt_hnd_17"_s);
            type_and_tab(user, u"txt_hnd_17"_s, u"17"_s);
            type_and_tab(user, u"txt_hnd_17"_s, u"17"_s);
            check_accepted(user, u"txt_hnd_17"_s, u"17"_s);
            discard(user);
        });
    }

    void a_stroke_index_that_rounds_to_that_of_another_hole_is_refused()
    {
        const course_store store;
        in_new_course([](hand& user) {
            user.click_tab(u"TabStrip1"_s, 2);
            type_and_tab(user, u"txt_hnd_0"_s, u"17"_s);
            type_and_tab(user, u"txt_hnd_4"_s, u"16.6"_s);
            user.answer(index_is_taken());
            check_refused(user, u"txt_hnd_4"_s);
            discard(user);
        });
    }

    void a_stroke_index_of_19_typed_or_stored_is_refused_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QString>("typed");
        for (const bool french : {true, false}) {
            for (const char* index : {"19", "19.4", "18.6", "99999"})
                QTest::addRow("%s %s", french ? "French" : "English", index)
                    << french << QString::fromLatin1(index);
        }
    }
    void a_stroke_index_of_19_typed_or_stored_is_refused()
    {
        QFETCH(bool, french);
        QFETCH(QString, typed);
        const course_store store(french);
        in_new_course([&](hand& user) {
            user.click_tab(u"TabStrip1"_s, 2);
            type_and_tab(user, u"txt_hnd_0"_s, typed);
            user.answer(index_is_too_high());
            check_refused(user, u"txt_hnd_0"_s);
            discard(user);
        });
    }

    void a_duplicate_stroke_index_is_reported_before_the_limit()
    {
        const course_store store;
        store.add({});
        store.store.write(u"update field_info set hcp_2 = 25"_s);
        in_stored_course(0, [](hand& user) {
            user.click_tab(u"TabStrip1"_s, 2);
            type_and_tab(user, u"txt_hnd_0"_s, u"25"_s);
            user.answer(index_is_taken());
            check_refused(user, u"txt_hnd_0"_s);
            discard(user);
        });
    }

    void a_refused_box_is_not_left_by_a_click()
    {
        const course_store store;
        in_new_course([](hand& user) {
            user.click_tab(u"TabStrip1"_s, 2);
            user.fill(u"txt_normal_0"_s, u"7"_s);
            user.click(u"smdsave"_s);
            user.answer(par_is_wrong());
            check_refused(user, u"txt_normal_0"_s);
            user.fill(u"txt_verge_0"_s, u"x"_s);
            user.click(u"txt_verge_1"_s);
            check_refused(user, u"txt_verge_0"_s);
            user.fill(u"txt_verge_0"_s, u"x"_s);
            user.click_tab(u"TabStrip1"_s, 3);
            check_refused(user, u"txt_verge_0"_s);
            user.same(user.selected(u"TabStrip1"_s), 1, u"selected tab"_s);
            user.check(user.visible(u"frm_2"_s), u"the page is still shown"_s);
            discard(user);
        });
    }

    void the_totals_are_computed_when_a_length_is_left()
    {
        const course_store store;
        in_new_course([](hand& user) {
            user.same(user.text(u"lbl_total"_s), u"0"_s, u"total"_s);
            user.click_tab(u"TabStrip1"_s, 2);
            type_and_tab(user, u"txt_verge_0"_s, u"400"_s);
            type_and_tab(user, u"txt_verge_8"_s, u"150"_s);
            user.click_tab(u"TabStrip1"_s, 3);
            type_and_tab(user, u"txt_verge_9"_s, u"510"_s);
            type_and_tab(user, u"txt_verge_17"_s, u"1"_s);
            user.same(user.text(u"lbl_alle"_s), u"550"_s, u"front"_s);
            user.same(user.text(u"lbl_retour"_s), u"511"_s, u"back"_s);
            user.same(user.text(u"lbl_total"_s), u"1061"_s, u"total"_s);
            type_and_tab(user, u"txt_verge_9"_s, u"y"_s);
            user.same(user.text(u"lbl_total"_s), u"1061"_s, u"total after a refusal"_s);
            discard(user);
        });
    }

    void a_digit_replaces_the_figure_as_soon_as_a_box_has_the_focus_data() { focus_reasons(); }
    void a_digit_replaces_the_figure_as_soon_as_a_box_has_the_focus()
    {
        QFETCH(Qt::FocusReason, reason);
        const course_store store;
        store.add({});
        in_stored_course(0, [reason](hand& user) {
            for (const int page : {2, 3}) {
                user.click_tab(u"TabStrip1"_s, page);
                with_editor(user, [reason](f_courses& window) {
                    for (const QString& kind : {u"txt_hnd_"_s, u"txt_normal_"_s, u"txt_verge_"_s})
                        QCOMPARE(boxes_that_replace_their_text(window, kind, reason), 9);
                });
            }
            discard(user);
        });
    }

    void entering_a_box_of_the_holes_selects_its_figure()
    {
        const course_store store;
        store.add({});
        in_stored_course(0, [](hand& user) {
            user.click_tab(u"TabStrip1"_s, 2);
            user.same(user.selected_text(u"txt_verge_0"_s), u"300"_s, u"by the tab"_s);
            user.click(u"txt_hnd_6"_s);
            user.wait_until(u"a selection by a click"_s, [] {
                return dynamic_cast<QLineEdit&>(*find_control(u"txt_hnd_6"_s)).selectedText() == u"7"_s;
            });
            user.key(Qt::Key_Tab);
            user.same(user.selected_text(u"txt_hnd_7"_s), u"8"_s, u"by Tab"_s);
            discard(user);
        });
    }
};

QTEST_MAIN(test_course_boxes)
#include "test_course_boxes.moc"
