#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include "controls/choice_menu.h"
#include "controls/data_grid.h"
#include "controls/look.h"
#include "controls/main_frame.h"
#include "records/Main_module.h"
#include "round/f_new_round.h"
#include "store/DataEnvironment1.h"
#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// A value of a row of the program's recordset, committed or not.
QString pending_value(hand& user, const QString& column, int shot = 1)
{
    QString text;
    user.look([&] {
        Recordset& shots = data_environment().rsStat_rounds;
        text = shots.value_at(shot - 1, shots.Fields(column).ordinal()).toString();
    });
    return text;
}

/// The index of the marked entry in the open menu.
int marked_entry(hand& user)
{
    int place = -1;
    user.look([&place] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu)
            place = static_cast<int>(menu->actions().indexOf(menu->activeAction()));
    });
    return place;
}

/// Chooses an entry (from 0) from the menu of a cell by the keyboard alone.
void choose_by_keyboard(hand& user, int row, int column, const QString& menu, int entry)
{
    user.click_cell(details, row, column);
    user.key(Qt::Key_F4);
    user.wait_for_menu(menu);
    // The menu opens at the entry that equals the text of the cell, if there is one.
    for (int steps = 0; steps < 20 && marked_entry(user) != entry; ++steps)
        user.menu_key(Qt::Key_Down);
    user.menu_key(Qt::Key_Return);
}

/// Opens a new round on its detailed page, runs the script and unloads the window.
void in_detailed_page(const std::function<void(hand&)>& script)
{
    in_keyed_round([&](hand& user) {
        open_detailed_page(user);
        script(user);
        with_round(user, [](f_new_round& window) { window.unload(); });
    });
}

/// Pastes a text into the distance of the first shot and returns the text of the cell.
QString pasted_distance(hand& user, const QString& text)
{
    user.look([&] { QApplication::clipboard()->setText(text); });
    user.click_cell(details, 0, 3);
    user.key(Qt::Key_F2);
    user.key(Qt::Key_A, Qt::ControlModifier);
    user.key(Qt::Key_V, Qt::ControlModifier);
    user.key(Qt::Key_Return);
    return user.cell(details, 0, 3);
}

}  // namespace

