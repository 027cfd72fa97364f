#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <initializer_list>

#include "controls/look.h"
#include "round/course_box.h"
#include "round/f_new_round.h"
#include "round/f_new_round_layout.h"
#include "round/round_boxes.h"
#include "round/temperature_box.h"

/// What belongs to the round as a whole, and its totals.
namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int money_digits = 6;

void add_block(QVBoxLayout& frame, const QString& caption, QWidget* control, int stretch = 0)
{
    auto* block = new QVBoxLayout;
    block->setSpacing(rhythm / 2);
    block->addWidget(make_label(caption, control));
    block->addWidget(control, stretch);
    frame.addLayout(block, stretch);
}

/// A caption, and at the other end of the line the control that it names with what follows it.
void add_line(QVBoxLayout& frame, const QString& caption, std::initializer_list<QWidget*> controls)
{
    auto* line = new QHBoxLayout;
    line->setSpacing(rhythm);
    line->addWidget(make_label(caption, *controls.begin()));
    line->addStretch();
    for (QWidget* control : controls)
        line->addWidget(control);
    frame.addLayout(line);
}

/// The total of the costs and the way to the twelve amounts.
void add_costs(f_new_round& window, QVBoxLayout& frame)
{
    window.Command2 = named(make_button(window.caption(u"Détails", u"Details")), u"Command2");
    QLineEdit* total = window.text.add(round_box::costs, make_figure(money_digits));
    add_line(frame, window.caption(u"Coûts", u"Costs"), {total, window.Command2});
}

/// Height of a list that shows so many lines, none of them cut.
int height_of_lines(QListWidget& list, int lines)
{
    list.addItem(u"X"_s);
    const int line = list.sizeHintForRow(0) + 2 * list.spacing();
    list.clear();
    return lines * line + 2 * list.frameWidth();
}

QListWidget* make_partner_list()
{
    constexpr int lines_in_sight = 4;
    auto* list = named(new QListWidget, u"pList");
    list->setSelectionMode(QAbstractItemView::MultiSelection);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    list->setSpacing(rhythm / 4);
    list->setMinimumHeight(height_of_lines(*list, lines_in_sight));
    return list;
}

QLabel* add_total(QHBoxLayout& line, const QString& caption, QStringView name)
{
    auto* figure = named(new QLabel, name);
    line.addWidget(make_label(caption, figure), 0, Qt::AlignBottom);
    QFont bold = figure->font();
    bold.setPointSizeF(bold.pointSizeF() * 1.2);
    bold.setBold(true);
    figure->setFont(bold);
    figure->setMinimumWidth(QFontMetrics(bold).horizontalAdvance(u"-00.00"_s) + 2 * rhythm);
    line.addWidget(figure, 0, Qt::AlignBottom);
    return figure;
}

}  // namespace

QWidget* make_parameters(f_new_round& window)
{
    auto* frame = named(new QGroupBox(window.caption(u"Paramètres", u"Parameters")), u"Frame8");
    window.Frame8 = frame;
    auto* blocks = new QVBoxLayout(frame);
    blocks->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    blocks->setSpacing(rhythm + rhythm / 2);
    window.cmb_courses = named(new course_box, u"cmb_courses");
    window.conditions = named(new QComboBox, u"conditions");
    // Side by side on the detailed page, the two stand on one line.
    window.conditions->setMinimumHeight(window.cmb_courses->sizeHint().height());
    window.UpDown1 = named(new temperature_box, u"UpDown1");
    window.pList = make_partner_list();
    add_block(*blocks, window.caption(u"Terrain", u"Golf Course"), window.cmb_courses);
    add_block(*blocks, window.caption(u"Conditions atmosphériques", u"Weather Conditions "),
              window.conditions);
    add_line(*blocks, u"Temp. :"_s, {window.UpDown1});
    add_block(*blocks, window.caption(u"Partenaires", u"Partners"), window.pList, 1);
    add_costs(window, *blocks);
    return frame;
}

QWidget* make_totals(f_new_round& window)
{
    window.Frame7 = named(new QWidget, u"Frame7");
    // Its place stays free on the other holes, so that nothing jumps.
    QSizePolicy policy = window.Frame7->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    window.Frame7->setSizePolicy(policy);
    auto* line = new QHBoxLayout(window.Frame7);
    line->setContentsMargins(rhythm, 0, 0, 0);
    line->setSpacing(rhythm);
    window.l_brut = add_total(*line, u"Brut"_s, u"l_brut");
    window.l_hand = add_total(*line, u"Handicap"_s, u"l_hand");
    window.l_net = add_total(*line, u"Net"_s, u"l_net");
    window.l_plus = add_total(*line, u"+/-"_s, u"l_plus");
    return window.Frame7;
}

}  // namespace verdane
