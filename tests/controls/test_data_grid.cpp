#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "controls/boxes.h"
#include "controls/choice_menu.h"
#include "controls/control_array.h"
#include "controls/data_grid.h"
#include "controls/events.h"
#include "controls/Form.h"
#include "store/DataEnvironment1.h"
#include "store/tables/Stat_rounds.h"
#include "tests/support/hand.h"
#include "tests/support/reader.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString grid = u"grid"_s;

/// A window with a grid of three shots: number (hidden), club (by a menu), distance (digits), kind.
class grid_form : public Form {
public:
    grid_form() : Form(u"f_grid")
    {
        resize(600, 300);
        auto* layout = new QVBoxLayout(this);
        auto* model =
            new recordset_model(data_environment().rsStat_rounds,
                                {{tables::Stat_rounds::shot, u"n"_s},
                                 {tables::Stat_rounds::stick, u"Bâton"_s, true},
                                 {tables::Stat_rounds::after, u"Distance"_s},
                                 {tables::Stat_rounds::missed, u"Raté"_s, true, u"Oui"_s, u"Non"_s}});
        cells = named(new data_grid(model), u"grid");
        clubs = named(new choice_menu(this), u"clubs");
        for (const QString& club : {u"D"_s, u"F5"_s, u"F6"_s}) {
            QAction* entry = clubs->add_choice(u"club_" + club, club);
            QObject::connect(entry, &QAction::triggered, this, [this, club] {
                data_environment().rsStat_rounds.Fields(u"stick").set(club);
                cells->ReBind();
            });
        }
        cells->set_cell_menu(1, clubs);
        cells->set_key_filter(2, [](QChar key) {
            return key == backspace || is_plain_digit(key) ? key_answer::pass : key_answer::refuse;
        });
        connect(cells, &data_grid::column_updated, this, [this](int column) { updated << column; });
        layout->addWidget(cells);
        layout->addWidget(named(make_button(u"next"_s), u"next"));
        cells->bind();
        cells->hideColumn(0);
        cells->set_Col(1);
        cells->setFocus();
    }

    data_grid* cells = nullptr;
    choice_menu* clubs = nullptr;
    QList<int> updated;
};

}  // namespace

class test_data_grid : public QObject {
    Q_OBJECT

    store_folder* folder_ = nullptr;

    /// Runs a script on the window and returns the columns that `column_updated` was called with.
    QList<int> play_on_grid(const std::function<void(hand&)>& script)
    {
        grid_form window;
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.wait_for_window(u"f_grid"_s);
                 script(user);
                 user.close_window(u"f_grid"_s);
             });
        return window.updated;
    }

    QString stored(const QString& column, int shot) const
    {
        return reader(folder_->location())
            .text(u"select %1 from Stat_rounds where shot = %2"_s.arg(column).arg(shot));
    }

