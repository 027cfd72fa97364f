#include "reference/f_partners.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/control_array.h"
#include "controls/data_grid.h"
#include "controls/events.h"
#include "controls/look.h"
#include "controls/main_frame.h"
#include "controls/scrolled_content.h"
#include "reference/f_partners_func.h"
#include "store/DataEnvironment1.h"

namespace verdane {

namespace {

using namespace f_partners_func;
using namespace Qt::StringLiterals;

constexpr QSize usual_size(960, 480);
/// Characters that the columns are wide at first.
constexpr int widths[] = {18, 18, 26, 18, 18, 28, 8};

std::vector<bound_column> columns(const Form& window)
{
    return {
        {u"NAME"_s, window.caption(u"Nom", u"Last Name")},
        {u"SURNAME"_s, window.caption(u"Prénom", u"First Name")},
        {u"AD1"_s, window.caption(u"Adresse", u"Address")},
        {u"AD2"_s, window.caption(u"Ville", u"City")},
        {u"TEL"_s, window.caption(u"Téléphone", u"Telephone")},
        {u"MAIL"_s, window.caption(u"Courriel", u"Email")},
        {u"code"_s, u"code"_s},
    };
}

void set_widths(data_grid& grid)
{
    const int character = grid.fontMetrics().averageCharWidth();
    for (int column = 0; column < static_cast<int>(std::size(widths)); ++column)
        grid.setColumnWidth(column, widths[column] * character);
    // The longest texts take what room there is.
    for (const int column : {2, 5})
        grid.horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
}

}  // namespace

f_partners::f_partners()
    : Form(u"f_partners"),
      Frame1(named(new QGroupBox(caption(u"Partenaires", u"Partners")), u"Frame1")),
      pgrid(make_grid()),
      add(named(make_button(caption(u"Ajouter", u"Add")), u"add")),
      Del(named(make_button(caption(u"Supprimer", u"Remove")), u"Del")),
      cmdSave(named(make_button(u"OK"_s), u"cmdSave")),
      cmdAn(named(make_button(caption(u"Annuler", u"Cancel")), u"cmdAn"))
{
    setWindowTitle(caption(u"Partenaires", u"Partner Management "));
    lay_out();
    set_tab_order();
    wire();
    take_size(usual_size);
    load(*this);
}

data_grid* f_partners::make_grid() const
{
    auto* model = new recordset_model(data_environment().rspartners, columns(*this));
    model->before_row_commit = before_row_commit;
    auto* grid = named(new data_grid(model), u"pgrid");
    grid->setAccessibleName(Frame1->title());
    grid->setAlternatingRowColors(true);
    grid->setWordWrap(false);
    grid->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    set_widths(*grid);
    return grid;
}

void f_partners::lay_out()
{
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(2 * rhythm, 2 * rhythm, 2 * rhythm, 2 * rhythm);
    rows->setSpacing(2 * rhythm);
    rows->addWidget(scrolled(make_content()), 1);
    rows->addLayout(make_buttons());
}

QLayout* f_partners::make_content()
{
    auto* inside = new QVBoxLayout(Frame1);
    inside->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    inside->addWidget(pgrid);
    auto* content = new QVBoxLayout;
    content->addWidget(Frame1);
    return content;
}

QLayout* f_partners::make_buttons()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(rhythm);
    row->addWidget(add);
    row->addWidget(Del);
    row->addStretch();
    row->addWidget(cmdSave);
    row->addWidget(cmdAn);
    for (QPushButton* button : {add, Del, cmdSave, cmdAn})
        button->setMinimumWidth(12 * rhythm);
    return row;
}

void f_partners::set_tab_order()
{
    setTabOrder(pgrid, add);
    setTabOrder(add, Del);
    setTabOrder(Del, cmdSave);
    setTabOrder(cmdSave, cmdAn);
    pgrid->setFocus();
}

void f_partners::wire()
{
    on_click(*add, [this] { add_partner(*this); });
    on_click(*Del, [this] { remove_partner(*this); });
    on_click(*cmdSave, [] { current_form->closeForm(); });
    on_click(*cmdAn, [this] { closeForm(); });
    set_cancel_button(*cmdAn);
}

void f_partners::closeForm()
{
    f_partners_func::close(*this);
}

void f_partners::unloading()
{
    f_partners_func::unload(*this);
}

}  // namespace verdane
