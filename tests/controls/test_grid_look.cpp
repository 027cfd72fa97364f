#include <QApplication>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include "controls/choice_menu.h"
#include "controls/data_grid.h"
#include "controls/look.h"
#include "store/DataEnvironment1.h"
#include "store/tables/Stat_rounds.h"
#include "tests/support/reader.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int club = 0;
constexpr int distance = 1;

void use_palette(bool dark)
{
    QPalette palette = QApplication::style()->standardPalette();
    if (dark)
        palette = QPalette(QColor(0x35, 0x35, 0x35));
    palette.setColor(QPalette::Highlight, accent_green());
    QApplication::setPalette(palette);
}

/// A grid with a column for a club, chosen from a menu, and one for a distance, and a button below it.
struct grid_window {
    explicit grid_window(int rows)
    {
        for (int shot = 1; shot <= rows; ++shot)
            reader(folder.location())
                .write(u"insert into Stat_rounds (shot, stick) values (%1, 'F5')"_s.arg(shot));
        data_environment().rsStat_rounds.Open();
        cells = new data_grid(new recordset_model(
            data_environment().rsStat_rounds,
            {{tables::Stat_rounds::stick, u"Bâton"_s, true}, {tables::Stat_rounds::after, u"Distance"_s}}));
        cells->set_cell_menu(club, &clubs);
        auto* lines = new QVBoxLayout(&window);
        lines->addWidget(cells);
        lines->addWidget(button);
        cells->bind();
        window.resize(500, 220);
        window.show();
        window.activateWindow();
        cells->setFocus();
        is_active = QTest::qWaitForWindowActive(&window);
    }

    QImage picture_of(const QModelIndex& cell) const
    {
        return cells->viewport()->grab(cells->visualRect(cell)).toImage();
    }
    QImage picture_of_cursor() const { return picture_of(cells->currentIndex()); }
    QColor color(QPalette::ColorRole role) const { return cells->palette().color(role); }

    store_folder folder;
    QWidget window;
    choice_menu clubs;
    data_grid* cells = nullptr;
    QPushButton* button = new QPushButton(u"OK"_s);
    bool is_active = false;
};

bool has_upright_line(const QImage& cell, const QColor& color)
{
    const int middle = cell.height() / 2;
    for (int x = 3; x < cell.width() - 2; ++x) {
        int y = middle - 5;
        while (y <= middle + 5 && cell.pixelColor(x, y) == color)
            ++y;
        if (y > middle + 5)
            return true;
    }
    return false;
}

/// The width of a frame of one colour; 0 if one of the four sides lacks it.
int width_of_frame(const QImage& cell, const QColor& color)
{
    const int right = cell.width() - 1;
    const int bottom = cell.height() - 1;
    int width = 0;
    while (width < 6 && cell.pixelColor(width, bottom / 2) == color &&
           cell.pixelColor(right - width, bottom / 2) == color &&
           cell.pixelColor(right / 2, width) == color && cell.pixelColor(right / 2, bottom - width) == color)
        ++width;
    return width;
}

void light_and_dark()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

}  // namespace

/// How a grid paints the cursor and its header.
class test_grid_look : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { use_palette(false); }

    void the_cell_with_the_cursor_has_a_frame_and_keeps_its_background_data() { light_and_dark(); }
    void the_cell_with_the_cursor_has_a_frame_and_keeps_its_background()
    {
        QFETCH(bool, dark);
        use_palette(dark);
        const grid_window grid(3);
        QVERIFY(grid.is_active);
        for (const int column : {club, distance}) {
            grid.cells->set_Col(column);
            const QImage cell = grid.picture_of_cursor();
            QCOMPARE(width_of_frame(cell, grid.color(QPalette::Highlight)), 2);
            QCOMPARE(cell.pixelColor(cell.width() / 2, cell.height() / 2), grid.color(QPalette::Base));
        }
    }

    void other_cells_have_no_frame()
    {
        const grid_window grid(3);
        grid.cells->set_Col(distance);
        for (const QModelIndex& other :
             {grid.cells->model()->index(0, club), grid.cells->model()->index(1, distance)})
            QCOMPARE(width_of_frame(grid.picture_of(other), grid.color(QPalette::Highlight)), 0);
    }

    void a_cell_that_can_be_edited_shows_a_caret_data() { light_and_dark(); }
    void a_cell_that_can_be_edited_shows_a_caret()
    {
        QFETCH(bool, dark);
        use_palette(dark);
        const grid_window grid(3);
        grid.cells->set_Col(distance);
        QVERIFY(has_upright_line(grid.picture_of_cursor(), grid.color(QPalette::Text)));
        grid.cells->set_Col(club);
        QVERIFY(!has_upright_line(grid.picture_of_cursor(), grid.color(QPalette::Text)));
    }

    void the_frame_is_thin_and_the_caret_hidden_while_another_control_has_the_focus()
    {
        const grid_window grid(3);
        grid.cells->set_Col(distance);
        grid.button->setFocus();
        const QImage cell = grid.picture_of_cursor();
        QCOMPARE(width_of_frame(cell, grid.color(QPalette::Highlight)), 1);
        QVERIFY(!has_upright_line(cell, grid.color(QPalette::Text)));
    }

    void the_frame_is_visible_while_the_cell_is_edited()
    {
        const grid_window grid(3);
        grid.cells->set_Col(distance);
        QTest::keyClick(grid.cells, Qt::Key_4);
        QVERIFY(grid.cells->findChild<QLineEdit*>(u"cell_being_typed"_s));
        QCOMPARE(width_of_frame(grid.picture_of_cursor(), grid.color(QPalette::Highlight)), 2);
    }

    void the_header_fills_the_width_of_the_grid_data() { light_and_dark(); }
    void the_header_fills_the_width_of_the_grid()
    {
        QFETCH(bool, dark);
        use_palette(dark);
        const grid_window grid(3);
        const QImage head = grid.cells->horizontalHeader()->viewport()->grab().toImage();
        const int beside_columns = grid.cells->horizontalHeader()->length() + 20;
        QVERIFY(beside_columns < head.width());
        for (int y = 0; y < head.height(); ++y) {
            // The third pixel of a column is outside its caption.
            QCOMPARE(head.pixelColor(beside_columns, y), head.pixelColor(2, y));
            QCOMPARE(head.pixelColor(head.width() - 1, y), head.pixelColor(2, y));
        }
    }

    void the_scroll_bar_extends_to_the_corner_of_the_grid()
    {
        const grid_window grid(40);
        const QScrollBar& bar = *grid.cells->verticalScrollBar();
        QVERIFY(bar.isVisible());
        const QRect place(bar.mapTo(grid.cells, QPoint()), bar.size());
        QCOMPARE(place.top(), grid.cells->frameWidth());
        QCOMPARE(place.right(), grid.cells->width() - grid.cells->frameWidth() - 1);
    }
};

QTEST_MAIN(test_grid_look)
#include "test_grid_look.moc"