private Q_SLOTS:
    void init()
    {
        folder_ = new store_folder;
        for (int shot = 1; shot <= 3; ++shot)
            reader(folder_->location())
                .write(u"insert into Stat_rounds (shot, stick, after) values (%1, 'D', 100)"_s.arg(shot));
        data_environment().rsStat_rounds.Open();
    }
    void cleanup() { delete folder_; }

    void typing_replaces_the_text_and_Enter_moves_to_the_next_cell()
    {
        const auto updated = play_on_grid([&](hand& user) {
            user.click_cell(grid, 1, 2);
            user.type(u"45"_s);
            user.key(Qt::Key_Return);
            user.same(user.cell(grid, 1, 2), u"45"_s, u"cell"_s);
            user.same(user.cursor(grid), u"1,3"_s, u"cursor"_s);
            user.same(stored(u"after"_s, 2), u"100"_s, u"stored"_s);
            user.key(Qt::Key_Up);
            user.same(stored(u"after"_s, 2), u"45"_s, u"stored"_s);
        });
        QCOMPARE(updated, QList<int>{2});
    }

    void a_letter_in_a_column_of_digits_rings_the_bell()
    {
        const auto updated = play_on_grid([&](hand& user) {
            user.click_cell(grid, 0, 2);
            const int before = user.bells();
            user.type(u"x"_s);
            user.check(!user.exists(u"cell_being_typed"_s), u"no box"_s);
            user.type(u"1y2"_s);
            user.same(user.bells() - before, 2, u"bells"_s);
            user.key(Qt::Key_Tab);
            user.same(user.cell(grid, 0, 2), u"12"_s, u"cell"_s);
        });
        QCOMPARE(updated, QList<int>{2});
    }

    void Escape_discards_the_text_and_leaves_the_window_open()
    {
        const auto updated = play_on_grid([&](hand& user) {
            user.click_cell(grid, 0, 2);
            user.type(u"7"_s);
            user.key(Qt::Key_Escape);
            user.check(user.is_open(u"f_grid"_s), u"open"_s);
            user.same(user.cell(grid, 0, 2), u"100"_s, u"cell"_s);
        });
        QVERIFY(updated.isEmpty());
    }

    void a_click_elsewhere_writes_the_text()
    {
        const auto updated = play_on_grid([&](hand& user) {
            user.click_cell(grid, 0, 2);
            user.type(u"8"_s);
            user.click_cell(grid, 2, 3);
            user.same(user.cell(grid, 0, 2), u"8"_s, u"cell"_s);
            user.same(user.cursor(grid), u"2,3"_s, u"cursor"_s);
            user.same(stored(u"after"_s, 1), u"8"_s, u"stored"_s);
            user.click_cell(grid, 2, 2);
            user.type(u"9"_s);
            user.click(u"next"_s);
            user.same(user.cell(grid, 2, 2), u"9"_s, u"cell"_s);
        });
        QCOMPARE(updated, (QList<int>{2, 2}));
    }

    void a_cell_opened_and_not_changed_is_not_updated()
    {
        const auto updated = play_on_grid([&](hand& user) {
            user.click_cell(grid, 0, 2);
            user.key(Qt::Key_Return);
            user.check(user.exists(u"cell_being_typed"_s), u"the box"_s);
            user.key(Qt::Key_Return);
            user.check(!user.exists(u"cell_being_typed"_s), u"no box"_s);
        });
        QVERIFY(updated.isEmpty());
    }

    void a_number_that_does_not_fit_rings_the_bell_and_is_not_written()
    {
        const auto updated = play_on_grid([&](hand& user) {
            user.click_cell(grid, 0, 2);
            const int before = user.bells();
            user.type(u"99999"_s);
            user.key(Qt::Key_Return);
            user.same(user.bells() - before, 1, u"bells"_s);
            user.same(user.cell(grid, 0, 2), u"100"_s, u"cell"_s);
        });
        QVERIFY(updated.isEmpty());
    }

    void backspace_empties_the_cell()
    {
        play_on_grid([&](hand& user) {
            user.click_cell(grid, 0, 2);
            user.key(Qt::Key_Backspace);
            user.key(Qt::Key_Return);
            user.same(user.cell(grid, 0, 2), QString(), u"cell"_s);
        });
    }

    void the_button_opens_the_menu()
    {
        play_on_grid([&](hand& user) {
            user.open_menu(grid, 1, 1);
            user.same(user.menu_entries().join(u' '), u"D F5 F6"_s, u"menu"_s);
            user.choose_menu_entry(u"club_F6"_s);
            user.same(user.cell(grid, 1, 1), u"F6"_s, u"cell"_s);
            user.same(user.cursor(grid), u"1,1"_s, u"cursor"_s);
        });
    }

    void a_key_on_a_cell_with_a_menu_opens_the_menu_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("alt");
        QTest::newRow("Space") << int(Qt::Key_Space) << false;
        QTest::newRow("Enter") << int(Qt::Key_Return) << false;
        QTest::newRow("F4") << int(Qt::Key_F4) << false;
        QTest::newRow("Alt+Down") << int(Qt::Key_Down) << true;
    }
    void a_key_on_a_cell_with_a_menu_opens_the_menu()
    {
        QFETCH(int, key);
        QFETCH(bool, alt);
        play_on_grid([&](hand& user) {
            user.click_cell(grid, 1, 1);
            user.key(key, alt ? Qt::AltModifier : Qt::NoModifier);
            user.wait_for_menu(u"clubs"_s);
            user.menu_key(Qt::Key_Down);
            user.menu_key(Qt::Key_Return);
            user.same(user.cell(grid, 1, 1), u"F5"_s, u"cell"_s);
        });
    }

    void a_letter_chooses_an_entry_of_the_menu()
    {
        play_on_grid([&](hand& user) {
            user.click_cell(grid, 1, 1);
            user.type(u"f"_s);
            user.wait_for_menu(u"clubs"_s);
            user.menu_type(u"f"_s);
            user.menu_key(Qt::Key_Return);
            user.same(user.cell(grid, 1, 1), u"F6"_s, u"cell"_s);
            user.type(u"d"_s);
            user.same(user.cell(grid, 1, 1), u"D"_s, u"cell"_s);
        });
    }

    void Tab_moves_along_the_row_and_leaves_the_grid_after_its_last_cell()
    {
        play_on_grid([&](hand& user) {
            user.key(Qt::Key_Tab);
            user.key(Qt::Key_Tab);
            user.same(user.cursor(grid), u"0,3"_s, u"cursor"_s);
            user.key(Qt::Key_Tab);
            user.same(user.focus(), u"next"_s, u"focus"_s);
        });
    }

    void moving_the_cursor_moves_the_recordset()
    {
        play_on_grid([&](hand& user) {
            user.click_cell(grid, 2, 1);
            user.look([] { QCOMPARE(data_environment().rsStat_rounds.position(), 2); });
            user.key(Qt::Key_Up);
            user.look([] { QCOMPARE(data_environment().rsStat_rounds.position(), 1); });
        });
    }

    void typing_in_a_locked_cell_rings_the_bell()
    {
        play_on_grid([&](hand& user) {
            user.click_cell(grid, 0, 3);
            const int before = user.bells();
            user.type(u"x"_s);
            user.same(user.bells() - before, 1, u"bells"_s);
        });
    }
};

QTEST_MAIN(test_data_grid)

#include "test_data_grid.moc"
