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
#include "tests/support/hand.h"
#include "tests/support/reader.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;

namespace {

const QString grid = QStringLiteral("grid");

/// A window with a grid of three shots: number (hidden), club (by a menu), distance (digits), kind.
class grid_form : public Form {
public:
    grid_form() : Form(u"f_grid")
    {
        resize(600, 300);
        auto* layout = new QVBoxLayout(this);
        auto* model = new recordset_model(data_environment().rsStat_rounds,
                                          {{QStringLiteral("shot"), QStringLiteral("n")},
                                           {QStringLiteral("stick"), QStringLiteral("Bâton"), true},
                                           {QStringLiteral("after"), QStringLiteral("Distance")},
                                           {QStringLiteral("missed"), QStringLiteral("Raté"), true,
                                            QStringLiteral("Oui"), QStringLiteral("Non")}});
        cells = named(new data_grid(model), u"grid");
        clubs = named(new choice_menu(this), u"clubs");
        for (const QString& club : {QStringLiteral("D"), QStringLiteral("F5"), QStringLiteral("F6")}) {
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
        cells->column_updated = [this](int column) { updated << column; };
        layout->addWidget(cells);
        layout->addWidget(named(make_button(QStringLiteral("next")), u"next"));
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

    /// Runs a script on the window and gives back the columns that were told as updated.
    QList<int> play_on_grid(const std::function<void(hand&)>& script)
    {
        grid_form window;
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.wait_for_window(QStringLiteral("f_grid"));
                 script(user);
                 user.close_window(QStringLiteral("f_grid"));
             });
        return window.updated;
    }

    QString stored(const QString& column, int shot) const
    {
        return reader(folder_->path())
            .text(QStringLiteral("select %1 from Stat_rounds where shot = %2").arg(column).arg(shot));
    }

private Q_SLOTS:
    void init()
    {
        folder_ = new store_folder;
        for (int shot = 1; shot <= 3; ++shot)
            reader(folder_->path())
                .write(QStringLiteral("insert into Stat_rounds (shot, stick, after) values (%1, 'D', 100)")
                           .arg(shot));
        data_environment().rsStat_rounds.Open();
    }
    void cleanup() { delete folder_; }

    void typing_replaces_the_cell_and_Enter_goes_on()
    {
        const auto updated = play_on_grid([&](hand& user) {
            user.click_cell(grid, 1, 2);
            user.type(QStringLiteral("45"));
            user.key(Qt::Key_Return);
            user.same(user.cell(grid, 1, 2), QStringLiteral("45"), QStringLiteral("cell"));
            user.same(user.cursor(grid), QStringLiteral("1,3"), QStringLiteral("cursor"));
            user.same(stored(QStringLiteral("after"), 2), QStringLiteral("100"), QStringLiteral("stored"));
            user.key(Qt::Key_Up);
            user.same(stored(QStringLiteral("after"), 2), QStringLiteral("45"), QStringLiteral("stored"));
        });
        QCOMPARE(updated, QList<int>{2});
    }

    void a_letter_rings_and_opens_nothing()
    {
        const auto updated = play_on_grid([&](hand& user) {
            user.click_cell(grid, 0, 2);
            const int before = user.bells();
            user.type(QStringLiteral("x"));
            user.check(!user.exists(QStringLiteral("cell_being_typed")), QStringLiteral("no box"));
            user.type(QStringLiteral("1y2"));
            user.same(user.bells() - before, 2, QStringLiteral("bells"));
            user.key(Qt::Key_Tab);
            user.same(user.cell(grid, 0, 2), QStringLiteral("12"), QStringLiteral("cell"));
        });
        QCOMPARE(updated, QList<int>{2});
    }

    void Escape_drops_what_was_typed_and_leaves_the_window_open()
    {
        const auto updated = play_on_grid([&](hand& user) {
            user.click_cell(grid, 0, 2);
            user.type(QStringLiteral("7"));
            user.key(Qt::Key_Escape);
            user.check(user.is_open(QStringLiteral("f_grid")), QStringLiteral("open"));
            user.same(user.cell(grid, 0, 2), QStringLiteral("100"), QStringLiteral("cell"));
        });
        QVERIFY(updated.isEmpty());
    }

    void a_click_elsewhere_takes_what_was_typed()
    {
        const auto updated = play_on_grid([&](hand& user) {
            user.click_cell(grid, 0, 2);
            user.type(QStringLiteral("8"));
            user.click_cell(grid, 2, 3);
            user.same(user.cell(grid, 0, 2), QStringLiteral("8"), QStringLiteral("cell"));
            user.same(user.cursor(grid), QStringLiteral("2,3"), QStringLiteral("cursor"));
            user.same(stored(QStringLiteral("after"), 1), QStringLiteral("8"), QStringLiteral("stored"));
            user.click_cell(grid, 2, 2);
            user.type(QStringLiteral("9"));
            user.click(QStringLiteral("next"));
            user.same(user.cell(grid, 2, 2), QStringLiteral("9"), QStringLiteral("cell"));
        });
        QCOMPARE(updated, (QList<int>{2, 2}));
    }

