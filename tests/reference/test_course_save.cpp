#include <QTest>

#include "base/language.h"
#include "controls/failure_guard.h"
#include "reference/f_courses.h"
#include "store/DataEnvironment1.h"
#include "tests/reference/course_windows.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// Saves by OK: a notice is shown, and the window closes without a question.
void save_by_ok(hand& user)
{
    user.click(u"smdsave"_s);
    user.answer(notice_of_save());
    user.wait_until_closed(editor_window());
}

QString course_line(const course_store& store, const QString& where = u"1"_s)
{
    return store.text(
        u"select code || '|' || name || '|' || name_tee || '|' || tee || '|' || rating || '|' || "
        "slope || '|' || address_1 || '|' || address_2 || '|' || address_3 from vrd_fields where "_s +
        where);
}

QString hole_line(const course_store& store)
{
    return store.text(
        u"select FIELD_CODE || '|' || yards_1 || '|' || yards_18 || '|' || hcp_1 || '|' || hcp_18 || "
        "'|' || par_1 || '|' || par_18 from field_info"_s);
}

void save_new(hand& user, const QString& name, int tee)
{
    fill_required(user, name);
    user.choose(u"departure"_s, tee);
    save_by_ok(user);
}

/// Opens the editor on the rows of two different courses.
void edit_with_the_holes_of_another()
{
    Recordset& holes = data_environment().rsfield_info;
    data_environment().rsvrd_fields.Open();
    holes.set_Source(u"select * from field_info where FIELD_CODE = 'BETA-1'"_s);
    holes.Open();
    f_courses(false).show_modal();
}

}  // namespace

