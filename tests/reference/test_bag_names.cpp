#include <QLineEdit>
#include <QTest>

#include "records/Main_module.h"
#include "reference/f_sticks.h"
#include "tests/reference/golf_bags.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

class test_bag_names : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void No_stores_nothing_and_keeps_the_new_names_for_the_run_data() { both_languages(); }
    void No_stores_nothing_and_keeps_the_new_names_for_the_run()
    {
        QFETCH(bool, french);
        const filled_bag bag(french);
        in_bag([&](hand& user) {
            compute(user, 0, 2);
            user.fill(u"sn_0"_s, u"Big"_s);
            user.fill(u"Text1_0"_s, u"250"_s);
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::No);
        });
        QCOMPARE(bag.average(1), 200.5);
        QCOMPARE(bag.shots(1), 0);
        QCOMPARE(bag.name(1), u"D1"_s);
        QCOMPARE(Main_module::club_names[0], u"Big"_s);
        QVERIFY(!Main_module::club_names_kept);
    }

    void Yes_stores_the_names()
    {
        const filled_bag bag;
        in_bag([](hand& user) {
            user.fill(u"sn_2"_s, u"Bois 5"_s);
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::Yes);
        });
        QCOMPARE(bag.name(3), u"Bois 5"_s);
        QCOMPARE(Main_module::club_names[2], u"Bois 5"_s);
        QCOMPARE(bag.average(1), 200.5);
    }

    void any_name_is_stored_as_it_is_typed_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("accents") << u"Bâton à é ÿ œ"_s;
        QTest::newRow("quotes") << u"L'\"as\"; drop table sticknames; --"_s;
        QTest::newRow("markup") << u"A & B <b>"_s;
        QTest::newRow("blanks") << u"  5 I "_s;
        QTest::newRow("long") << QString(400, u'W');
        QTest::newRow("none") << QString();
    }
    void any_name_is_stored_as_it_is_typed()
    {
        QFETCH(QString, name);
        const filled_bag bag;
        const auto shows_it = [&](hand& user) { user.same(user.text(u"sn_0"_s), name, u"name"_s); };
        in_bag([&](hand& user) {
            user.paste(u"sn_0"_s, name.isEmpty() ? u"x"_s : name);
            if (name.isEmpty())
                user.key(Qt::Key_Backspace);
            shows_it(user);
            compute(user, 0, 2);
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::Yes);
        });
        QCOMPARE(bag.name(1), name);
        QCOMPARE(Main_module::club_names[0], name);
        in_bag([&](hand& user) {
            shows_it(user);
            // The statistic copies the names for its report.
            compute(user, 0, 2);
            user.same(bag.book.store.text(u"select club_name from stat_sticks limit 1"_s), name, u"report"_s);
            user.click(u"Fer"_s);
        });
    }

    void after_a_No_the_bag_still_shows_the_new_name_and_a_Yes_stores_it()
    {
        const filled_bag bag;
        in_bag([](hand& user) {
            user.fill(u"sn_0"_s, u"Big"_s);
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::No);
        });
        in_bag([](hand& user) {
            user.same(user.text(u"sn_0"_s), u"Big"_s, u"name"_s);
            user.click(u"Fer"_s);
        });
        QCOMPARE(bag.name(1), u"D1"_s);
        in_bag([](hand& user) {
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::Yes);
        });
        QCOMPARE(bag.name(1), u"Big"_s);
        QVERIFY(Main_module::club_names_kept);
    }

    void a_long_name_is_shown_from_its_beginning()
    {
        const filled_bag bag;
        Main_module::club_names[2] = QString(60, u'W');
        in_bag([](hand& user) {
            user.look(
                [] { QCOMPARE(dynamic_cast<QLineEdit&>(*find_control(u"sn_2"_s)).cursorPosition(), 0); });
            user.click(u"Fer"_s);
        });
    }
};

QTEST_MAIN(test_bag_names)
#include "test_bag_names.moc"
