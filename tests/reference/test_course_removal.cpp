#include <QTest>

#include "base/language.h"
#include "records/course_keys.h"
#include "store/DataEnvironment1.h"
#include "tests/reference/course_windows.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

expected_box question(const QString& line)
{
    return {in_language(u"Voulez vous supprimer le terrain : ", u"Do you want to remove the golf course : ") +
                line,
            QMessageBox::NoIcon, u"Verdane"_s, QMessageBox::Yes | QMessageBox::No};
}

expected_box notice()
{
    return {in_language(u"Terrain supprimé.", u"Golf course removed."), QMessageBox::Information,
            u"Verdane"_s, QMessageBox::Ok};
}

expected_box refusal(const QString& key)
{
    return {
        in_language(u"Verdane ne peut pas supprimer ce terrain. La ronde ",
                    u"Verdane could not remove this golf course because it is associated with the round ") +
            key + in_language(u" l'utilise.", u" already in use"),
        QMessageBox::NoIcon, u"Verdane"_s, QMessageBox::Ok};
}

void remove(hand& user, int line)
{
    user.click_row(u"List1"_s, line);
    const QString text = user.text(u"List1"_s);
    user.click(u"Command1_3"_s);
    user.answer(question(text), QMessageBox::Yes);
    user.answer(notice());
    user.wait_for_window(list_window());
}

QString codes(const course_store& store)
{
    return store.text(u"select group_concat(code, '|') from vrd_fields"_s) + u" / " +
           store.text(u"select group_concat(FIELD_CODE, '|') from field_info"_s);
}

}  // namespace

