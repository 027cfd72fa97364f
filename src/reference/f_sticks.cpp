#include "reference/f_sticks.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

#include "controls/accessible_controls.h"
#include "controls/events.h"
#include "controls/list_box.h"
#include "controls/look.h"
#include "controls/main_frame.h"
#include "controls/scrolled_content.h"
#include "reference/f_sticks_func.h"
#include "scoring/limits.h"
#include "statistics/selection_filters.h"

namespace verdane {

namespace {

using namespace f_sticks_func;
using namespace Qt::StringLiterals;

constexpr int clubs_in_a_column = 7;
/// Number, name, average and the gap after them.
constexpr int columns_of_a_half = 4;
constexpr int name_characters = 10;
constexpr int average_digits = 5;
/// Day, time and a course of some length in capitals.
constexpr int characters_of_a_line = 54;
constexpr int lines_in_view = 6;
constexpr int short_figure = 2;

QLabel* make_paragraph(QStringView name)
{
    auto* paragraph = named(make_label(QString()), name);
    paragraph->setWordWrap(true);
    return paragraph;
}

}  // namespace

f_sticks::f_sticks() : Form(u"f_sticks")
{
    setWindowTitle(caption(u"Mes bâtons", u"My Golf Clubs"));
    lay_out();
    wire();
    widen_to(bag_width);
    load(*this);
}

void f_sticks::widen_to(int twips)
{
    // As high as its controls need.
    take_size({pixels(twips), 0});
}

void f_sticks::lay_out()
{
    auto* columns = new QHBoxLayout;
    columns->setSpacing(2 * rhythm);
    columns->addLayout(make_bag_column(), 1);
    columns->addWidget(make_filters());
    Frame1->hide();
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(2 * rhythm, 2 * rhythm, 2 * rhythm, 2 * rhythm);
    rows->setSpacing(2 * rhythm);
    rows->addWidget(scrolled(columns), 1);
    rows->addLayout(make_foot());
}

QBoxLayout* f_sticks::make_bag_column()
{
    head = make_paragraph(u"head");
    auto* notice = make_paragraph(u"Label2");
    notice->setText(
        caption(u"Attention, le changement du nom de votre bâton n'est pas équivalent à l'ajout d'un "
                u"nouveau bâton. Les statistiques de l'ancien bâton suivront la nouvelle "
                u"appellation.",
                u"Please note:Former club statistics will remain associated with corresponding "
                u"new club names."));
    auto* rows = new QVBoxLayout;
    rows->setSpacing(2 * rhythm);
    rows->addWidget(head);
    rows->addWidget(make_bag());
    rows->addWidget(notice);
    rows->addStretch(1);
    return rows;
}

QGroupBox* f_sticks::make_bag()
{
    auto* bag = named(new QGroupBox(caption(u"Sac de golf", u"Golf Bag")), u"Frame2");
    auto* grid = new QGridLayout(bag);
    grid->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    grid->setHorizontalSpacing(rhythm);
    grid->setVerticalSpacing(rhythm / 2);
    for (const int half : {0, 1})
        grid->addWidget(named(make_label(caption(u"verges", u"yards")), u"lbl_unit_%1"_s.arg(half)), 0,
                        half * columns_of_a_half + 2, Qt::AlignRight);
    for (int index = 0; index < club_count; ++index)
        add_club(*grid, index);
    return bag;
}

void f_sticks::add_club(QGridLayout& grid, int index)
{
    const int row = 1 + index % clubs_in_a_column;
    const int column = index / clubs_in_a_column * columns_of_a_half;
    auto* name = sn.add(index, new QLineEdit);
    name->setMinimumWidth(name->fontMetrics().averageCharWidth() * name_characters + 2 * rhythm);
    const QString number = QString::number(index + 1);
    name->setAccessibleName(caption(u"Nom du bâton", u"Club name") + u' ' + number);
    auto* average = Text1.add(index, make_number_box(average_digits));
    average->setAccessibleName(caption(u"Moyenne du bâton", u"Club average") + u' ' + number);
    auto* label = named(make_label(number), QString(u"lbl_club_" + number));
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(label, row, column);
    grid.addWidget(name, row, column + 1);
    grid.addWidget(average, row, column + 2);
    grid.setColumnStretch(column + 1, 1);
}

QLayout* f_sticks::make_foot()
{
    Command1 = named(make_button(caption(u"Actualiser les moyennes >>", u"Update Averages")), u"Command1");
    enr = named(make_button(u"OK"_s), u"enr");
    Fer = named(make_button(caption(u"Annuler", u"Cancel")), u"Fer");
    auto* foot = new QHBoxLayout;
    foot->setSpacing(rhythm);
    foot->addWidget(Command1);
    foot->addStretch(1);
    foot->addWidget(enr);
    foot->addWidget(Fer);
    return foot;
}

QGroupBox* f_sticks::make_filters()
{
    Frame1 = named(new QGroupBox, u"Frame1");
    name_control(*Frame1, caption(u"Rondes des moyennes", u"Rounds of the averages"));
    Actualiser = named(make_button(caption(u"Actualiser", u"Update")), u"Actualiser");
    auto* rows = new QVBoxLayout(Frame1);
    rows->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    rows->setSpacing(rhythm);
    rows->addWidget(make_list_frame(u"Fr1", caption(u"De...", u"From..."), List1), 1);
    rows->addWidget(make_list_frame(u"Fr2", caption(u"À...", u"To..."), List2), 1);
    rows->addLayout(make_choices());
    rows->addLayout(make_unread_boxes());
    rows->addWidget(Actualiser, 0, Qt::AlignRight);
    return Frame1;
}

QWidget* f_sticks::make_list_frame(QStringView name, const QString& words, QListWidget*& list)
{
    auto* frame = named(new QGroupBox(caption(u"Date / Heure / Terrain", u"Date / Time / Course")), name);
    const bool first = name == u"Fr1";
    list = named(make_list_box(characters_of_a_line, lines_in_view), first ? u"List1" : u"List2");
    auto* inside = new QVBoxLayout(frame);
    inside->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    inside->setSpacing(rhythm / 2);
    inside->addWidget(named(make_label(words, list), first ? u"lbl_from" : u"lbl_to"));
    inside->addWidget(list, 1);
    return frame;
}

QLayout* f_sticks::make_choices()
{
    conditions = named(new QComboBox, u"conditions");
    pList = named(new QComboBox, u"pList");
    cmb_courses = named(new QComboBox, u"cmb_courses");
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(rhythm);
    form->setVerticalSpacing(rhythm / 2);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    // The window has no width for labels beside the lists.
    form->setRowWrapPolicy(QFormLayout::WrapAllRows);
    const auto label = [](QStringView name, const QString& words) { return named(make_label(words), name); };
    add_filter(*form,
               label(u"lbl_conditions", caption(u"Conditions atmosphériques :", u"Weather Conditions :")),
               conditions);
    add_filter(*form, label(u"lbl_pList", caption(u"Partenaire :", u"Partners :")), pList);
    add_filter(*form, label(u"lbl_cmb_courses", caption(u"Terrain :", u"Golf Course :")), cmb_courses);
    for (QComboBox* filter : {conditions, pList, cmb_courses}) {
        filter->setMinimumContentsLength(20);
        filter->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    }
    return form;
}

/// Boxes for a time of day and a temperature. No filter uses them; they are disabled.
QLayout* f_sticks::make_unread_boxes()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(rhythm / 2);
    grid->setVerticalSpacing(rhythm / 2);
    grid->setColumnStretch(5, 1);
    const std::array<QString, 2> kinds{caption(u"Heure :", u"Time :"),
                                       caption(u"Température :", u"Temperature :")};
    int index = club_count;
    for (int row = 0; row < static_cast<int>(kinds.size()); ++row) {
        int column = 0;
        grid->addWidget(
            named(make_label(kinds.at(static_cast<std::size_t>(row))), u"lbl_unread_%1"_s.arg(row)), row,
            column++);
        for (const QString& word : {caption(u"entre ", u"between "), caption(u"et ", u"and ")}) {
            auto* label = named(make_label(word), u"lbl_Text1_%1"_s.arg(index));
            auto* box = Text1.add(index++, make_number_box(short_figure));
            box->setEnabled(false);
            box->setAccessibleName(word);
            grid->addWidget(label, row, column++);
            grid->addWidget(box, row, column++);
        }
    }
    return grid;
}

void f_sticks::wire()
{
    on_click(*Command1, [this] { show_filters(*this); });
    on_click(*Actualiser, [this] { compute_averages(*this); });
    take_double_click_as_one(*Actualiser);
    on_click(*enr, [this] { f_sticks_func::accept(*this); });
    on_click(*Fer, [this] { cancel(*this); });
    set_cancel_button(*Fer);
}

void f_sticks::closeForm()
{
    cancel(*this);
}

void f_sticks::close_requested()
{
    cancel(*this);
}

void f_sticks::unloading()
{
    Unlock_menu();
}

}  // namespace verdane
