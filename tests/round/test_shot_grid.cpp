#include <QAction>
#include <QHeaderView>
#include <QTest>

#include "controls/data_grid.h"
#include "controls/look.h"
#include "round/detailed_page.h"
#include "round/f_new_round.h"
#include "store/DataEnvironment1.h"
#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QStringList french_heads{
    u"Trou"_s,  u"Coup"_s,        u"Bâton"_s, u"Distance restante"_s, u"Unités"_s,
    u"VRD"_s,   u"Dépassement"_s, u"Raté"_s,  u"Trappe de sable"_s,   u"Distance zéro"_s,
    u"Allée"_s, u"Pénalité"_s,    u"Shot"_s};
const QStringList english_heads{
    u"Shot"_s,     u"Shot"_s,        u"Club"_s,    u"Remaining Distance"_s, u"Units"_s,
    u"VRD"_s,      u"Beyond hole"_s, u"Missed "_s, u"Sand Trap "_s,         u"Distance zero"_s,
    u"Fairway "_s, u"Penalty "_s,    u"Shot"_s};

QString value(const QString& column, int shot = 1)
{
    Recordset& shots = data_environment().rsStat_rounds;
    return shots.value_at(shot - 1, shots.Fields(column).ordinal()).toString();
}

/// A value of a row of the program's recordset, committed or not.
QString pending_value(hand& user, const QString& column, int shot = 1)
{
    QString text;
    user.look([&] { text = value(column, shot); });
    return text;
}

}  // namespace

class test_shot_grid : public QObject {
    Q_OBJECT

    /// Opens a new round on its detailed page; hole 1 is par 4 and 101 yards long. Closes it from the quick
    /// page.
    static void in_detailed_page(bool french, const std::function<void(hand&)>& script)
    {
        const round_store store(french);
        store.add_two_courses();
        name_the_clubs(store);
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            script(user);
            with_round(user, [](f_new_round& window) { window.unload(); });
        });
    }

