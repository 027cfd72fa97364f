#include <QPointer>
#include <QTest>

#include "controls/choice_menu.h"

using namespace verdane;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

std::chrono::milliseconds now = 0ms;

/// A menu of clubs that is shown, and the name of the chosen one.
class club_menu : public choice_menu {
public:
    club_menu()
    {
        for (const QString& club : {u"3W"_s, u"3I"_s, u"PW"_s, u"SW"_s, u"Pu"_s, u"Bois 1"_s, u"Bois 3"_s}) {
            QAction* entry = add_choice(u"club_"_s + club, club);
            QObject::connect(entry, &QAction::triggered, this, [this, club] { chosen = club; });
        }
        popup_on(QPoint(), u"3W"_s);
    }

    /// Types a letter after a pause.
    void type(char letter, std::chrono::milliseconds pause = 100ms)
    {
        now += pause;
        QTest::keyClick(this, letter);
    }

    QString marked() const { return activeAction() ? caption_of(*activeAction()) : QString(); }

    QString chosen;
};

}  // namespace

class test_choice_menu : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        choice_menu::set_clock([] { return now; });
    }

    void letters_typed_within_a_second_are_combined_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("club");
        QTest::newRow("putter") << u"Pu"_s << u"Pu"_s;
        QTest::newRow("wedge") << u"PW"_s << u"PW"_s;
        QTest::newRow("in small letters") << u"pw"_s << u"PW"_s;
        QTest::newRow("a digit and a letter") << u"3i"_s << u"3I"_s;
        QTest::newRow("the only one with its letter") << u"s"_s << u"SW"_s;
        QTest::newRow("without its blank") << u"bois3"_s << u"Bois 3"_s;
    }
    void letters_typed_within_a_second_are_combined()
    {
        QFETCH(QString, typed);
        QFETCH(QString, club);
        club_menu menu;
        for (const QChar letter : typed)
            menu.type(letter.toLatin1(), letter == typed.front() ? 5000ms : 1000ms);
        QCOMPARE(menu.chosen, club);
        QVERIFY(!menu.isVisible());
    }

    void a_letter_after_more_than_a_second_starts_a_new_search()
    {
        club_menu menu;
        menu.type('b');
        QCOMPARE(menu.marked(), u"Bois 1"_s);
        menu.type('s', 1001ms);
        QCOMPARE(menu.chosen, u"SW"_s);
    }

    void a_letter_with_which_no_combination_begins_starts_a_new_search()
    {
        club_menu menu;
        menu.type('p');
        QCOMPARE(menu.marked(), u"PW"_s);
        menu.type('p');
        QCOMPARE(menu.marked(), u"Pu"_s);
        menu.type('w');
        QCOMPARE(menu.chosen, u"PW"_s);
    }

    void a_second_letter_keeps_the_marked_entry_if_it_matches()
    {
        club_menu menu;
        menu.type('b');
        menu.type('o');
        QCOMPARE(menu.marked(), u"Bois 1"_s);
        menu.type('b', 2000ms);
        QCOMPARE(menu.marked(), u"Bois 3"_s);
        QCOMPARE(menu.chosen, QString());
    }

    void a_menu_that_opens_again_starts_a_new_search()
    {
        club_menu menu;
        menu.type('p');
        menu.hide();
        menu.popup_on(QPoint(), u"3W"_s);
        menu.type('u');
        QCOMPARE(menu.chosen, QString());
        QVERIFY(menu.isVisible());
    }
};

QTEST_MAIN(test_choice_menu)
#include "test_choice_menu.moc"
