#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QTest>

#include "shell/start_up.h"
#include "tests/management/removal_windows.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"
#include "tests/support/hand_widgets.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

QAbstractItemView* list_in(const QString& window, const QString& name)
{
    return visible_window(window)->findChild<QAbstractItemView*>(name);
}

QLabel* text_in(const QAbstractItemView& list)
{
    return list.viewport()->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
}

/// The text is in the middle of the list, complete, and readable by a screen reader; an empty text means that
/// the list shows none.
void expect_text(hand& user, const QString& window, const QString& name, const QString& text)
{
    user.look([&] {
        const QAbstractItemView& list = *list_in(window, name);
        const QLabel& label = *text_in(list);
        QCOMPARE(label.isVisible(), !text.isEmpty());
        QCOMPARE(list.accessibleDescription(), text);
        QCOMPARE(list.model()->rowCount() == 0, !text.isEmpty());
        if (text.isEmpty())
            return;
        QCOMPARE(label.text(), text);
        QCOMPARE(label.geometry(), list.viewport()->rect());
        QVERIFY(label.heightForWidth(label.width()) <= label.height());
    });
}

}  // namespace

/// Lists without entries show a text.
class test_empty_lists : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_empty_lists_of_courses_and_partners_show_a_text_data() { both_stored_languages(); }
    void the_empty_lists_of_courses_and_partners_show_a_text()
    {
        QFETCH(int, language);
        in_main_window(language, {}, [](hand& user) {
            const QString courses = in_language(u"f_c_list", u"f_c_list_en");
            user.menu(u"mManagF"_s);
            user.wait_for_window(courses);
            expect_text(user, courses, u"List1"_s, in_language(u"Aucun terrain", u"No golf course"));
            user.click(u"Command1_2"_s);
            user.wait_until_closed(courses);
            const QString partners = in_language(u"f_partners", u"f_partners_en");
            user.menu(u"mpartners"_s);
            user.wait_for_window(partners);
            expect_text(user, partners, u"pgrid"_s, in_language(u"Aucun partenaire", u"No partner"));
            user.key(Qt::Key_Escape);
            user.wait_until_closed(partners);
        });
    }

    void the_list_of_rounds_shows_a_text_after_the_last_one_was_removed_data() { both_stored_languages(); }
    void the_list_of_rounds_shows_a_text_after_the_last_one_was_removed()
    {
        QFETCH(int, language);
        in_main_window(language, one_course() + one_round(), [](hand& user) {
            user.menu(u"mnOPenr"_s);
            user.wait_for_window(list_window());
            expect_text(user, list_window(), u"List1"_s, {});
            user.click(u"Command1_3"_s);
            user.answer(question_on_removal(), QMessageBox::Yes);
            user.answer(notice_of_removal());
            expect_text(user, list_window(), u"List1"_s, in_language(u"Aucune ronde", u"No round"));
            user.click(u"Command1_2"_s);
            user.wait_until_closed(list_window());
        });
    }

    void the_empty_list_of_partners_of_a_round_shows_a_text_data() { both_stored_languages(); }
    void the_empty_list_of_partners_of_a_round_shows_a_text()
    {
        QFETCH(int, language);
        in_main_window(language, one_course() + one_round(), [](hand& user) {
            const QString round = in_language(u"f_new_round", u"f_new_round_en");
            user.menu(u"mnOPenr"_s);
            user.wait_for_window(list_window());
            user.double_click_row(u"List1"_s, 0);
            user.wait_for_window(round);
            expect_text(user, round, u"pList"_s, in_language(u"Aucun partenaire", u"No partner"));
            user.click(u"Command1_2"_s);
            user.answer({in_language(u"Voulez vous enregistrer les modifications avant de sortir ? ",
                                     u"Do you want to save your changes prior to exit?"),
                         QMessageBox::NoIcon, QString(),
                         QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel},
                        QMessageBox::No);
            user.wait_until_closed(round);
        });
    }

    void a_list_with_an_entry_has_no_text()
    {
        in_main_window(1, one_course(), [](hand& user) {
            user.menu(u"mManagF"_s);
            user.wait_for_window(u"f_c_list"_s);
            expect_text(user, u"f_c_list"_s, u"List1"_s, {});
            user.click(u"Command1_2"_s);
        });
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepare_application(application);
    test_empty_lists test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_empty_lists.moc"
