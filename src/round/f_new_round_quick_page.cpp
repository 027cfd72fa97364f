#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "base/language.h"
#include "controls/look.h"
#include "round/f_new_round.h"
#include "round/f_new_round_layout.h"
#include "round/round_boxes.h"

/// The quick page: eleven boxes in three groups.
namespace verdane {

namespace {

constexpr int box_digits = 4;
/// Thirteen lines and three frames fit into the height of the window.
constexpr int row_gap = 6;

struct quick_row {
    int index;
    text_pair label;
};

class box_group {
public:
    box_group(const f_new_round& window, const QString& caption)
        : window_(window), frame_(new QGroupBox(caption)), rows_(new QGridLayout(frame_))
    {
        rows_->setHorizontalSpacing(2 * rhythm);
        rows_->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
        rows_->setVerticalSpacing(row_gap);
        rows_->setColumnStretch(0, 1);
    }

    void add(const text_pair& label, QLineEdit* box)
    {
        const int row = rows_->rowCount();
        rows_->addWidget(make_label(label.in(window_.french()), box), row, 0);
        rows_->addWidget(box, row, 1);
    }

    void add(control_array<QLineEdit>& boxes, std::initializer_list<quick_row> rows)
    {
        for (const quick_row& row : rows)
            add(row.label, boxes.add(row.index, make_number_box(box_digits)));
    }

    QGroupBox* frame() const { return frame_; }

private:
    const f_new_round& window_;
    QGroupBox* frame_;
    QGridLayout* rows_;
};

QWidget* make_strokes(f_new_round& window)
{
    box_group group(window, window.caption(u"Entrée rapide", u"Quick Entry"));
    group.add(window.text_vrd, {{round_box::long_shots, {u"Long :", u"Long :"}},
                                {round_box::approach, {u"Approche :", u"Approach :"}},
                                {round_box::putts, {u"Putt  :", u"Putt  :"}}});
    group.add({u"Nombre de coups :", u"Number of Shots :"},
              window.text_vrd.add(round_box::stroke_total, make_figure(box_digits)));
    return group.frame();
}

QWidget* make_position(f_new_round& window)
{
    box_group group(window, window.caption(u"Situation", u"Position"));
    group.add(window.text_p, {{round_box::fairway, {u"Allée :", u"Fairway Shots :"}},
                              {round_box::sand, {u"Fosse de sable :", u"Sand Trap Shots :"}},
                              {round_box::missed, {u"Coups ratés :", u"Missed Shots :"}},
                              {round_box::recovery, {u"C. de redressement :", u"Adjustment Shots :"}}});
    return group.frame();
}

QWidget* make_penalties(f_new_round& window)
{
    box_group group(window, window.caption(u"Pénalités", u"Penalties"));
    group.add(window.text_s, {{round_box::water, {u"Pénalité eau :", u"Water Hazard :"}},
                              {round_box::lost, {u"Pénalité balle perdue :", u"Lost Ball :"}},
                              {round_box::rule, {u"Pén.  (règlement) :", u"Rules :"}},
                              {round_box::bounds, {u"Pénalité hors limites :", u"Out of Bound :"}}});
    group.add({u"Total pénalités :", u"Total :"},
              window.text.add(round_box::penalty_total, make_figure(box_digits)));
    return group.frame();
}

}  // namespace

QWidget* make_quick_page(f_new_round& window)
{
    QWidget* page = window.Frame5.add(round_box::quick_page, new QWidget);
    auto* groups = new QVBoxLayout(page);
    groups->setContentsMargins(0, 0, 0, 0);
    groups->setSpacing(rhythm);
    for (QWidget* group : {make_strokes(window), make_position(window), make_penalties(window)})
        groups->addWidget(group);
    groups->addStretch();
    return page;
}

}  // namespace verdane
