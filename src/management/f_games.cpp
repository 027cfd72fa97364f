#include "management/f_games.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/events.h"
#include "controls/list_box.h"
#include "controls/look.h"
#include "controls/scrolled_content.h"
#include "controls/shortcuts.h"
#include "management/f_games_func.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// Date, time, a course name of average length and the mark.
constexpr int characters_of_a_line = 62;
constexpr int lines_in_view = 16;

}  // namespace

f_games::f_games()
    : Form(u"f_games"), lines_(named(make_list_box(characters_of_a_line, lines_in_view), u"List1"))
{
    build();
    connect_events();
    f_games_func::load(*this);
}

void f_games::build()
{
    setWindowTitle(caption(u"Gestion des rondes", u"Round Management "));
    auto* warning = named(make_label(caption(u"** Attention : Ces rondes ne sont pas complétées",
                                             u"**Attention : these rounds have not been completed.")),
                          u"Label1");
    auto* rows = new QVBoxLayout;
    rows->setSpacing(rhythm);
    rows->addWidget(make_rounds_frame(), 1);
    rows->addWidget(warning);
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(2 * rhythm, 2 * rhythm, 2 * rhythm, 2 * rhythm);
    columns->setSpacing(2 * rhythm);
    columns->addWidget(scrolled(rows), 1);
    columns->addWidget(make_buttons());
    take_size(sizeHint());
}

QWidget* f_games::make_rounds_frame()
{
    auto* frame =
        named(new QGroupBox(caption(u"Date / Heure / Terrain", u"Date / Time / Course")), u"Frame1");
    lines_->setAccessibleName(frame->title());
    show_text_when_empty(*lines_, caption(u"Aucune ronde", u"No round"));
    auto* inside = new QVBoxLayout(frame);
    inside->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    inside->addWidget(lines_);
    return frame;
}

QWidget* f_games::make_buttons()
{
    auto* column = new QWidget;
    auto* rows = new QVBoxLayout(column);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(rhythm);
    rows->addSpacing(2 * rhythm);
    rows->addWidget(buttons_.add(open, make_button(caption(u"Ouvrir", u"Open"))));
    rows->addWidget(buttons_.add(add, make_button(caption(u"Ajouter", u"Add"))));
    rows->addWidget(buttons_.add(remove, make_button(caption(u"Supprimer", u"Remove"))));
    rows->addStretch(1);
    rows->addWidget(buttons_.add(ok, make_button(u"OK"_s)));
    return column;
}

void f_games::connect_events()
{
    for (const auto& [index, button] : buttons_.members())
        on_click(*button, [this, which = index] { f_games_func::on_command(*this, which); });
    on_double_click(*lines_, [this] { f_games_func::on_command(*this, open); });
    on_enter(*lines_, [this] { f_games_func::on_command(*this, open); });
    shortcuts().mention(shortcut_table::open_round);
}

void f_games::show_rounds(const QStringList& lines)
{
    fill_list_box(*lines_, lines);
}

QString f_games::selected_line() const
{
    const QListWidgetItem* selected = lines_->currentItem();
    return selected ? selected->text() : QString();
}

void f_games::remove_selected_line()
{
    verdane::remove_selected_line(*lines_);
}

void f_games::closeForm()
{
    f_games_func::on_command(*this, ok);
}

void f_games::close_requested()
{
    f_games_func::on_command(*this, ok);
}

void f_games::unloading()
{
    f_games_func::unload();
}

}  // namespace verdane