class test_detailed_page : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { apply_look(*qApp); }

    void a_hole_of_five_shots_is_entered_by_the_keyboard_alone_data() { both_languages(); }
    void a_hole_of_five_shots_is_entered_by_the_keyboard_alone()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add_two_courses();
        name_the_clubs(store);
        const QString twin = french ? u"fr"_s : u"en"_s;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            // The driver, 60 yards left, long.
            user.type(u"d"_s);
            user.same(user.cursor(details), u"0,3"_s, u"on the distance"_s);
            user.type(u"60"_s);
            user.key(Qt::Key_Return);
            user.same(user.cursor(details), u"0,5"_s, u"on the kind"_s);
            user.type(u"l"_s);
            user.key(Qt::Key_N, Qt::ControlModifier);
            user.same(user.cursor(details), u"1,2"_s, u"on the club"_s);
            // The sand wedge, 10 yards left, approach.
            user.key(Qt::Key_Down, Qt::AltModifier);
            user.wait_for_menu(u"mSticks"_s);
            for (int steps = 0; steps < 12; ++steps)
                user.menu_key(Qt::Key_Down);
            user.menu_key(Qt::Key_Return);
            user.type(u"10"_s);
            user.key(Qt::Key_Return);
            user.type(u"a"_s);
            user.key(Qt::Key_N, Qt::ControlModifier);
            // The putter, then only distances.
            user.type(u"p"_s);
            for (const QString& left : {u"6"_s, u"2"_s}) {
                user.type(left);
                user.key(Qt::Key_Return);
            }
            user.same(user.cursor(details), u"4,3"_s, u"on the next putt"_s);
            keep_picture(user, u"details_" + twin);
            accept(user);
        });
        const QString feet = french ? u"Pieds"_s : u"Feets"_s;
        const QString yards = french ? u"Verges"_s : u"Yards"_s;
        const QString approach = french ? u"Approche"_s : u"Approach"_s;
        QCOMPARE(stored_shots(store, 1),
                 (QStringList{u"1 101>60 "_s + yards + u" D/1 Long/1",
                              u"2 60>30 " + feet + u" SW/13 " + approach + u"/2",
                              u"3 30>6 " + feet + u" Pu/14 Putt/3", u"4 6>2 " + feet + u" Pu/14 Putt/3",
                              u"5 2>0 " + feet + u" Pu/14 Putt/3"})
                     .join(u'\n'));
    }

    void the_words_of_the_menus_fit_into_their_cells_data() { both_languages(); }
    void the_words_of_the_menus_fit_into_their_cells()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_detailed_page([&](hand& user) {
            with_round(user, [](f_new_round& window) {
                const auto& grid = find_control<data_grid>(window, details);
                const QList<std::pair<int, QString>> menus{
                    {2, u"mSticks"_s}, {5, u"mshot"_s}, {7, u"mon"_s}, {10, u"mAlle"_s}, {11, u"mpen"_s}};
                for (const auto& [column, menu] : menus) {
                    const QRect cell(0, 0, grid.columnWidth(column), 20);
                    for (const QAction* entry : find_control<choice_menu>(window, menu).actions())
                        QVERIFY2(grid.fontMetrics().horizontalAdvance(choice_menu::caption_of(*entry)) <
                                     cell_menus::button_in(cell).left(),
                                 qPrintable(choice_menu::caption_of(*entry)));
                }
            });
        });
    }

    void each_menu_is_chosen_from_by_the_keyboard_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("menu");
        QTest::addColumn<int>("entry");
        QTest::addColumn<QString>("kept");
        QTest::addColumn<QString>("cursor");
        QTest::newRow("club") << 2 << "mSticks" << 12 << "SW/13"
                              << "0,3";
        QTest::newRow("kind") << 5 << "mshot" << 1 << "Approche/2"
                              << "0,5";
        QTest::newRow("beyond the hole") << 6 << "mon" << 0 << "Oui/true"
                                         << "0,7";
        QTest::newRow("missed") << 7 << "mon" << 0 << "Oui/true"
                                << "0,8";
        QTest::newRow("sand") << 8 << "mon" << 0 << "Oui/true"
                              << "0,9";
        QTest::newRow("distance zero") << 9 << "mon" << 1 << "Non/false"
                                       << "0,10";
        QTest::newRow("position") << 10 << "mAlle" << 1 << "Gauche/2"
                                  << "0,11";
        QTest::newRow("penalty") << 11 << "mpen" << 3 << "Hors limites/4"
                                 << "0,11";
        QTest::newRow("no penalty") << 11 << "mpen" << 4 << " /0"
                                    << "0,11";
    }
    void each_menu_is_chosen_from_by_the_keyboard()
    {
        QFETCH(int, column);
        QFETCH(QString, menu);
        QFETCH(int, entry);
        QFETCH(QString, kept);
        QFETCH(QString, cursor);
        const QStringList fields{
            QString(),        QString(),   u"stickval"_s, QString(), QString(),    u"shot_type_value"_s,
            u"beyong_hole"_s, u"missed"_s, u"ts"_s,       u"dz"_s,   u"fairval"_s, u"penval"_s};
        const golfer_store round;
        in_detailed_page([&](hand& user) {
            choose_by_keyboard(user, 0, column, menu, entry);
            user.same(QString(user.cell(details, 0, column) + u'/' + pending_value(user, fields[column])),
                      kept, menu);
            user.same(user.cursor(details), cursor, u"cursor"_s);
        });
    }

    void a_pasted_distance_is_digits_or_nothing_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("kept");
        for (const char* refused : {"-5", "12a", "2.5", "1e3", " 7"})
            QTest::newRow(refused) << QString::fromLatin1(refused) << "60";
        QTest::newRow("digits of another script") << u"\u0661\u0662"_s << "60";
        QTest::newRow("the last that fits") << "32767"
                                            << "32767";
        QTest::newRow("digits") << "045"
                                << "45";
    }
    void a_pasted_distance_is_digits_or_nothing()
    {
        QFETCH(QString, text);
        QFETCH(QString, kept);
        const golfer_store round;
        in_detailed_page([&](hand& user) {
            enter_shot(user, 0, 1, u"60"_s, 1);
            const int before = user.bells();
            user.same(pasted_distance(user, text), kept, u"distance"_s);
            user.check((user.bells() > before) == (kept == u"60"), u"the bell"_s);
        });
    }

    void columns_and_clubs_are_set_up_again_whenever_the_page_is_opened()
    {
        const golfer_store round;
        in_detailed_page([&](hand& user) {
            with_round(user, [](f_new_round& window) {
                find_control<data_grid>(window, details).setColumnWidth(3, 40);
                find_control<data_grid>(window, details).setColumnHidden(11, true);
                find_control<data_grid>(window, details).setColumnHidden(12, false);
                find_control<data_grid>(window, details).set_Col(7);
            });
            open_quick_page(user);
            round.store.store.write(u"update sticknames set club_1 = 'Bois d''été', club_2 = 'R & \"B\"'"_s);
            user.look([] { Unlock_menu(); });
            open_detailed_page(user);
            user.check(round.store.frame.locked, u"the menu is locked"_s);
            with_round(user, [](f_new_round& window) {
                QCOMPARE(find_control<data_grid>(window, details).columnWidth(3), pixels(2000));
                QVERIFY(!find_control<data_grid>(window, details).isColumnHidden(11));
                QVERIFY(find_control<data_grid>(window, details).isColumnHidden(12));
            });
            user.same(user.cursor(details), u"0,2"_s, u"cursor"_s);
            enter_shot(user, 0, 1, QString(), 0);
            user.same(user.cell(details, 0, 2), u"Bois d'été"_s, u"club 1"_s);
            enter_shot(user, 0, 2, QString(), 0);
            with_round(user, [](f_new_round& window) { window.saveShots(); });
            user.same(round.store.text(u"select stick from Stat_rounds"_s), u"R & \"B\""_s, u"club 2"_s);
        });
    }

    void the_menu_shows_club_names_that_the_golf_bag_did_not_store()
    {
        const golfer_store round;
        Main_module::club_names[0] = u"Big & B"_s;
        Main_module::club_names_kept = false;
        in_detailed_page([&](hand& user) {
            enter_shot(user, 0, 1, QString(), 0);
            user.same(user.cell(details, 0, 2), u"Big & B"_s, u"club 1"_s);
        });
    }

    void a_putter_that_the_program_selects_has_its_fixed_name()
    {
        const golfer_store round;
        round.store.store.write(u"update sticknames set club_14 = 'Fer droit'"_s);
        in_detailed_page([&](hand& user) {
            enter_shot(user, 0, 5, u"20"_s, 3);
            user.same(user.cell(details, 1, 2), u"Pu"_s, u"by the kind"_s);
            enter_shot(user, 1, 14, u"6"_s, 0);
            user.same(user.cell(details, 1, 2), u"Fer droit"_s, u"by the menu"_s);
            user.same(user.cell(details, 2, 2), u"Pu"_s, u"by the distance"_s);
        });
    }

    void a_change_of_any_cell_writes_the_par_and_moves_the_cursor()
    {
        const golfer_store round;
        in_detailed_page([&](hand& user) {
            enter_shot(user, 0, 1, QString(), 1);
            user.click_cell(details, 0, 1);
            user.type(u"9"_s);
            user.click(u"cmb_courses"_s);
            user.key(Qt::Key_Escape);
            user.same(user.cursor(details), u"0,4"_s, u"cursor"_s);
            user.same(pending_value(user, u"normal"_s), u"4"_s, u"par"_s);
            user.same(pending_value(user, u"shot"_s), u"9"_s, u"number"_s);
            open_quick_page(user);
            user.same(pending_value(user, u"shot"_s), u"1"_s, u"renumbered"_s);
        });
    }

    void the_shots_of_the_current_hole_are_read_by_its_statement()
    {
        const golfer_store round;
        in_detailed_page([&](hand& user) {
            enter_shot(user, 0, 1, u"60"_s, 1);
            user.click_tab(hole_tabs, 12);
            QString statement;
            user.look([&] { statement = data_environment().rsStat_rounds.Source(); });
            user.same(statement,
                      u"Select * from Stat_rounds where ( date= '20240614093000' ) and hole = "
                      u"12 order by shot"_s,
                      u"statement"_s);
        });
    }
};

QTEST_MAIN(test_detailed_page)

#include "test_detailed_page.moc"
