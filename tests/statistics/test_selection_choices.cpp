#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QTest>

#include "statistics/f_date_range.h"
#include "statistics/f_date_range_func.h"
#include "tests/statistics/selection_windows.h"
#include "tests/statistics/three_rounds.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/stored_diary.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

struct choices {
    int from = 0;
    int to = 0;
    int course = 0;
    int partner = 0;
    int weather = 0;
};

/// The arguments that the window passes to the statistics for these choices.
selection_arguments arguments_of(const choices& picked, statistics_mode mode = statistics_mode::round)
{
    f_date_range window(mode);
    find_control<QListWidget>(window, u"List1"_s).setCurrentRow(picked.from);
    find_control<QListWidget>(window, u"List2"_s).setCurrentRow(picked.to);
    find_control<QComboBox>(window, u"cmb_courses"_s).setCurrentIndex(picked.course);
    find_control<QComboBox>(window, u"pList"_s).setCurrentIndex(picked.partner);
    find_control<QComboBox>(window, u"conditions"_s).setCurrentIndex(picked.weather);
    return f_date_range_func::selection_of(window);
}

}  // namespace

class test_selection_choices : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void each_selection_updates_the_number_of_rounds_between_which_is_not_shown()
    {
        const stored_diary store;
        add_three_rounds(store.book);
        const f_date_range window;
        auto& first = find_control<QListWidget>(window, u"List1"_s);
        auto& last = find_control<QListWidget>(window, u"List2"_s);
        QCOMPARE(plain(window.rounds_between()), 1);
        last.setCurrentRow(2);
        QCOMPARE(plain(window.rounds_between()), 3);
        first.setCurrentRow(2);
        QCOMPARE(plain(window.rounds_between()), 1);
        last.setCurrentRow(0);
        QCOMPARE(plain(window.rounds_between()), -1);
        QCOMPARE(find_control<QLabel>(window, u"Label1_7"_s).text(), u"3"_s);
    }

    void a_click_below_the_last_line_does_not_change_the_selection()
    {
        const stored_diary store;
        add_three_rounds(store.book);
        in_selection_window([](hand& user) {
            user.click_row(u"List1"_s, 1);
            user.click(u"List1"_s);
            user.look([&] {
                const auto& list = find_control<QListWidget>(*active_form(), u"List1"_s);
                QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                                  QPoint(5, list.viewport()->height() - 5));
                user.check(list.selectedItems().size() == 1 && list.currentRow() == 1, u"selection"_s);
            });
        });
    }

    void the_selection_arguments_contain_the_choices_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QList<int>>("picked");
        QTest::addColumn<QStringList>("expected");
        // Keys; clauses of partner, course, weather; their texts; weather, course and partner plain.
        QTest::newRow("nothing picked, French")
            << true << QList<int>{0, 0, 0, 0, 0} << QStringList{u"20030101093000"_s,
                                                                u"20030101093000"_s,
                                                                u" "_s,
                                                                u" "_s,
                                                                u" "_s,
                                                                u"TOUS LES PARTENAIRES"_s,
                                                                u"TOUS LES TERRAINS"_s,
                                                                u" TOUTES"_s,
                                                                QString(),
                                                                QString(),
                                                                QString()};
        QTest::newRow("nothing picked, English")
            << false << QList<int>{0, 2, 0, 0, 0} << QStringList{u"20030101093000"_s,
                                                                 u"20030103093000"_s,
                                                                 u" "_s,
                                                                 u" "_s,
                                                                 u" "_s,
                                                                 u"ALL PARTNERS"_s,
                                                                 u"ALL COURSES"_s,
                                                                 u" ALL"_s,
                                                                 QString(),
                                                                 QString(),
                                                                 QString()};
        QTest::newRow("everything picked, French")
            << true << QList<int>{2, 0, 2, 1, 1}
            << QStringList{u"20030103093000"_s,
                           u"20030101093000"_s,
                           u" AND INSTR(GAMES2.PARTNERS,'12')"_s,
                           u" AND GAMES2.FC = 'NORTH BERWICK WEST LINKS-5'"_s,
                           u" AND (games2.conditionM = 0)"_s,
                           u"Anne, Douze"_s,
                           u"North Berwick West Links, Jaune"_s,
                           u"Ensoleillé"_s,
                           u"0"_s,
                           u"NORTH BERWICK WEST LINKS-5"_s,
                           u"12"_s};
        QTest::newRow("everything picked, English") << false << QList<int>{1, 2, 1, 2, 4}
                                                    << QStringList{u"20030102093000"_s,
                                                                   u"20030103093000"_s,
                                                                   u" AND INSTR(GAMES2.PARTNERS,'7')"_s,
                                                                   u" AND GAMES2.FC = 'PEBBLE BEACH-3'"_s,
                                                                   u" AND (games2.conditionM = 3)"_s,
                                                                   u"Zoé, Sept"_s,
                                                                   u"Pebble Beach        , Gold"_s,
                                                                   u"Windy"_s,
                                                                   u"3"_s,
                                                                   u"PEBBLE BEACH-3"_s,
                                                                   u"7"_s};
    }
    void the_selection_arguments_contain_the_choices()
    {
        QFETCH(bool, french);
        QFETCH(QList<int>, picked);
        QFETCH(QStringList, expected);
        const stored_diary store(french);
        add_three_rounds(store.book);
        const selection_arguments got = arguments_of({picked[0], picked[1], picked[2], picked[3], picked[4]});
        const QStringList seen{got.from_key,       got.to_key,       got.partner_clause, got.course_clause,
                               got.weather_clause, got.partner_text, got.course_text,    got.weather_text,
                               got.weather_value,  got.course_code,  got.partner_number};
        QCOMPARE(seen, expected);
        QVERIFY(open_recordsets().isEmpty());
    }

    void every_statistic_has_its_form_of_the_clauses_data()
    {
        using enum statistics_mode;
        QTest::addColumn<statistics_mode>("mode");
        QTest::addColumn<bool>("french");
        QTest::addColumn<bool>("on");
        QTest::addColumn<QStringList>("expected");
        const QStringList appended{u" AND INSTR(GAMES2.PARTNERS,'12')"_s,
                                   u" AND GAMES2.FC = 'NORTH BERWICK WEST LINKS-5'"_s,
                                   u" AND (games2.conditionM = 0)"_s};
        const QStringList alone{u" INSTR(GAMES2.PARTNERS,'12')"_s,
                                u" GAMES2.FC = 'NORTH BERWICK WEST LINKS-5'"_s,
                                u" (games2.conditionM = 0)"_s};
        const QStringList blanks{u" "_s, u" "_s, u" "_s};
        const QStringList always{u" true"_s, u"true"_s, u" true "_s};
        const QString in_the_sun = u"Ensoleillé"_s;
        QTest::newRow("clubs, open, French") << club << true << false << blanks + QStringList{u"Toutes"_s};
        QTest::newRow("clubs, open, English") << club << false << false << blanks + QStringList{u"ALL"_s};
        QTest::newRow("clubs, chosen") << club << true << true << appended + QStringList{in_the_sun};
        QTest::newRow("putts, open, French") << putt << true << false << always + QStringList{u"Toutes"_s};
        QTest::newRow("putts, open, English") << putt << false << false << always + QStringList{u"ALL"_s};
        QTest::newRow("putts, chosen") << putt << true << true << alone + QStringList{in_the_sun};
        QTest::newRow("costs, open, French") << cost << true << false << blanks + QStringList{u" TOUTES"_s};
        QTest::newRow("costs, open, English") << cost << false << false << blanks + QStringList{u" ALL"_s};
        QTest::newRow("costs, chosen") << cost << true << true << appended + QStringList{in_the_sun};
    }
    void every_statistic_has_its_form_of_the_clauses()
    {
        QFETCH(statistics_mode, mode);
        QFETCH(bool, french);
        QFETCH(bool, on);
        const stored_diary store(french);
        add_three_rounds(store.book);
        const choices picked = on ? choices{0, 1, 2, 1, 1} : choices{};
        const selection_arguments got = arguments_of(picked, mode);
        const QStringList seen{got.partner_clause, got.course_clause, got.weather_clause, got.weather_text};
        QTEST(seen, "expected");
    }
};

QTEST_MAIN(test_selection_choices)
#include "test_selection_choices.moc"
