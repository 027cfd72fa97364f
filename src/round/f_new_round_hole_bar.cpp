#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "controls/look.h"
#include "round/f_new_round.h"
#include "round/f_new_round_layout.h"
#include "round/round_boxes.h"

/// The line below the hole tabs: which hole, its card, when the round was teed off.
namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int card_digits = 4;
constexpr int date_characters = 10;
constexpr int time_characters = 8;

QLineEdit* add_figure(f_new_round& window, QHBoxLayout& line, int index, const QString& caption,
                      int characters)
{
    QLineEdit* box = window.text.add(index, make_figure(characters));
    line.addWidget(make_label(caption, box));
    line.addWidget(box);
    line.addSpacing(rhythm);
    return box;
}

void add_hole_choice(f_new_round& window, QHBoxLayout& line)
{
    QLabel* number = window.Label.add(round_box::hole_number, new QLabel);
    QFont large = number->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    large.setBold(true);
    number->setFont(large);
    // As wide for the first hole as for the last, so that nothing moves between holes.
    number->setText(u"18"_s);
    number->setMinimumWidth(number->sizeHint().width());
    window.cmb_holes = named(new QComboBox, u"cmb_holes");
    line.addWidget(make_label(window.caption(u"Trou :", u"Hole :"), window.cmb_holes));
    line.addWidget(number);
    line.addWidget(window.cmb_holes);
    line.addSpacing(2 * rhythm);
}

void add_date(f_new_round& window, QHBoxLayout& line)
{
    window.b_getdat = named(make_button(window.caption(u"Choisir", u"Select")), u"b_getdat");
    for (const int index : {round_box::date, round_box::time}) {
        const bool is_date = index == round_box::date;
        QLineEdit* box =
            add_figure(window, line, index, is_date ? u"Date :"_s : window.caption(u"Heure :", u"Time :"),
                       is_date ? date_characters : time_characters);
        box->setAlignment(Qt::AlignCenter);
    }
    line.addWidget(window.b_getdat);
}

/// What the window carries and does not show.
void add_hidden(f_new_round& window)
{
    for (const int index : {round_box::course_name, round_box::hole}) {
        QLineEdit* box = window.text.add(index, new QLineEdit(&window));
        box->hide();
    }
}

}  // namespace

QWidget* make_hole_bar(f_new_round& window)
{
    auto* bar = new QWidget;
    auto* line = new QHBoxLayout(bar);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(rhythm);
    add_hole_choice(window, *line);
    add_figure(window, *line, round_box::par, window.caption(u"Normale :", u"Par :"), card_digits);
    add_figure(window, *line, round_box::length, window.caption(u"Verges :", u"Yards :"), card_digits);
    add_figure(window, *line, round_box::stroke_index, u"Handicap :"_s, card_digits);
    line->addStretch();
    add_date(window, *line);
    add_hidden(window);
    return bar;
}

}  // namespace verdane