    void opening_a_cell_and_changing_nothing_updates_nothing()
    {
        const auto updated = play_on_grid([&](hand& user) {
            user.click_cell(grid, 0, 2);
            user.key(Qt::Key_Return);
            user.check(user.exists(QStringLiteral("cell_being_typed")), QStringLiteral("the box"));
            user.key(Qt::Key_Return);
            user.check(!user.exists(QStringLiteral("cell_being_typed")), QStringLiteral("no box"));
        });
        QVERIFY(updated.isEmpty());
    }

    void a_figure_that_does_not_fit_rings_and_changes_nothing()
    {
        const auto updated = play_on_grid([&](hand& user) {
            user.click_cell(grid, 0, 2);
            const int before = user.bells();
            user.type(QStringLiteral("99999"));
            user.key(Qt::Key_Return);
            user.same(user.bells() - before, 1, QStringLiteral("bells"));
            user.same(user.cell(grid, 0, 2), QStringLiteral("100"), QStringLiteral("cell"));
        });
        QVERIFY(updated.isEmpty());
    }

    void backspace_empties_the_cell()
    {
        play_on_grid([&](hand& user) {
            user.click_cell(grid, 0, 2);
            user.key(Qt::Key_Backspace);
            user.key(Qt::Key_Return);
            user.same(user.cell(grid, 0, 2), QString(), QStringLiteral("cell"));
        });
    }

    void the_button_opens_the_menu()
    {
        play_on_grid([&](hand& user) {
            user.open_menu(grid, 1, 1);
            user.same(user.menu_entries().join(u' '), QStringLiteral("D F5 F6"), QStringLiteral("menu"));
            user.choose_menu_entry(QStringLiteral("club_F6"));
            user.same(user.cell(grid, 1, 1), QStringLiteral("F6"), QStringLiteral("cell"));
            user.same(user.cursor(grid), QStringLiteral("1,1"), QStringLiteral("cursor"));
        });
    }

    void keys_open_the_menu_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("alt");
        QTest::newRow("Space") << int(Qt::Key_Space) << false;
        QTest::newRow("Enter") << int(Qt::Key_Return) << false;
        QTest::newRow("F4") << int(Qt::Key_F4) << false;
        QTest::newRow("Alt+Down") << int(Qt::Key_Down) << true;
    }
    void keys_open_the_menu()
    {
        QFETCH(int, key);
        QFETCH(bool, alt);
        play_on_grid([&](hand& user) {
            user.click_cell(grid, 1, 1);
            user.key(key, alt ? Qt::AltModifier : Qt::NoModifier);
            user.wait_for_menu(QStringLiteral("clubs"));
            user.menu_key(Qt::Key_Down);
            user.menu_key(Qt::Key_Return);
            user.same(user.cell(grid, 1, 1), QStringLiteral("F5"), QStringLiteral("cell"));
        });
    }

    void a_letter_chooses_from_the_menu()
    {
        play_on_grid([&](hand& user) {
            user.click_cell(grid, 1, 1);
            user.type(QStringLiteral("f"));
            user.wait_for_menu(QStringLiteral("clubs"));
            user.menu_type(QStringLiteral("f"));
            user.menu_key(Qt::Key_Return);
            user.same(user.cell(grid, 1, 1), QStringLiteral("F6"), QStringLiteral("cell"));
            user.type(QStringLiteral("d"));
            user.same(user.cell(grid, 1, 1), QStringLiteral("D"), QStringLiteral("cell"));
        });
    }

    void Tab_walks_the_row_and_leaves_the_grid_behind_its_last_cell()
    {
        play_on_grid([&](hand& user) {
            user.key(Qt::Key_Tab);
            user.key(Qt::Key_Tab);
            user.same(user.cursor(grid), QStringLiteral("0,3"), QStringLiteral("cursor"));
            user.key(Qt::Key_Tab);
            user.same(user.focus(), QStringLiteral("next"), QStringLiteral("focus"));
        });
    }

    void the_cursor_moves_the_recordset()
    {
        play_on_grid([&](hand& user) {
            user.click_cell(grid, 2, 1);
            user.look([] { QCOMPARE(data_environment().rsStat_rounds.position(), 2); });
            user.key(Qt::Key_Up);
            user.look([] { QCOMPARE(data_environment().rsStat_rounds.position(), 1); });
        });
    }

    void a_locked_cell_rings()
    {
        play_on_grid([&](hand& user) {
            user.click_cell(grid, 0, 3);
            const int before = user.bells();
            user.type(QStringLiteral("x"));
            user.same(user.bells() - before, 1, QStringLiteral("bells"));
        });
    }
};

QTEST_MAIN(test_data_grid)

#include "test_data_grid.moc"
