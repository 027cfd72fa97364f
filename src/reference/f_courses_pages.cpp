#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

#include "controls/accessible_controls.h"
#include "controls/look.h"
#include "controls/scrolled_content.h"
#include "reference/f_courses.h"
#include "reference/f_courses_boxes.h"

/// How the course editor is laid out: three pages under a row of tabs, and a foot with the totals and
/// the buttons.
namespace verdane {

namespace {

using namespace f_courses_func;
using namespace Qt::StringLiterals;

/// As many characters as entering a box selects: a length that the store could not take by far cannot
/// be typed. The largest that it takes is 32767.
constexpr int hole_box_characters = 5;
constexpr int figure_characters = 6;
/// The longest name that the round window can show.
constexpr int name_characters = 195;
constexpr int address_characters = 255;

constexpr int left_margin = 3 * rhythm;
/// Tee, rating and slope: boxes of one width, which share both edges.
constexpr int short_box_width = 20 * rhythm;
constexpr int general_box_height = 4 * rhythm;
constexpr int heading_row = 0;
/// A hole takes two rows: its figures, and the line below them.
constexpr int first_hole_row = 2;
enum hole_column { hole_number, verge, hnd, normal };

QLineEdit* make_hole_box(const QString& accessible_name)
{
    QLineEdit* box = make_number_box(hole_box_characters);
    box->setMaxLength(hole_box_characters);
    box->setText(u"0"_s);
    box->setAccessibleName(accessible_name);
    return box;
}

QWidget* make_line(const QColor& colour, int height)
{
    auto* line = new QWidget;
    line->setFixedHeight(height);
    line->setAutoFillBackground(true);
    QPalette palette = line->palette();
    palette.setColor(QPalette::Window, colour);
    line->setPalette(palette);
    return line;
}

/// The lines across a page guide the eye from the hole to its par.
void add_line(QGridLayout& grid, int row, QWidget* line)
{
    grid.addWidget(line, row, hole_number, 1, normal + 1);
}

QLabel* make_caption(const QString& name, const QString& caption, QWidget* buddy = nullptr)
{
    return named(make_label(caption, buddy), name);
}

void make_bold(QLabel& label)
{
    QFont font = label.font();
    font.setBold(true);
    label.setFont(font);
}

QGridLayout* make_grid(QFrame& page, int vertical_gap)
{
    auto* grid = new QGridLayout(&page);
    grid->setContentsMargins(0, 2 * rhythm, 0, rhythm);
    grid->setHorizontalSpacing(2 * rhythm);
    grid->setVerticalSpacing(vertical_gap);
    return grid;
}

}  // namespace

void f_courses::lay_out()
{
    make_tabs();
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(left_margin, 2 * rhythm, left_margin, 2 * rhythm);
    rows->setSpacing(rhythm);
    rows->addWidget(TabStrip1);
    rows->addWidget(scrolled(make_pages()), 1);
    rows->addLayout(make_foot());
}

void f_courses::make_tabs()
{
    name_control(*TabStrip1, u"Pages"_s);
    TabStrip1->addTab(caption(u"Information générale", u"General Information"));
    TabStrip1->addTab(caption(u"Aller", u"Front Nine"));
    TabStrip1->addTab(caption(u"Retour", u"Back Nine"));
}

QLayout* f_courses::make_pages()
{
    auto* place = new QGridLayout;
    for (QFrame* page : {make_general_page(), make_hole_page(2, 0), make_hole_page(3, front_hole_count)})
        place->addWidget(page, 0, 0);
    frm(2).hide();
    frm(3).hide();
    return place;
}

QFrame* f_courses::make_page(int page)
{
    QFrame* frame = frm.add(page, new QFrame);
    frame->setFrameShape(QFrame::NoFrame);
    // The window has room for its largest page, whichever is shown.
    QSizePolicy policy = frame->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    frame->setSizePolicy(policy);
    return frame;
}

QFrame* f_courses::make_general_page()
{
    QFrame* page = make_page(1);
    QGridLayout* grid = make_grid(*page, 3 * rhythm);
    text.add(1, new QLineEdit)->setMaxLength(name_characters);
    for (const int index : {2, 0})
        text.add(index, make_number_box(figure_characters))->setFixedWidth(short_box_width);
    for (const int index : {3, 4, 5})
        text.add(index, new QLineEdit)->setMaxLength(address_characters);
    add_labelled_box(*grid, u"lbl_name", caption(u"Nom :", u"Name :"), 1);
    add_departure(*grid);
    add_labelled_box(*grid, u"lbl_rating", caption(u"Moyenne :", u"Rating :"), 2);
    add_labelled_box(*grid, u"lbl_slope", caption(u"Difficulté :", u"Slope :"), 0);
    add_address(*grid);
    for (const auto& [index, box] : text.members())
        box->setMinimumHeight(general_box_height);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(grid->rowCount(), 1);
    return page;
}

void f_courses::add_labelled_box(QGridLayout& grid, QStringView name, const QString& caption, int index)
{
    const int row = grid.rowCount();
    grid.addWidget(make_caption(name.toString(), caption, &text(index)), row, 0);
    grid.addWidget(&text(index), row, 1);
}

void f_courses::add_departure(QGridLayout& grid)
{
    auto* label = make_caption(u"lbl_departure"_s, caption(u"Départ :", u"Teeing Area :"), departure);
    departure->setFixedWidth(short_box_width);
    departure->setMinimumHeight(general_box_height);
    const int row = grid.rowCount();
    grid.addWidget(label, row, 0);
    grid.addWidget(departure, row, 1, Qt::AlignLeft);
}

void f_courses::add_address(QGridLayout& grid)
{
    add_labelled_box(grid, u"lbl_address", caption(u"Adresse :", u"Address :"), 3);
    for (const int index : {4, 5}) {
        text(index).setAccessibleName(caption(u"Adresse", u"Address") + u' ' + QString::number(index - 2));
        grid.addWidget(&text(index), grid.rowCount(), 1);
    }
}

QFrame* f_courses::make_hole_page(int page, int first_index)
{
    QFrame* frame = make_page(page);
    QGridLayout* grid = make_grid(*frame, rhythm);
    add_headings(*grid, page);
    for (int index = first_index; index < first_index + front_hole_count; ++index)
        add_hole(*grid, index);
    for (const int column : {verge, hnd, normal})
        grid->setColumnStretch(column, 1);
    grid->setRowStretch(grid->rowCount(), 1);
    return frame;
}

void f_courses::add_headings(QGridLayout& grid, int page)
{
    const std::pair<QString, QString> headings[] = {
        {u"lbl_hole"_s, caption(u"Trou", u"Hole")},
        {u"lbl_verge"_s, caption(u"Distance (verges) ", u"Distance (yards)")},
        {u"lbl_hnd"_s, u"Handicap"_s},
        {u"lbl_normal"_s, caption(u"Normale", u"Par")},
    };
    for (int column = hole_number; column <= normal; ++column) {
        const auto& [name, words] = headings[column];
        QLabel* heading = make_caption(name + u'_' + QString::number(page), words);
        make_bold(*heading);
        grid.addWidget(heading, heading_row, column, column == hole_number ? Qt::AlignLeft : Qt::AlignRight);
    }
    add_line(grid, heading_row + 1, make_line(accent_green(), 2));
}

void f_courses::add_hole(QGridLayout& grid, int index)
{
    const QString hole = caption(u"Trou", u"Hole") + u' ' + QString::number(index + 1) + u", ";
    txt_verge.add(index, make_hole_box(hole + caption(u"distance", u"distance")));
    txt_hnd.add(index, make_hole_box(hole + caption(u"handicap", u"handicap")));
    txt_normal.add(index, make_hole_box(hole + caption(u"normale", u"par")));
    const int row = first_hole_row + 2 * (index % front_hole_count);
    const QString number = QString::number(index + 1);
    grid.addWidget(make_caption(u"lbl_number_" + number, number), row, hole_number);
    grid.addWidget(&txt_verge(index), row, verge, Qt::AlignRight);
    grid.addWidget(&txt_hnd(index), row, hnd, Qt::AlignRight);
    grid.addWidget(&txt_normal(index), row, normal, Qt::AlignRight);
    add_line(grid, row + 1, make_line(palette().color(QPalette::Midlight).darker(103), 1));
}

QLayout* f_courses::make_foot()
{
    auto* foot = new QHBoxLayout;
    foot->setSpacing(rhythm);
    foot->addLayout(make_total(caption(u"Aller :", u"Front :"), lbl_alle));
    foot->addSpacing(2 * rhythm);
    foot->addLayout(make_total(caption(u"Retour :", u"Back :"), lbl_retour));
    foot->addSpacing(2 * rhythm);
    foot->addLayout(make_total(u"Total :"_s, lbl_total));
    foot->addStretch();
    foot->addWidget(smdsave);
    foot->addWidget(cmdan);
    return foot;
}

QLayout* f_courses::make_total(const QString& caption, QLabel* figure)
{
    figure->setText(u"0"_s);
    figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    make_bold(*figure);
    figure->setMinimumWidth(figure->fontMetrics().horizontalAdvance(u"-00000"_s));
    auto* total = new QHBoxLayout;
    total->setSpacing(rhythm / 2);
    total->addWidget(make_caption(figure->objectName() + u"_caption", caption, figure));
    total->addWidget(figure);
    return total;
}

}  // namespace verdane
