#include "reference/f_cost.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <array>
#include <utility>

#include "base/language.h"
#include "controls/box_focus.h"
#include "controls/events.h"
#include "controls/look.h"
#include "controls/scrolled_content.h"
#include "reference/f_cost_func.h"

namespace verdane {

namespace {

using namespace f_cost_func;
using namespace Qt::StringLiterals;

constexpr int total_digits = 6;
enum column { caption_column, amount_column, mark_column };

constexpr std::array<text_pair, amount_count> captions = {{
    {u"Frais de jeu :", u"Green Fees :"},
    {u"Chariot Manuel :", u"Hand Cart :"},
    {u"Voiturette :", u"Golf Cart :"},
    {u"Frais de transport :", u"Transportation costs :"},
    {u"Balles :", u"Balls :"},
    {u"Tee :", u"Tees :"},
    {u"Terrain d'exercice :", u"Practice Range :"},
    {u"Nourriture :", u"Food :"},
    {u"Leçon de golf :", u"Golf Lessons :"},
    {u"Bâtons et sac :", u"Golf Clubs and Bag :"},
    {u"Vêtements:", u"Clothes :"},
    {u"Autres :", u"Other :"},
}};

/// The mark next to every amount. The user decides which currency it means.
QLabel* make_mark(const QString& name)
{
    return named(make_label(u"$"_s), name);
}

}  // namespace

f_cost::f_cost()
    : Form(u"f_cost"),
      total_(named(make_figure(total_digits), u"Text1")),
      ok_(named(make_end_button(u"OK"_s), u"OKButton"))
{
    setWindowTitle(caption(u"Coûts", u"Costs"));
    lay_out();
    connect_events();
    load(*this);
}

void f_cost::lay_out()
{
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(3 * rhythm, 2 * rhythm, 3 * rhythm, 2 * rhythm);
    rows->setSpacing(2 * rhythm);
    rows->addWidget(scrolled(make_amounts()), 1);
    rows->addLayout(make_foot());
    take_size(sizeHint());
}

QLayout* f_cost::make_amounts()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(rhythm);
    grid->setVerticalSpacing(rhythm);
    grid->setColumnStretch(caption_column, 1);
    for (int index = 0; index < amount_count; ++index)
        add_amount(*grid, index, captions[static_cast<std::size_t>(index)].in(french()));
    add_total(*grid);
    grid->setRowStretch(grid->rowCount(), 1);
    return grid;
}

void f_cost::add_amount(QGridLayout& grid, int index, const QString& caption)
{
    QLineEdit* box = amounts_.add(index, make_number_box(total_digits));
    box->setText(u"0"_s);
    const QString number = QString::number(index);
    grid.addWidget(named(make_label(caption, box), QString(u"lbl_cost_" + number)), index, caption_column);
    grid.addWidget(box, index, amount_column);
    grid.addWidget(make_mark(u"lbl_mark_" + number), index, mark_column);
}

void f_cost::add_total(QGridLayout& grid)
{
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    grid.addWidget(line, amount_count, caption_column, 1, mark_column + 1);
    auto* label = named(make_label(u"Total :"_s, total_), u"lbl_total");
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    total_->setFont(bold);
    // Loading a row of zeros changes no box, and therefore does not compute the total.
    total_->setText(u"0"_s);
    const int row = amount_count + 1;
    grid.addWidget(label, row, caption_column);
    grid.addWidget(total_, row, amount_column);
    grid.addWidget(make_mark(u"lbl_mark_total"_s), row, mark_column);
}

QLayout* f_cost::make_foot()
{
    auto* notice = make_label(caption(u"Arrondir à l'unité près.", u"To be rounded without decimals."));
    auto* foot = new QHBoxLayout;
    foot->setSpacing(2 * rhythm);
    foot->addWidget(named(notice, u"Label2"));
    foot->addStretch();
    foot->addWidget(ok_);
    return foot;
}

void f_cost::connect_events()
{
    for (const auto& [index, box] : amounts_.members()) {
        // A pasted text has a separate filter: it may replace the digits that make the box full for a key.
        filter_pasted_text(*box, digits_only);
        filter_keys(*box, [this, i = index](QChar key) { return box_key(*this, i, key); });
        when_entered(*box, [this, i = index] { enter_box(*this, i); });
        on_change(*box, [this, i = index] { box_changed(*this, i); });
    }
    on_click(*ok_, [this] { f_cost_func::accept(*this); });
}

QString f_cost::amount(int index) const
{
    return amounts_(index).text();
}

void f_cost::show_stored_amount(int index, int amount)
{
    QLineEdit& box = amounts_(index);
    box.setText(QString::number(amount));
    box.setMaxLength(std::max(amount_digits, static_cast<int>(box.text().size())));
}

void f_cost::show_zero(int index)
{
    amounts_(index).setText(u"0"_s);
    amounts_(index).selectAll();
}

void f_cost::select_amount(int index)
{
    select_characters(amounts_(index), amount_digits);
}

void f_cost::show_total(const QString& total)
{
    total_->setText(total);
}

void f_cost::activated()
{
    amounts_(0).setFocus();
}

void f_cost::unloading()
{
    Q_EMIT closed_with_total(total_->text());
}

}  // namespace verdane
