#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include "data_grid.h"
#include "DataEnvironment1.h"
#include "f_new_round.h"
#include "languages.h"
#include "look.h"
#include "main_frame.h"
#include "round_windows.h"
#include "told_shots.h"

using namespace verdane;
using namespace verdane::testing;

class test_detailed_page : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { apply_look(*qApp); }

    void a_hole_of_five_shots_is_told_by_the_keyboard_alone_data() { both_languages(); }
    void a_hole_of_five_shots_is_told_by_the_keyboard_alone()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add_two_courses();
        name_the_clubs(store);
        const QString twin = french ? QStringLiteral("fr") : QStringLiteral("en");
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            // Driver, 60 left, long.
            user.type(QStringLiteral("d"));
            user.same(user.cursor(details), QStringLiteral("0,3"), QStringLiteral("on the distance"));
            user.type(QStringLiteral("60"));
            user.key(Qt::Key_Return);
            user.same(user.cursor(details), QStringLiteral("0,5"), QStringLiteral("on the kind"));
            user.type(QStringLiteral("l"));
            user.key(Qt::Key_N, Qt::ControlModifier);
            user.same(user.cursor(details), QStringLiteral("1,2"), QStringLiteral("on the club"));
            // Sand wedge, 10 yards left, approach.
            user.key(Qt::Key_Down, Qt::AltModifier);
            user.wait_for_menu(QStringLiteral("mSticks"));
            for (int steps = 0; steps < 12; ++steps)
                user.menu_key(Qt::Key_Down);
            user.menu_key(Qt::Key_Return);
            user.type(QStringLiteral("10"));
            user.key(Qt::Key_Return);
            user.type(QStringLiteral("a"));
            user.key(Qt::Key_N, Qt::ControlModifier);
            // The putter; then distances only.
            user.type(QStringLiteral("p"));
            for (const QString& left : {QStringLiteral("6"), QStringLiteral("2")}) {
                user.type(left);
                user.key(Qt::Key_Return);
            }
            user.same(user.cursor(details), QStringLiteral("4,3"), QStringLiteral("on the next putt"));
            keep_picture(user, u"details_" + twin);
            accept(user);
        });
        const QString feet = french ? QStringLiteral("Pieds") : QStringLiteral("Feets");
        const QString yards = french ? QStringLiteral("Verges") : QStringLiteral("Yards");
        const QString approach = french ? QStringLiteral("Approche") : QStringLiteral("Approach");
        QCOMPARE(stored_shots(store, 1),
                 (QStringList{u"1 101>60 "_qs + yards + u" D/1 Long/1",
                              u"2 60>30 " + feet + u" SW/13 " + approach + u"/2",
                              u"3 30>6 " + feet + u" Pu/14 Putt/3", u"4 6>2 " + feet + u" Pu/14 Putt/3",
                              u"5 2>0 " + feet + u" Pu/14 Putt/3"})
                     .join(u'\n'));
    }
};

QTEST_MAIN(test_detailed_page)

#include "test_detailed_page.moc"