class test_course_removal : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_course_in_use_is_not_removed_and_its_earliest_round_is_named_data() { both_languages(); }
    void a_course_in_use_is_not_removed_and_its_earliest_round_is_named()
    {
        QFETCH(bool, french);
        const course_store store(french);
        add_three_courses(store);
        store.add_round(u"20240607150000"_s, u"BETA-1"_s);
        store.add_round(u"20230102081530"_s, u"BETA-1"_s);
        store.add_round(u"20200101000000"_s, u"ALPHA-0"_s);
        in_course_list_until_ok([](hand& user) {
            user.click_row(u"List1"_s, 1);
            user.click(u"Command1_3"_s);
            user.answer(refusal(u"2023-01-02 08:15:30"_s));
            user.wait_for_window(list_window());
            user.same(static_cast<int>(user.entries(u"List1"_s).size()), 3, u"lines"_s);
        });
        QCOMPARE(codes(store), u"ALPHA-0|BETA-1|GAMMA-2 / ALPHA-0|BETA-1|GAMMA-2"_s);
    }

    void the_earliest_round_is_named_after_a_statistic_too()
    {
        const course_store store;
        add_three_courses(store);
        store.add_round(u"20240607150000"_s, u"BETA-1"_s);
        store.add_round(u"20230102081530"_s, u"BETA-1"_s);
        data_environment().rsgames.set_Source(u"Select * from games"_s);
        in_course_list_until_ok([](hand& user) {
            user.click_row(u"List1"_s, 1);
            user.click(u"Command1_3"_s);
            user.answer(refusal(u"2023-01-02 08:15:30"_s));
        });
    }

    void rsgames_is_closed_after_every_answer()
    {
        const course_store store;
        add_three_courses(store);
        store.add_round(u"20240607150000"_s, u"ALPHA-0"_s);
        in_course_list_until_ok([](hand& user) {
            const auto check_closed = [&user](const QString& answer) {
                user.wait_for_window(list_window());
                user.check(!data_environment().rsgames.is_open(), answer);
            };
            user.click(u"Command1_3"_s);
            user.answer(refusal(u"2024-06-07 15:00:00"_s));
            check_closed(u"refused"_s);
            user.click_row(u"List1"_s, 1);
            user.click(u"Command1_3"_s);
            user.answer(question(u"Beta, BLEU"_s), QMessageBox::No);
            check_closed(u"no"_s);
            remove(user, 1);
            check_closed(u"yes"_s);
        });
    }

    void a_course_can_be_removed_from_a_list_of_more_than_51()
    {
        const course_store store;
        for (int i = 0; i < most_courses; ++i)
            store.add({u"C%1-0"_s.arg(i), u"C%1"_s.arg(i), u"C%1-0"_s.arg(i)});
        in_course_list_until_ok([](hand& user) {
            for (const QString& name : {u"Delta"_s, u"Echo"_s}) {
                user.click(u"Command1_1"_s);
                user.wait_for_window(editor_window());
                fill_required(user, name);
                user.click(u"smdsave"_s);
                user.answer(notice_of_save());
                user.wait_for_window(list_window());
            }
            remove(user, 0);
            remove(user, 0);
        });
        QCOMPARE(store.number(u"select count(*) from vrd_fields"_s), most_courses);
        QCOMPARE(course_keys[most_courses - 1].code, u"ECHO-0"_s);
    }

    void No_keeps_the_course()
    {
        const course_store store;
        add_three_courses(store);
        in_course_list_until_ok([](hand& user) {
            user.click(u"Command1_3"_s);
            user.answer(question(u"Alpha, BLANC"_s), QMessageBox::No);
            user.wait_for_window(list_window());
        });
        QCOMPARE(codes(store), u"ALPHA-0|BETA-1|GAMMA-2 / ALPHA-0|BETA-1|GAMMA-2"_s);
    }

    void Yes_removes_both_rows_and_selects_the_first_line_data() { both_languages(); }
    void Yes_removes_both_rows_and_selects_the_first_line()
    {
        QFETCH(bool, french);
        const course_store store(french);
        add_three_courses(store);
        store.add_round(u"20240607150000"_s, u"ALPHA-0"_s);
        in_course_list_until_ok([](hand& user) {
            remove(user, 1);
            user.same(user.entries(u"List1"_s).join(u'|'),
                      in_language(u"Alpha, BLANC|Gamma, ROUGE", u"Alpha, White|Gamma, Red"), u"lines"_s);
            user.same(user.selected(u"List1"_s), 0, u"selected line"_s);
        });
        QCOMPARE(codes(store), u"ALPHA-0|GAMMA-2 / ALPHA-0|GAMMA-2"_s);
        QCOMPARE(course_keys[1].code, u"GAMMA-2"_s);
        QVERIFY(course_keys[2].code.isEmpty());
    }

    void after_a_removal_each_line_opens_its_own_course()
    {
        const course_store store;
        add_three_courses(store);
        in_course_list_until_ok([](hand& user) {
            remove(user, 0);
            user.click_row(u"List1"_s, 1);
            user.click(u"Command1_0"_s);
            user.wait_for_window(editor_window());
            user.same(user.text(u"text_1"_s), u"Gamma"_s, u"name"_s);
            discard(user);
            user.wait_for_window(list_window());
            remove(user, 0);
        });
        QCOMPARE(codes(store), u"GAMMA-2 / GAMMA-2"_s);
    }

    void removing_the_last_course_leaves_an_empty_list()
    {
        const course_store store;
        store.add({});
        in_course_list_until_ok([](hand& user) {
            remove(user, 0);
            user.same(user.entries(u"List1"_s).join(u'|'), {}, u"lines"_s);
            user.click(u"Command1_0"_s);
            user.click(u"Command1_3"_s);
            user.check(user.is_open(list_window()), u"the list is still open"_s);
        });
        QCOMPARE(codes(store), u"null / null"_s);
    }

    void two_tees_of_a_course_are_removed_one_by_one()
    {
        const course_store store;
        store.add({});
        store.add({u"ALPHA-3"_s, u"Alpha"_s, u"Alpha-3"_s, u"OR"_s});
        in_course_list_until_ok([](hand& user) { remove(user, 0); });
        QCOMPARE(codes(store), u"ALPHA-3 / ALPHA-3"_s);
    }

    void a_code_with_a_quote_is_removed()
    {
        const course_store store;
        store.add({});
        store.add({u"L'ANCIENNE-0"_s, u"L'Ancienne"_s, u"L'Ancienne-0"_s});
        in_course_list_until_ok([](hand& user) { remove(user, 1); });
        QCOMPARE(codes(store), u"ALPHA-0 / ALPHA-0"_s);
    }

    void a_used_course_with_a_quote_is_refused()
    {
        const course_store store;
        store.add({u"L'ANCIENNE-0"_s, u"L'Ancienne"_s, u"L'Ancienne-0"_s});
        store.add_round(u"20240607150000"_s, u"L'ANCIENNE-0"_s);
        in_course_list_until_ok([](hand& user) {
            user.click(u"Command1_3"_s);
            user.answer(refusal(u"2024-06-07 15:00:00"_s));
        });
        QCOMPARE(codes(store), u"L'ANCIENNE-0 / L'ANCIENNE-0"_s);
    }
};

QTEST_MAIN(test_course_removal)
#include "test_course_removal.moc"
