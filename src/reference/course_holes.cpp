#include "reference/course_holes.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <utility>

#include "base/numbers.h"
#include "controls/box_focus.h"
#include "controls/boxes.h"
#include "controls/Form.h"
#include "controls/keys.h"
#include "controls/look.h"
#include "reference/course_page.h"
#include "scoring/course_checks.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int heading_row = 0;
/// A hole takes two rows: its figures, and the line below them.
constexpr int first_hole_row = 2;
enum hole_column { number_column, yards_column, stroke_index_column, par_column };

QLineEdit* make_figure_box(const QString& accessible_name)
{
    QLineEdit* box = make_number_box(hole_figure_characters);
    box->setMaxLength(hole_figure_characters);
    box->setText(u"0"_s);
    box->setAccessibleName(accessible_name);
    return box;
}

/// Adds a line across the page, from the number of a hole to its par.
void add_line(QGridLayout& grid, int row, const QColor& colour, int height)
{
    auto* line = new QWidget;
    line->setFixedHeight(height);
    line->setAutoFillBackground(true);
    QPalette palette = line->palette();
    palette.setColor(QPalette::Window, colour);
    line->setPalette(palette);
    grid.addWidget(line, row, number_column, 1, par_column + 1);
}

QString reason_of(hole_refusal refusal, const Form& window)
{
    switch (refusal) {
    case hole_refusal::index_of_other_hole:
        return window.caption(u"Cette handicap est attri1buée à un autre trou",
                              u"This handicap is associated to another hole.");
    case hole_refusal::index_too_high:
        return window.caption(u"La valeur de l'Handicap doit être inférieure à 19.",
                              u"The handicap must be under 19.");
    case hole_refusal::no_par:
        return window.caption(u"La Normale doit être inférieure à 6 et supérieur à 2.",
                              u"The par must be under 6 and above 2.");
    default:
        return {};
    }
}

}  // namespace

course_holes::course_holes(const Form& window) : window_(window) {}

QFrame* course_holes::make_page(int number, int first_index)
{
    auto* page = new course_page;
    QGridLayout* grid = page->make_grid(rhythm);
    add_headings(*grid, number);
    for (int index = first_index; index < first_index + nine_holes; ++index)
        add_hole(*grid, index);
    for (const int column : {yards_column, stroke_index_column, par_column})
        grid->setColumnStretch(column, 1);
    grid->setRowStretch(grid->rowCount(), 1);
    return page;
}

void course_holes::add_headings(QGridLayout& grid, int number)
{
    const std::pair<QString, QString> headings[] = {
        {u"lbl_hole"_s, window_.caption(u"Trou", u"Hole")},
        {u"lbl_verge"_s, window_.caption(u"Distance (verges) ", u"Distance (yards)")},
        {u"lbl_hnd"_s, u"Handicap"_s},
        {u"lbl_normal"_s, window_.caption(u"Normale", u"Par")},
    };
    for (int column = number_column; column <= par_column; ++column) {
        const auto& [name, words] = headings[column];
        QLabel* heading = named(make_label(words), QString(name + u'_' + QString::number(number)));
        make_bold(*heading);
        grid.addWidget(heading, heading_row, column,
                       column == number_column ? Qt::AlignLeft : Qt::AlignRight);
    }
    add_line(grid, heading_row + 1, accent_green(), 2);
}

void course_holes::add_hole(QGridLayout& grid, int index)
{
    const QString number = QString::number(index + 1);
    const QString hole = window_.caption(u"Trou", u"Hole") + u' ' + number + u", ";
    add_box(yards, index, hole + window_.caption(u"distance", u"distance"));
    add_box(stroke_index, index, hole + window_.caption(u"handicap", u"handicap"));
    add_box(par, index, hole + window_.caption(u"normale", u"par"));
    const int row = first_hole_row + 2 * (index % nine_holes);
    grid.addWidget(named(make_label(number), QString(u"lbl_number_" + number)), row, number_column);
    grid.addWidget(&box(yards, index), row, yards_column, Qt::AlignRight);
    grid.addWidget(&box(stroke_index, index), row, stroke_index_column, Qt::AlignRight);
    grid.addWidget(&box(par, index), row, par_column, Qt::AlignRight);
    add_line(grid, row + 1, window_.palette().color(QPalette::Midlight).darker(103), 1);
}

void course_holes::add_box(figure which, int index, const QString& accessible_name)
{
    control_array<QLineEdit>* const arrays[] = {&yards_, &stroke_indexes_, &pars_};
    QLineEdit& added = *arrays[which]->add(index, make_figure_box(accessible_name));
    when_entered(added, [&added] { select_characters(added, hole_figure_characters); });
    when_left(added, [this, which, index] { return may_leave(which, index); });
}

QLineEdit& course_holes::box(figure which, int index) const
{
    const control_array<QLineEdit>* const arrays[] = {&yards_, &stroke_indexes_, &pars_};
    return (*arrays[which])(index);
}

bool course_holes::may_leave(figure which, int index)
{
    hole_refusal refusal = hole_refusal::none;
    switch (which) {
    case yards:
        refusal = check_yards(text(yards, index));
        break;
    case stroke_index:
        refusal = check_stroke_index(text(stroke_index, index), other_indexes(index));
        break;
    case par:
        refusal = check_par(text(par, index));
        break;
    }
    if (refusal != hole_refusal::none)
        refuse(box(which, index), reason_of(refusal, window_));
    else if (which == yards)
        Q_EMIT yards_entered();
    return refusal == hole_refusal::none;
}

QStringList course_holes::other_indexes(int index) const
{
    QStringList texts;
    for (int other = 0; other < hole_count; ++other) {
        if (other != index)
            texts << text(stroke_index, other);
    }
    return texts;
}

/// Resets the box to "0" and keeps the focus in it, with a message box if there is a reason to show.
void course_holes::refuse(QLineEdit& refused, const QString& reason)
{
    if (!reason.isEmpty())
        show_information(reason);
    refused.setText(u"0"_s);
    refused.setFocus();
    select_characters(refused, hole_figure_characters);
}

QString course_holes::text(figure which, int index) const
{
    return box(which, index).text();
}

void course_holes::set(figure which, int index, int16 value)
{
    box(which, index).setText(QString::number(plain(value)));
}

int16 course_holes::yards_between(int first, int end) const
{
    int16 sum = 0;
    for (int index = first; index < end; ++index)
        sum = sum + to_int16(text(yards, index));
    return sum;
}

void course_holes::focus_yards(int index)
{
    box(yards, index).setFocus();
}

std::vector<QWidget*> course_holes::tab_order(int first_index) const
{
    std::vector<QWidget*> order;
    for (const figure which : {yards, stroke_index, par}) {
        for (int index = first_index; index < first_index + nine_holes; ++index)
            order.push_back(&box(which, index));
    }
    return order;
}

}  // namespace verdane