class test_course_save : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_new_course_is_stored_in_both_tables_data() { both_languages(); }
    void a_new_course_is_stored_in_both_tables()
    {
        QFETCH(bool, french);
        const course_store store(french);
        in_new_course([](hand& user) {
            user.same(user.entries(u"departure"_s).join(u'|'),
                      in_language(u"Blanc|Bleu|Rouge|Or|Bronze|Jaune|Vert|Noir",
                                  u"White|Blue|Red|Gold|Bronze|Yellow|Green|Black"),
                      u"tees"_s);
            user.same(user.selected(u"departure"_s), 0, u"first tee"_s);
            fill_required(user, u"Val des Lacs"_s);
            user.choose(u"departure"_s, 6);
            user.fill(u"text_3"_s, u"line 1"_s);
            user.fill(u"text_4"_s, u"line 2"_s);
            user.fill(u"text_5"_s, u"line 3"_s);
            user.click_tab(u"TabStrip1"_s, 2);
            user.fill(u"txt_verge_0"_s, u"410"_s);
            user.fill(u"txt_hnd_0"_s, u"7"_s);
            user.fill(u"txt_normal_0"_s, u"4"_s);
            user.click_tab(u"TabStrip1"_s, 3);
            user.fill(u"txt_verge_17"_s, u"515"_s);
            user.fill(u"txt_hnd_17"_s, u"18"_s);
            user.fill(u"txt_normal_17"_s, u"5"_s);
            save_by_ok(user);
        });
        QCOMPARE(course_line(store), u"VAL DES LACS-6|Val des Lacs|Val des Lacs-6|"_s +
                                         in_language(u"VERT", u"GREEN") + u"|71.2|128|line 1|line 2|line 3");
        QCOMPARE(hole_line(store), u"VAL DES LACS-6|410|515|7|18|4|5"_s);
        QCOMPARE(store.number(u"select yards_9 + hcp_9 + par_9 + yards_10 from field_info"_s), 0);
    }

    void a_course_without_name_rating_or_slope_is_refused_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QString>("emptied");
        for (const bool french : {true, false}) {
            const char* language = french ? "French" : "English";
            QTest::addRow("%s name", language) << french << u"text_1"_s;
            QTest::addRow("%s rating", language) << french << u"text_2"_s;
            QTest::addRow("%s slope", language) << french << u"text_0"_s;
        }
    }
    void a_course_without_name_rating_or_slope_is_refused()
    {
        QFETCH(bool, french);
        QFETCH(QString, emptied);
        const course_store store(french);
        in_new_course([&](hand& user) {
            fill_required(user, u"Delta"_s);
            user.paste(emptied, u"   "_s);
            user.click(u"smdsave"_s);
            user.answer(refusal_of_missing());
            // OK closes the window after the save, and the changes are still unsaved.
            user.answer(question_on_closing(), QMessageBox::Cancel);
            with_editor(user, [](f_courses& window) {
                QVERIFY(!window.saveSucceed());
                QVERIFY(window.needtosave());
            });
            discard(user);
        });
        QCOMPARE(store.number(u"select count(*) from vrd_fields"_s), 0);
        QCOMPARE(store.number(u"select count(*) from field_info"_s), 0);
    }

    void the_same_name_and_tee_are_refused_data() { both_languages(); }
    void the_same_name_and_tee_are_refused()
    {
        QFETCH(bool, french);
        const course_store store(french);
        add_three_courses(store);
        in_new_course([](hand& user) {
            fill_required(user, u" beTA "_s);
            user.choose(u"departure"_s, 1);
            user.click(u"smdsave"_s);
            user.answer(refusal_of_duplicate(u"beTA"_s, in_language(u"Bleu", u"Blue")));
            user.answer(question_on_closing(), QMessageBox::Cancel);
            with_editor(user, [](f_courses& window) { QVERIFY(!window.saveSucceed()); });
            // With another tee the course is not a duplicate.
            user.choose(u"departure"_s, 4);
            save_by_ok(user);
        });
        QCOMPARE(store.text(u"select code || name from vrd_fields where tee = 'BRONZE'"_s),
                 u"BETA-4 beTA "_s);
    }

    void a_new_tee_takes_the_base_of_the_stored_code()
    {
        const course_store store;
        store.add({u"HISTORIC-0"_s, u"Renamed"_s, u"Mont Bleu-0"_s});
        in_new_course([](hand& user) { save_new(user, u"MONT bleu"_s, 2); });
        QCOMPARE(course_line(store, u"tee = 'ROUGE'"_s),
                 u"HISTORIC-2|MONT bleu|MONT bleu-2|ROUGE|71.2|128|||"_s);
        QCOMPARE(store.number(u"select count(*) from field_info where FIELD_CODE = 'HISTORIC-2'"_s), 1);
    }

    void two_tees_of_one_name_have_codes_that_differ_in_the_last_character_only_data()
    {
        QTest::addColumn<QString>("second_name");
        QTest::newRow("the same capitals") << u"Mont Bleu"_s;
        QTest::newRow("other capitals and blanks around") << u" mont BLEU "_s;
    }
    void two_tees_of_one_name_have_codes_that_differ_in_the_last_character_only()
    {
        QFETCH(QString, second_name);
        const course_store store;
        in_new_course([](hand& user) { save_new(user, u"Mont Bleu"_s, 0); });
        in_new_course([&](hand& user) { save_new(user, second_name, 7); });
        for (const QString& codes : {u"select group_concat(code, '|') from vrd_fields"_s,
                                     u"select group_concat(FIELD_CODE, '|') from field_info"_s})
            QCOMPARE(store.text(codes), u"MONT BLEU-0|MONT BLEU-7"_s);
        QCOMPARE(store.text(u"select group_concat(tee, '|') from vrd_fields"_s), u"BLANC|NOIR"_s);
    }

    void a_longer_name_is_another_course()
    {
        const course_store store;
        store.add({});
        in_new_course([](hand& user) { save_new(user, u"Alpha B"_s, 0); });
        QCOMPARE(store.text(u"select group_concat(code, '|') from vrd_fields"_s), u"ALPHA-0|ALPHA B-0"_s);
    }

    void a_course_added_twice_in_one_list_is_refused()
    {
        const course_store store;
        in_course_list_until_ok([](hand& user) {
            user.click(u"Command1_1"_s);
            user.wait_for_window(editor_window());
            save_new(user, u"Delta"_s, 0);
            user.wait_for_window(list_window());
            user.click(u"Command1_1"_s);
            user.wait_for_window(editor_window());
            fill_required(user, u"Delta"_s);
            user.click(u"smdsave"_s);
            user.answer(refusal_of_duplicate(u"Delta"_s, u"Blanc"_s));
            user.answer(question_on_closing(), QMessageBox::No);
            user.wait_until_closed(editor_window());
        });
        QCOMPARE(store.number(u"select count(*) from vrd_fields"_s), 1);
    }

    void each_box_of_the_first_page_shows_its_own_column()
    {
        const course_store store;
        store.add({});
        store.store.write(u"update vrd_fields set address_1 = 'a', address_2 = 'b', address_3 = 'c'"_s);
        in_stored_course(0, [](hand& user) {
            const std::pair<int, QString> boxes[] = {{1, u"Alpha"_s}, {2, u"70.5"_s}, {0, u"121"_s},
                                                     {3, u"a"_s},     {4, u"b"_s},    {5, u"c"_s}};
            for (const auto& [index, text] : boxes)
                user.same(user.text(u"text_"_s + QString::number(index)), text, QString::number(index));
            discard(user);
        });
    }

    void renaming_a_course_keeps_its_key_and_tee()
    {
        const course_store store;
        add_three_courses(store);
        in_stored_course(1, [](hand& user) {
            user.check(!user.enabled(u"departure"_s), u"the tee cannot be changed"_s);
            user.same(user.text(u"departure"_s), u"Bleu"_s, u"tee"_s);
            user.same(user.text(u"text_2"_s), u"70.5"_s, u"rating"_s);
            user.same(user.text(u"text_0"_s), u"121"_s, u"slope"_s);
            user.same(user.text(u"text_3"_s), u"Main Street 1"_s, u"address"_s);
            user.same(user.text(u"lbl_alle"_s), u"2700"_s, u"front"_s);
            user.same(user.text(u"lbl_retour"_s), u"2700"_s, u"back"_s);
            user.same(user.text(u"lbl_total"_s), u"5400"_s, u"total"_s);
            user.same(user.text(u"txt_hnd_17"_s), u"18"_s, u"last stroke index"_s);
            user.same(user.text(u"txt_normal_17"_s), u"4"_s, u"last par"_s);
            fill_required(user, u"Renamed"_s);
            save_by_ok(user);
        });
        QCOMPARE(
            store.text(u"select name || '|' || name_tee || '|' || tee || '|' || rating || '|' || slope from "
                       "vrd_fields where code = 'BETA-1'"_s),
            u"Renamed|Beta-1|BLEU|71.2|128"_s);
        QCOMPARE(store.number(u"select yards_1 from field_info where FIELD_CODE = 'BETA-1'"_s), 300);
    }

    void the_duplicate_test_compares_the_name_at_creation()
    {
        const course_store store;
        store.add({u"ALPHA-0"_s, u"Renamed"_s, u"Alpha-0"_s});
        in_new_course([](hand& user) {
            fill_required(user, u"Alpha"_s);
            user.click(u"smdsave"_s);
            user.answer(refusal_of_duplicate(u"Alpha"_s, u"Blanc"_s));
            user.answer(question_on_closing(), QMessageBox::Cancel);
            user.fill(u"text_1"_s, u"Renamed"_s);
            save_by_ok(user);
        });
        QCOMPARE(store.text(u"select group_concat(code, '|') from vrd_fields"_s), u"ALPHA-0|RENAMED-0"_s);
    }

    void a_name_with_a_quote_saves_and_opens_again()
    {
        const course_store store;
        in_new_course([](hand& user) {
            fill_required(user, u"x"_s);
            user.paste(u"text_1"_s, u"L'Ancienne"_s);
            save_by_ok(user);
        });
        QCOMPARE(store.text(u"select code from vrd_fields"_s), u"L'ANCIENNE-0"_s);
        in_stored_course(0, [](hand& user) {
            user.same(user.text(u"text_1"_s), u"L'Ancienne"_s, u"name"_s);
            user.fill(u"text_0"_s, u"99"_s);
            save_by_ok(user);
        });
        QCOMPARE(store.text(u"select slope from vrd_fields"_s), u"99"_s);
    }

    void pasted_accents_and_digits_are_part_of_the_code()
    {
        const course_store store;
        in_new_course([](hand& user) {
            fill_required(user, u"x"_s);
            user.paste(u"text_1"_s, u"Évian 9"_s);
            save_by_ok(user);
        });
        QCOMPARE(store.text(u"select code from vrd_fields"_s), u"ÉVIAN 9-0"_s);
    }

    void a_rating_with_two_points_is_stored_as_typed()
    {
        const course_store store;
        in_new_course([](hand& user) {
            fill_required(user, u"Delta"_s);
            user.fill(u"text_2"_s, u"70.5.1"_s);
            save_by_ok(user);
        });
        QCOMPARE(store.text(u"select rating from vrd_fields"_s), u"70.5.1"_s);
    }

    void figures_of_holes_are_stored_as_whole_numbers_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("stored");
        QTest::newRow("negative") << u"-12"_s << -12;
        QTest::newRow("half to even") << u"2.5"_s << 2;
        QTest::newRow("exponent") << u"1e3"_s << 1000;
        QTest::newRow("largest") << u"32767"_s << 32767;
    }
    void figures_of_holes_are_stored_as_whole_numbers()
    {
        QFETCH(QString, typed);
        QFETCH(int, stored);
        const course_store store;
        in_new_course([&](hand& user) {
            fill_required(user, u"Delta"_s);
            user.click_tab(u"TabStrip1"_s, 2);
            user.fill(u"txt_verge_0"_s, typed);
            save_by_ok(user);
        });
        QCOMPARE(store.number(u"select yards_1 from field_info"_s), stored);
    }

    void rows_that_are_not_found_again_are_reported_and_the_save_counts()
    {
        const course_store store;
        add_three_courses(store);
        play([] { run_event(edit_with_the_holes_of_another); },
             [](hand& user) {
                 user.wait_for_window(editor_window());
                 user.fill(u"text_0"_s, u"99"_s);
                 user.click(u"smdsave"_s);
                 user.answer({u"Fatal Error : 101"_s, QMessageBox::NoIcon, u"Verdane"_s, QMessageBox::Ok});
                 user.answer(notice_of_save());
                 user.wait_until_closed(editor_window());
             });
        QCOMPARE(store.text(u"select slope from vrd_fields where code = 'ALPHA-0'"_s), u"99"_s);
    }

    void a_course_of_an_unknown_tee_opens_without_one()
    {
        const course_store store;
        store.add({u"ODD-9"_s, u"Odd"_s, u"Odd-9"_s});
        in_stored_course(0, [](hand& user) {
            user.same(user.text(u"departure"_s), QString(), u"tee"_s);
            user.fill(u"text_0"_s, u"99"_s);
            save_by_ok(user);
        });
        QCOMPARE(store.text(u"select code || slope from vrd_fields"_s), u"ODD-999"_s);
    }
};

QTEST_MAIN(test_course_save)
#include "test_course_save.moc"
