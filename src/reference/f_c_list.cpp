#include "reference/f_c_list.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "controls/events.h"
#include "controls/list_box.h"
#include "controls/look.h"
#include "controls/scrolled_content.h"
#include "controls/shortcuts.h"
#include "reference/f_c_list_func.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usual_size(560, 440);
constexpr int list_characters = 40;

}  // namespace

f_c_list::f_c_list() : Form(u"f_c_list"), lines_(named(make_list_box(list_characters), u"List1"))
{
    setWindowTitle(caption(u"Gestion des terrains", u"Golf Course Management "));
    show_text_when_empty(*lines_, caption(u"Aucun terrain", u"No golf course"));
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(2 * rhythm, 2 * rhythm, 2 * rhythm, 2 * rhythm);
    columns->setSpacing(2 * rhythm);
    columns->addWidget(scrolled(make_list()), 1);
    columns->addLayout(make_buttons());
    set_tab_order();
    connect_events();
    take_size(usual_size);
    f_c_list_func::load(*this);
}

QLayout* f_c_list::make_list()
{
    auto* heading = make_label(caption(u"Terrain / Terte", u"Golf Course / Teeing Area"), lines_);
    auto* column = new QVBoxLayout;
    column->setSpacing(rhythm);
    column->addWidget(named(heading, u"lbl_list"));
    column->addWidget(lines_);
    return column;
}

QLayout* f_c_list::make_buttons()
{
    buttons_.add(open, make_button(caption(u" Ouvrir", u"Open")));
    buttons_.add(add, make_button(caption(u"Ajouter", u"Add")));
    buttons_.add(ok, make_button(u"OK"_s));
    buttons_.add(remove, make_button(caption(u"Supprimer", u"Delete")));
    auto* column = new QVBoxLayout;
    column->setSpacing(rhythm);
    // The first button is level with the top of the list, which has a heading above it.
    column->addSpacing(fontMetrics().height() + rhythm);
    column->addWidget(&buttons_(open));
    column->addWidget(&buttons_(add));
    column->addWidget(&buttons_(remove));
    column->addStretch();
    column->addWidget(&buttons_(ok));
    return column;
}

void f_c_list::set_tab_order()
{
    setTabOrder(lines_, &buttons_(open));
    setTabOrder(&buttons_(open), &buttons_(add));
    setTabOrder(&buttons_(add), &buttons_(remove));
    setTabOrder(&buttons_(remove), &buttons_(ok));
    lines_->setFocus();
}

void f_c_list::connect_events()
{
    for (const auto& [index, clicked] : buttons_.members())
        on_click(*clicked, [this, i = index] { f_c_list_func::command(*this, i); });
    on_double_click(*lines_, [this] { f_c_list_func::command(*this, open); });
    on_enter(*lines_, [this] { f_c_list_func::command(*this, open); });
    shortcuts().mention(shortcut_table::open_course);
}

void f_c_list::show_courses(const QStringList& lines)
{
    fill_list_box(*lines_, lines);
}

int f_c_list::selected_course() const
{
    return lines_->currentRow();
}

QString f_c_list::selected_line() const
{
    return lines_->currentItem()->text();
}

void f_c_list::remove_selected_line()
{
    verdane::remove_selected_line(*lines_);
}

void f_c_list::closeForm()
{
    f_c_list_func::close(*this);
}

void f_c_list::unloading()
{
    f_c_list_func::unload();
}

}  // namespace verdane
