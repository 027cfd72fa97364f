#include "reference/f_partners.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

#include "controls/control_array.h"
#include "controls/data_grid.h"
#include "controls/events.h"
#include "controls/Form.h"
#include "controls/list_box.h"
#include "controls/look.h"
#include "controls/scrolled_content.h"
#include "reference/f_partners_func.h"
#include "store/DataEnvironment1.h"
#include "store/tables/partners.h"

namespace verdane {

namespace {

namespace partners = tables::partners;

using namespace f_partners_func;
using namespace Qt::StringLiterals;

constexpr QSize usual_size(960, 480);
/// The initial widths of the columns, in characters.
constexpr std::array<int, f_partners::column_count> widths{18, 18, 26, 18, 18, 28, 8};

std::vector<bound_column> columns(const Form& window)
{
    return {
        {partners::NAME, window.caption(u"Nom", u"Last Name")},
        {partners::SURNAME, window.caption(u"Prénom", u"First Name")},
        {partners::AD1, window.caption(u"Adresse", u"Address")},
        {partners::AD2, window.caption(u"Ville", u"City")},
        {partners::TEL, window.caption(u"Téléphone", u"Telephone")},
        {partners::MAIL, window.caption(u"Courriel", u"Email")},
        {partners::code, u"code"_s},  // The same caption in both languages.
    };
}

void set_widths(data_grid& grid)
{
    const int character = grid.fontMetrics().averageCharWidth();
    for (int column = 0; column < f_partners::column_count; ++column)
        grid.setColumnWidth(column, widths.at(static_cast<std::size_t>(column)) * character);
    // The columns with the longest texts share the remaining width.
    for (const int column : {f_partners::address, f_partners::mail})
        grid.horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
}

}  // namespace

f_partners::f_partners()
    : Form(u"f_partners"),
      frame_(named(new QGroupBox(caption(u"Partenaires", u"Partners")), u"Frame1")),
      grid_(make_grid()),
      add_(named(make_end_button(caption(u"Ajouter", u"Add")), u"add")),
      remove_(named(make_end_button(caption(u"Supprimer", u"Remove")), u"Del")),
      ok_(named(make_end_button(u"OK"_s), u"cmdSave")),
      cancel_(named(make_end_button(caption(u"Annuler", u"Cancel")), u"cmdAn"))
{
    setWindowTitle(caption(u"Partenaires", u"Partner Management "));
    lay_out();
    set_tab_order();
    connect_events();
    take_size(usual_size);
    load(*this);
}

data_grid* f_partners::make_grid() const
{
    auto* model = new recordset_model(data_environment().rspartners, columns(*this));
    model->set_before_row_commit(before_row_commit);
    auto* grid = named(new data_grid(model), u"pgrid");
    grid->setAccessibleName(frame_->title());
    grid->setAlternatingRowColors(true);
    grid->setWordWrap(false);
    grid->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    set_widths(*grid);
    show_text_when_empty(*grid, caption(u"Aucun partenaire", u"No partner"));
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
    auto* inside = new QVBoxLayout(frame_);
    inside->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    inside->addWidget(grid_);
    auto* content = new QVBoxLayout;
    content->addWidget(frame_);
    return content;
}

QLayout* f_partners::make_buttons()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(rhythm);
    row->addWidget(add_);
    row->addWidget(remove_);
    row->addStretch();
    row->addWidget(ok_);
    row->addWidget(cancel_);
    return row;
}

void f_partners::set_tab_order()
{
    setTabOrder(grid_, add_);
    setTabOrder(add_, remove_);
    setTabOrder(remove_, ok_);
    setTabOrder(ok_, cancel_);
    grid_->setFocus();
}

void f_partners::connect_events()
{
    on_click(*add_, [this] { add_partner(*this); });
    on_click(*remove_, [this] { remove_partner(*this); });
    on_click(*ok_, [] { current_form->closeForm(); });
    on_click(*cancel_, [this] { closeForm(); });
    set_cancel_button(*cancel_);
}

void f_partners::bind_grid()
{
    grid_->bind();
}

void f_partners::unbind_grid()
{
    grid_->unbind();
}

void f_partners::finish_typing()
{
    grid_->commit_cell();
    grid_->bound_model().finish_row();
}

void f_partners::show_cell(int column_to_show)
{
    grid_->ReBind();
    grid_->set_Col(column_to_show);
    grid_->setFocus();
}

int f_partners::current_column() const
{
    return grid_->Col();
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