private Q_SLOTS:
    void the_columns_have_their_captions_and_order_data() { both_languages(); }
    void the_columns_have_their_captions_and_order()
    {
        QFETCH(bool, french);
        in_detailed_page(french, [&](hand& user) {
            with_round(user, [&](f_new_round& window) {
                const auto& grid = find_control<data_grid>(window, details);
                const QAbstractItemModel& model = *grid.model();
                QCOMPARE(model.columnCount(), 13);
                const QList<int> twips{0, 700, 700, 2000, 700, 1740, 1740, 700, 1300, 1200, 1500, 1200, 0};
                const QList<int> locked{2, 4, 6, 7, 8, 9, 10};
                for (int column = 0; column < 13; ++column) {
                    QCOMPARE(model.headerData(column, Qt::Horizontal).toString(),
                             (french ? french_heads : english_heads)[column]);
                    QCOMPARE(grid.isColumnHidden(column), twips[column] == 0);
                    QVERIFY(twips[column] == 0 || grid.columnWidth(column) >= pixels(twips[column]));
                    QCOMPARE(model.flags(model.index(0, column)).testFlag(Qt::ItemIsEditable),
                             !locked.contains(column));
                }
                QCOMPARE(grid.columnWidth(3), pixels(2000));
            });
        });
    }

    void a_hole_without_shots_shows_a_blank_one_data() { both_languages(); }
    void a_hole_without_shots_shows_a_blank_one()
    {
        QFETCH(bool, french);
        in_detailed_page(french, [&](hand& user) {
            user.same(user.grid_row(details, 0),
                      french ? u"1 |  |  |  |  | Non | Non | Non | Non | Dans l'allé | "_s
                             : u"1 |  |  |  |  | No | No | No | No | Fairway | "_s,
                      u"first row"_s);
            user.same(user.grid_rows(details), 1, u"rows"_s);
            user.same(user.cursor(details), u"0,2"_s, u"cursor"_s);
            user.same(user.focus(), details, u"focus"_s);
            const QList<std::pair<QString, QString>> born{
                {u"date"_s, key_of_keyed_round()}, {u"hole"_s, u"1"_s},    {u"before"_s, u"101"_s},
                {u"verges"_s, u"101"_s},           {u"fairval"_s, u"1"_s}, {u"after"_s, QString()}};
            for (const auto& [column, expected] : born)
                user.same(pending_value(user, column), expected, column);
        });
    }

    void each_button_opens_its_menu_data() { both_languages(); }
    void each_button_opens_its_menu()
    {
        QFETCH(bool, french);
        const QString yes_no = french ? u"Oui,Non"_s : u"Yes,No"_s;
        const QList<std::tuple<int, QString, QString>> menus{
            {2, u"mSticks"_s, u"D,F2,F3,F4,F5,F6,F7,F8,F9,F10,F11,F12,SW,Pu"_s},
            {5, u"mshot"_s, french ? u"Long,Approche,Putt"_s : u"Long,Approach,Putt"_s},
            {6, u"mon"_s, yes_no},
            {7, u"mon"_s, yes_no},
            {8, u"mon"_s, yes_no},
            {9, u"mon"_s, yes_no},
            {10, u"mAlle"_s, french ? u"Dans l'allé,Gauche,Droite"_s : u"Fairway,Left,Right"_s},
            {11, u"mpen"_s,
             french ? u"Eau,Balle perdue,Règlement,Hors limites, "_s
                    : u"Water Hazard,Lost Ball,Rules,Out of Bounds, "_s}};
        in_detailed_page(french, [&](hand& user) {
            for (const auto& [column, name, entries] : menus) {
                user.open_menu(details, 0, column);
                user.wait_for_menu(name);
                user.same(user.menu_entries().join(u','), entries, name);
                user.menu_key(Qt::Key_Escape);
                user.click_cell(details, 0, column);
                user.key(Qt::Key_F4);
                user.wait_for_menu(name);
                user.menu_key(Qt::Key_Escape);
            }
        });
    }

    void a_club_sets_yards_and_moves_the_cursor_to_the_distance_data() { both_languages(); }
    void a_club_sets_yards_and_moves_the_cursor_to_the_distance()
    {
        QFETCH(bool, french);
        in_detailed_page(french, [&](hand& user) {
            enter_shot(user, 0, 3, QString(), 0);
            user.same(pending_value(user, u"stick"_s) + pending_value(user, u"stickval"_s), u"F33"_s,
                      u"club"_s);
            user.same(user.cell(details, 0, 4), french ? u"Verges"_s : u"Yards"_s, u"unit"_s);
            user.same(user.cell(details, 0, 5), QString(), u"kind"_s);
            user.same(user.cursor(details), u"0,3"_s, u"cursor"_s);
        });
    }

    void the_putter_sets_the_kind_putt_and_feet_data() { both_languages(); }
    void the_putter_sets_the_kind_putt_and_feet()
    {
        QFETCH(bool, french);
        in_detailed_page(french, [&](hand& user) {
            enter_shot(user, 0, 14, QString(), 0);
            user.same(user.cell(details, 0, 2), u"Pu"_s, u"club"_s);
            user.same(user.cell(details, 0, 4), french ? u"Pieds"_s : u"Feets"_s, u"unit"_s);
            user.same(user.cell(details, 0, 5) + pending_value(user, u"shot_type_value"_s), u"Putt3"_s,
                      u"kind"_s);
            user.same(user.cursor(details), u"0,3"_s, u"cursor"_s);
            // Another club after the putter: the kind is cleared, the unit is still feet.
            enter_shot(user, 0, 5, QString(), 0);
            user.same(user.cell(details, 0, 4), french ? u"Pieds"_s : u"Feets"_s, u"unit"_s);
            user.same(u'<' + user.cell(details, 0, 5) + u'>' + pending_value(user, u"shot_type_value"_s),
                      u"< >0"_s, u"kind"_s);
        });
    }

    void the_kind_is_kept_when_a_club_is_replaced_by_another()
    {
        in_detailed_page(true, [&](hand& user) {
            enter_shot(user, 0, 3, QString(), 1);
            user.same(user.cursor(details), u"0,5"_s, u"cursor"_s);
            enter_shot(user, 0, 4, QString(), 0);
            user.same(user.cell(details, 0, 5), u"Long"_s, u"kind"_s);
        });
    }

    void the_distance_takes_only_digits()
    {
        in_detailed_page(true, [&](hand& user) {
            user.click_cell(details, 0, 3);
            const int before = user.bells();
            user.type(u"a1b.2-"_s);
            user.same(user.bells() - before, 4, u"bells"_s);
            user.key(Qt::Key_Backspace);
            user.type(u"5"_s);
            user.key(Qt::Key_Tab);
            user.same(user.cell(details, 0, 3), u"15"_s, u"distance"_s);
        });
    }

    void a_typed_distance_sets_yards_and_the_par_data()
    {
        QTest::addColumn<bool>("put_mode");
        QTest::addColumn<QString>("cursor");
        // Enter moves the cursor by one cell: from the unit, or from the club if a putt is being entered.
        QTest::newRow("a shot") << false << "0,5";
        QTest::newRow("a putt is being entered") << true << "0,3";
    }
    void a_typed_distance_sets_yards_and_the_par()
    {
        QFETCH(bool, put_mode);
        QFETCH(QString, cursor);
        in_detailed_page(true, [&](hand& user) {
            if (put_mode)
                enter_hole(user);
            else
                enter_shot(user, 0, 3, QString(), 1);
            user.click_cell(details, 0, 3);
            user.type(u"60"_s);
            user.key(Qt::Key_Return);
            user.same(user.cell(details, 0, 3) + user.cell(details, 0, 4), u"60Verges"_s, u"distance"_s);
            user.same(pending_value(user, u"normal"_s), u"4"_s, u"par"_s);
            user.same(user.cursor(details), cursor, u"cursor"_s);
        });
    }

    void a_distance_left_by_a_click_moves_the_cursor_to_the_next_cell_data()
    {
        QTest::addColumn<bool>("put_mode");
        QTest::addColumn<QString>("cursor");
        QTest::newRow("a shot") << false << "0,4";
        QTest::newRow("a putt is being entered") << true << "0,2";
    }
    void a_distance_left_by_a_click_moves_the_cursor_to_the_next_cell()
    {
        QFETCH(bool, put_mode);
        QFETCH(QString, cursor);
        in_detailed_page(true, [&](hand& user) {
            if (put_mode)
                enter_hole(user);
            user.click_cell(details, 0, 3);
            user.type(u"60"_s);
            user.click(u"cmb_courses"_s);
            user.key(Qt::Key_Escape);
            user.same(user.cursor(details), cursor, u"cursor"_s);
        });
    }

    void a_position_is_stored_with_its_code_and_the_cursor_moves()
    {
        in_detailed_page(false, [&](hand& user) {
            user.open_menu(details, 0, 10);
            user.choose_menu_entry(u"ma_3"_s);
            user.same(user.cell(details, 0, 10) + pending_value(user, u"fairval"_s), u"Right3"_s,
                      u"position"_s);
            user.same(user.cursor(details), u"0,11"_s, u"cursor"_s);
        });
    }

    void a_penalty_is_stored_with_its_code_and_stroke_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<QString>("kept");
        QTest::newRow("water") << 1 << "Eau/1/1";
        QTest::newRow("lost ball") << 2 << "Balle perdue/2/1";
        QTest::newRow("rules") << 3 << "Règlement/3/1";
        QTest::newRow("out of bounds") << 4 << "Hors limites/4/1";
        QTest::newRow("none") << 5 << " /0/0";
    }
    void a_penalty_is_stored_with_its_code_and_stroke()
    {
        QFETCH(int, entry);
        QFETCH(QString, kept);
        in_detailed_page(true, [&](hand& user) {
            user.open_menu(details, 0, 11);
            user.choose_menu_entry(u"mp_2"_s);
            user.open_menu(details, 0, 11);
            user.choose_menu_entry(u"mp_%1"_s.arg(entry));
            user.same(QStringList{user.cell(details, 0, 11), pending_value(user, u"penval"_s),
                                  pending_value(user, u"addpen"_s)}
                          .join(u'/'),
                      kept, u"penalty"_s);
            user.same(user.focus(), u"CommandSuiv"_s, u"focus"_s);
        });
    }

    void yes_and_no_are_stored_in_the_column_of_the_cursor_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("field");
        QTest::newRow("beyond the hole") << 6 << "beyong_hole";
        QTest::newRow("missed") << 7 << "missed";
        QTest::newRow("sand") << 8 << "ts";
        QTest::newRow("distance zero") << 9 << "dz";
    }
    void yes_and_no_are_stored_in_the_column_of_the_cursor()
    {
        QFETCH(int, column);
        QFETCH(QString, field);
        in_detailed_page(false, [&](hand& user) {
            user.open_menu(details, 0, column);
            user.choose_menu_entry(u"mb_0"_s);
            user.same(user.cell(details, 0, column), u"Yes"_s, u"cell"_s);
            user.same(pending_value(user, field), u"true"_s, field);
            user.same(user.cursor(details), u"0,%1"_s.arg(column + 1), u"cursor"_s);
            user.click_cell(details, 0, column);
            user.type(u"n"_s);
            user.same(user.cell(details, 0, column), u"No"_s, u"cell"_s);
            user.same(pending_value(user, field), u"false"_s, field);
        });
    }

    void a_cell_with_a_menu_is_not_typed_into()
    {
        in_detailed_page(true, [&](hand& user) {
            user.click_cell(details, 0, 5);
            const int before = user.bells();
            user.key(Qt::Key_Backspace);
            user.same(user.bells() - before, 1, u"bell"_s);
            user.check(!user.exists(u"cell_being_typed"_s), u"no box"_s);
        });
    }

    void without_a_shot_a_choice_stores_nothing_data()
    {
        QTest::addColumn<QString>("entry");
        for (const char* entry : {"ms1_1", "mshots_3", "mb_0", "ma_1", "mp_1"})
            QTest::newRow(entry) << entry;
    }
    void without_a_shot_a_choice_stores_nothing()
    {
        QFETCH(QString, entry);
        in_detailed_page(true, [&](hand& user) {
            user.click(u"CommandSup"_s);
            with_round(user, [&](f_new_round& window) { window.findChild<QAction*>(entry)->trigger(); });
            user.same(user.grid_rows(details), 0, u"shots"_s);
        });
    }

    void without_a_shot_a_changed_cell_stores_nothing()
    {
        in_detailed_page(true, [&](hand& user) {
            user.click(u"CommandSup"_s);
            with_round(user, [](f_new_round& window) {
                auto& grid = find_control<data_grid>(window, details);
                Q_EMIT grid.column_updated(3);
            });
            user.same(user.grid_rows(details), 0, u"shots"_s);
        });
    }

    void the_page_disables_Save_and_Close_and_the_menu()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            user.check(store.frame.enabled(u"B4"_s), u"Save before"_s);
            open_detailed_page(user);
            user.check(store.frame.locked, u"the menu is locked"_s);
            user.check(!store.frame.enabled(u"B4"_s), u"Save is disabled"_s);
            user.check(!store.frame.enabled(u"B5"_s), u"Close is disabled"_s);
            open_quick_page(user);
            user.check(store.frame.enabled(u"B4"_s), u"Save is enabled again"_s);
            open_detailed_page(user);
            enter_shot(user, 0, 1, u"0"_s, 1);
            accept(user);
        });
        QVERIFY(store.frame.enabled(u"B4"_s));
        QVERIFY(store.frame.enabled(u"B5"_s));
    }
};

QTEST_MAIN(test_shot_grid)

#include "test_shot_grid.moc"
