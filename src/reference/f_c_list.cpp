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

f_c_list::f_c_list() : Form(u"f_c_list"), List1(named(make_list_box(list_characters), u"List1"))
{
    setWindowTitle(caption(u"Gestion des terrains", u"Golf Course Management "));
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(2 * rhythm, 2 * rhythm, 2 * rhythm, 2 * rhythm);
    columns->setSpacing(2 * rhythm);
    columns->addWidget(scrolled(make_list()), 1);
    columns->addLayout(make_buttons());
    set_tab_order();
    wire();
    take_size(usual_size);
    f_c_list_func::load(*this);
}

QLayout* f_c_list::make_list()
{
    auto* heading = make_label(caption(u"Terrain / Terte", u"Golf Course / Teeing Area"), List1);
    auto* column = new QVBoxLayout;
    column->setSpacing(rhythm);
    column->addWidget(named(heading, u"lbl_list"));
    column->addWidget(List1);
    return column;
}

QLayout* f_c_list::make_buttons()
{
    Command1.add(0, make_button(caption(u" Ouvrir", u"Open")));
    Command1.add(1, make_button(caption(u"Ajouter", u"Add")));
    Command1.add(2, make_button(u"OK"_s));
    Command1.add(3, make_button(caption(u"Supprimer", u"Delete")));
    auto* column = new QVBoxLayout;
    column->setSpacing(rhythm);
    // In line with the list, whose heading stands above it.
    column->addSpacing(fontMetrics().height() + rhythm);
    column->addWidget(&Command1(0));
    column->addWidget(&Command1(1));
    column->addWidget(&Command1(3));
    column->addStretch();
    column->addWidget(&Command1(2));
    return column;
}

void f_c_list::set_tab_order()
{
    setTabOrder(List1, &Command1(0));
    setTabOrder(&Command1(0), &Command1(1));
    setTabOrder(&Command1(1), &Command1(3));
    setTabOrder(&Command1(3), &Command1(2));
    List1->setFocus();
}

void f_c_list::wire()
{
    for (const auto& [index, button] : Command1.members())
        on_click(*button, [this, i = index] { f_c_list_func::command(*this, i); });
    on_double_click(*List1, [this] { f_c_list_func::command(*this, 0); });
    on_enter(*List1, [this] { f_c_list_func::command(*this, 0); });
    shortcuts().mention(shortcut_table::open_course);
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
