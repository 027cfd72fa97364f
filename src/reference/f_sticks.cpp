#include "reference/f_sticks.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/decimal_box.h"
#include "controls/events.h"
#include "controls/look.h"
#include "controls/main_frame.h"
#include "controls/scrolled_content.h"
#include "reference/bag_filters.h"
#include "reference/f_sticks_func.h"
#include "scoring/limits.h"
#include "statistics/selection_filters.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int clubs_in_a_column = 7;
/// Number, name, average and the gap after them.
constexpr int columns_of_a_half = 4;
constexpr int name_characters = 10;
constexpr int average_digits = 5;

QLabel* make_paragraph(QStringView name)
{
    auto* paragraph = named(make_label(QString()), name);
    paragraph->setWordWrap(true);
    return paragraph;
}

}  // namespace

f_sticks::f_sticks()
    : Form(u"f_sticks"),
      filters_(new bag_filters(*this)),
      filters_button_(
          named(make_button(caption(u"Actualiser les moyennes >>", u"Update Averages")), u"Command1")),
      ok_(named(make_button(u"OK"_s), u"enr")),
      cancel_(named(make_button(caption(u"Annuler", u"Cancel")), u"Fer"))
{
    setWindowTitle(caption(u"Mes bâtons", u"My Golf Clubs"));
    lay_out();
    connect_events();
    widen_to(f_sticks_func::bag_width);
    f_sticks_func::load(*this);
}

void f_sticks::widen_to(int twips)
{
    // A height of 0 means the height that the controls need.
    take_size({pixels(twips), 0});
}

void f_sticks::lay_out()
{
    auto* columns = new QHBoxLayout;
    columns->setSpacing(2 * rhythm);
    columns->addLayout(make_bag_column(), 1);
    columns->addWidget(filters_);
    filters_->hide();
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(2 * rhythm, 2 * rhythm, 2 * rhythm, 2 * rhythm);
    rows->setSpacing(2 * rhythm);
    rows->addWidget(scrolled(columns), 1);
    rows->addLayout(make_foot());
}

QBoxLayout* f_sticks::make_bag_column()
{
    explanation_ = make_paragraph(u"head");
    auto* notice = make_paragraph(u"Label2");
    notice->setText(
        caption(u"Attention, le changement du nom de votre bâton n'est pas équivalent à l'ajout d'un "
                u"nouveau bâton. Les statistiques de l'ancien bâton suivront la nouvelle "
                u"appellation.",
                u"Please note:Former club statistics will remain associated with corresponding "
                u"new club names."));
    auto* rows = new QVBoxLayout;
    rows->setSpacing(2 * rhythm);
    rows->addWidget(explanation_);
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
    for (int club = 0; club < club_count; ++club)
        add_club(*grid, club);
    return bag;
}

void f_sticks::add_club(QGridLayout& grid, int club)
{
    const int row = 1 + club % clubs_in_a_column;
    const int column = club / clubs_in_a_column * columns_of_a_half;
    auto* name_box = names_.add(club, new QLineEdit);
    name_box->setMinimumWidth(name_box->fontMetrics().averageCharWidth() * name_characters + 2 * rhythm);
    const QString number = QString::number(club + 1);
    name_box->setAccessibleName(caption(u"Nom du bâton", u"Club name") + u' ' + number);
    auto* average_box = averages_.add(club, make_number_box(average_digits));
    take_comma_as_point(*average_box);
    average_box->setAccessibleName(caption(u"Moyenne du bâton", u"Club average") + u' ' + number);
    auto* label = named(make_label(number), QString(u"lbl_club_" + number));
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(label, row, column);
    grid.addWidget(name_box, row, column + 1);
    grid.addWidget(average_box, row, column + 2);
    grid.setColumnStretch(column + 1, 1);
}

QLayout* f_sticks::make_foot()
{
    auto* foot = new QHBoxLayout;
    foot->setSpacing(rhythm);
    foot->addWidget(filters_button_);
    foot->addStretch(1);
    foot->addWidget(ok_);
    foot->addWidget(cancel_);
    return foot;
}

void f_sticks::connect_events()
{
    on_click(*filters_button_, [this] { f_sticks_func::show_filters(*this); });
    on_signal(*filters_, &bag_filters::update_clicked, [this] { f_sticks_func::compute_averages(*this); });
    on_click(*ok_, [this] { f_sticks_func::accept(*this); });
    on_click(*cancel_, [this] { f_sticks_func::cancel(*this); });
    set_cancel_button(*cancel_);
}

QString f_sticks::name(int club) const
{
    return names_(club).text();
}

void f_sticks::set_name(int club, const QString& name)
{
    names_(club).setText(name);
    // Shows a long name from its beginning.
    names_(club).setCursorPosition(0);
}

QString f_sticks::average(int club) const
{
    return averages_(club).text();
}

void f_sticks::set_average(int club, const QString& average)
{
    averages_(club).setText(average);
}

void f_sticks::set_explanation(const QString& text)
{
    explanation_->setText(text);
}

bool f_sticks::fill_filters()
{
    filters_->fill_weather();
    if (!filters_->fill_rounds())
        return false;
    filters_->fill_partners_and_courses();
    return true;
}

void f_sticks::show_filters()
{
    filters_->show();
}

selection_arguments f_sticks::selection() const
{
    return filters_->selection();
}

void f_sticks::closeForm()
{
    f_sticks_func::cancel(*this);
}

void f_sticks::close_requested()
{
    f_sticks_func::cancel(*this);
}

void f_sticks::unloading()
{
    Unlock_menu();
}

}  // namespace verdane
