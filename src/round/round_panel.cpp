#include "round/round_panel.h"

#include <QLabel>
#include <QLineEdit>

#include "records/Round_functions.h"
#include "round/f_new_round.h"
#include "round/round_boxes.h"
#include "scoring/hole_classes.h"

namespace verdane {

namespace {

/// From one figure to the next most classes stay as they are, and those are not painted again.
void show_class(QLineEdit& box, const QString& text)
{
    if (box.text() != text)
        box.setText(text);
}

}  // namespace

void refresh_panel(f_new_round& window, bool from_row)
{
    window.needSave = true;
    const int16 hole = window.hole_shown();
    const hole_figures figures = from_row ? Round_functions::figures_from_row(hole) : window.figures();
    const int16 par = Round_functions::hole_par(hole);
    for (const selector_row& row : panel_selectors)
        show_class(window.text(row.box), hole_cell(row.selector, figures, par));
}

void refresh_score(f_new_round& window)
{
    const auto labels = Round_functions::labels_of(Round_functions::round_score(window.figures()));
    window.l_hand->setText(labels.l_hand);
    window.l_brut->setText(labels.l_brut);
    window.l_net->setText(labels.l_net);
    window.l_plus->setText(labels.l_plus);
}

void sum_stroke_boxes(f_new_round& window)
{
    const auto box = [&window](int index) { return window.text_vrd(index).text(); };
    window.text_vrd(round_box::stroke_total)
        .setText(sum_of_boxes({box(round_box::long_shots), box(round_box::approach), box(round_box::putts)}));
}

void sum_penalty_boxes(f_new_round& window)
{
    const auto box = [&window](int index) { return window.text_s(index).text(); };
    window.text(round_box::penalty_total)
        .setText(sum_of_boxes(
            {box(round_box::water), box(round_box::lost), box(round_box::rule), box(round_box::bounds)}));
}

}  // namespace verdane
