#include <QTest>

#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int last_hole = 18;

/// Enters a drive with a penalty and an approach that is holed: two shots on a par 4.
void enter_hole_with_penalty(hand& user, int entry)
{
    enter_shot(user, 0, 1, u"60"_s, 1);
    user.open_menu(details, 0, 11);
    user.choose_menu_entry(u"mp_%1"_s.arg(entry));
    user.click(u"CommandSuiv"_s);
    enter_shot(user, 1, 9, u"0"_s, 2);
}

QString penalty_boxes(hand& user)
{
    QStringList texts;
    for (int box = 8; box <= 11; ++box)
        texts << user.text(u"text_s_%1"_s.arg(box));
    return texts.join(u' ');
}

void hole_counts_three(hand& user, const QString& penalties)
{
    user.same(penalty_boxes(user), penalties, u"penalties"_s);
    user.same(user.text(u"text_36"_s), u"1"_s, u"their sum"_s);
    user.same(user.text(u"text_vrd_3"_s), u"2"_s, u"shots"_s);
    user.same(user.text(u"l_brut"_s), u"3"_s, u"score"_s);
    user.same(user.text(u"l_plus"_s), u"-69"_s, u"over par"_s);
    // A birdie: three strokes on a par 4.
    user.same(user.text(u"text_24"_s), u"1"_s, u"birdie"_s);
}

}  // namespace

class test_grid_penalties : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_penalty_of_the_grid_counts_in_its_box_and_in_the_score_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<QString>("boxes");
        QTest::newRow("water") << 1 << "1 0 0 0";
        QTest::newRow("lost ball") << 2 << "0 1 0 0";
        QTest::newRow("rules") << 3 << "0 0 1 0";
        QTest::newRow("out of bounds") << 4 << "0 0 0 1";
    }
    void a_penalty_of_the_grid_counts_in_its_box_and_in_the_score()
    {
        QFETCH(int, entry);
        QFETCH(QString, boxes);
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.click_tab(hole_tabs, last_hole);
            open_detailed_page(user);
            enter_hole_with_penalty(user, entry);
            open_quick_page(user);
            hole_counts_three(user, boxes);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, last_hole), QString(u"1 1 0 2 0 0 0 " + boxes));
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            user.click_tab(hole_tabs, last_hole);
            hole_counts_three(user, boxes);
            discard(user);
        });
    }
};

QTEST_MAIN(test_grid_penalties)

#include "test_grid_penalties.moc"
