#include <QBoxLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>

#include "base/language.h"
#include "controls/accessible_controls.h"
#include "controls/data_grid.h"
#include "controls/look.h"
#include "controls/shortcuts.h"
#include "round/details_grid.h"
#include "round/f_new_round.h"
#include "round/f_new_round_layout.h"
#include "round/round_boxes.h"

/// The detailed page: a hole told shot by shot.
namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QPushButton* make_command(f_new_round& window, const text_pair& caption, QStringView name,
                          const shortcut& keys)
{
    QPushButton* button = named(make_button(caption.in(window.french())), name);
    window.shortcuts().add(keys, *button);
    return button;
}

QLayout* make_commands(f_new_round& window)
{
    window.CommandSuiv =
        make_command(window, {u"Coup suivant", u"Next Shot"}, u"CommandSuiv", shortcut_table::next_shot);
    window.CommandSup =
        make_command(window, {u"Supprimer", u"Remove"}, u"CommandSup", shortcut_table::remove_shot);
    window.b_carte = make_command(window, {u"Fin - Rafraichir carte de pointage", u"End - Refresh Scorecard"},
                                  u"b_carte", shortcut_table::end_of_hole);
    auto* line = new QHBoxLayout;
    line->setSpacing(rhythm);
    line->addWidget(window.CommandSuiv);
    line->addWidget(window.CommandSup);
    line->addStretch();
    line->addWidget(window.b_carte);
    return line;
}

/// The frames that stand side by side on the quick page stand one above the other on the detailed one.
void turn_pages(f_new_round& window, bool detailed)
{
    const bool across = !detailed;
    window.pages->setDirection(across ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    auto& parameters = dynamic_cast<QBoxLayout&>(*window.Frame8->layout());
    parameters.setDirection(across ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    for (int block = 0; block < parameters.count(); ++block)
        parameters.itemAt(block)->setAlignment(across ? Qt::Alignment() : Qt::AlignBottom);
    // Beside the shots the list of partners keeps to the height of a few lines.
    window.pList->setMaximumHeight(across ? QWIDGETSIZE_MAX : window.pList->minimumHeight());
    // What the window takes for the frame's least size would be that of the other page until the next event.
    window.Frame8->updateGeometry();
}

/// What goes is gone before the pages turn: both pages at once would make the window larger than the
/// screen, and it would stay so.
void show_page(f_new_round& window, bool detailed)
{
    const std::initializer_list<QWidget*> quick{&window.Frame5(round_box::quick_page), window.Frame1};
    const std::initializer_list<QWidget*> shots{window.Framedet};
    for (QWidget* frame : detailed ? quick : shots)
        frame->hide();
    turn_pages(window, detailed);
    for (QWidget* frame : detailed ? shots : quick)
        frame->show();
}

}  // namespace

QWidget* make_detailed_page(f_new_round& window)
{
    auto* frame = named(new QGroupBox(window.caption(u"Coups", u"Shots")), u"Framedet");
    window.Framedet = frame;
    window.details = make_details(window);
    name_control(*window.details, frame->title());
    set_up_columns(window);
    // While it is hidden for a moment, nothing around it jumps.
    QSizePolicy policy = window.details->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    window.details->setSizePolicy(policy);
    auto* lines = new QVBoxLayout(frame);
    lines->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    lines->setSpacing(rhythm);
    lines->addWidget(window.details, 1);
    lines->addLayout(make_commands(window));
    frame->hide();
    return frame;
}

QWidget* make_page_bar(f_new_round& window)
{
    auto* bar = new QWidget;
    auto* line = new QHBoxLayout(bar);
    line->setContentsMargins(0, 0, 0, 0);
    window.TabStrip2 = named(new TabStrip, u"TabStrip2");
    name_control(*window.TabStrip2, u"Pages"_s);
    window.TabStrip2->addTab(window.caption(u"Entrée rapide", u"Quick entry"));
    window.TabStrip2->addTab(window.caption(u"Entrée détaillée", u"Detailed Entry"));
    window.Command4 = named(make_button(u"Cliquer pour détailler votre ronde"_s), u"Command4");
    window.b_putts =
        make_command(window, {u"Coups roulés", u"Putts"}, u"b_putts", shortcut_table::putt_report);
    line->setSpacing(rhythm);
    line->addWidget(window.TabStrip2);
    line->addStretch();
    line->addWidget(window.b_putts);
    line->addWidget(window.Command4);
    return bar;
}

void show_quick_page(f_new_round& window)
{
    show_page(window, false);
}

void show_detailed_page(f_new_round& window)
{
    show_page(window, true);
}

}  // namespace verdane
