#include "round/quick_page.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <array>

#include "base/language.h"
#include "controls/boxes.h"
#include "controls/control_array.h"
#include "controls/events.h"
#include "controls/Form.h"
#include "controls/keys.h"
#include "controls/look.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int box_digits = 4;
/// Thirteen lines and three frames fit into the height of the window.
constexpr int row_gap = 6;

/// A count with the name and the label of its box, from top to bottom, which is also the order of the keys.
template <typename Counts>
struct count_row {
    int16 Counts::*count;
    QStringView box_name;
    text_pair label;
};

constexpr std::array stroke_rows{
    count_row<stroke_counts>{&stroke_counts::long_shots, u"text_vrd_0", {u"Long :", u"Long :"}},
    count_row<stroke_counts>{&stroke_counts::approach, u"text_vrd_1", {u"Approche :", u"Approach :"}},
    count_row<stroke_counts>{&stroke_counts::putts, u"text_vrd_2", {u"Putt  :", u"Putt  :"}}};
constexpr QStringView stroke_total_name = u"text_vrd_3";

using situation_row = count_row<situation_counts>;
constexpr std::array situation_rows{
    situation_row{&situation_counts::fairway, u"text_p_3", {u"Allée :", u"Fairway Shots :"}},
    situation_row{&situation_counts::sand, u"text_p_4", {u"Fosse de sable :", u"Sand Trap Shots :"}},
    situation_row{&situation_counts::missed, u"text_p_5", {u"Coups ratés :", u"Missed Shots :"}},
    situation_row{
        &situation_counts::recovery, u"text_p_6", {u"C. de redressement :", u"Adjustment Shots :"}}};

using penalty_row = count_row<penalty_counts>;
constexpr std::array penalty_rows{
    penalty_row{&penalty_counts::pen_water, u"text_s_8", {u"Pénalité eau :", u"Water Hazard :"}},
    penalty_row{&penalty_counts::pen_lost, u"text_s_9", {u"Pénalité balle perdue :", u"Lost Ball :"}},
    penalty_row{&penalty_counts::pen_rule, u"text_s_10", {u"Pén.  (règlement) :", u"Rules :"}},
    penalty_row{&penalty_counts::pen_bounds, u"text_s_11", {u"Pénalité hors limites :", u"Out of Bound :"}}};
constexpr QStringView penalty_total_name = u"text_36";

/// A frame with lines of a label and a box each, added below the frames of a layout.
class framed_boxes {
public:
    framed_boxes(QBoxLayout& frames, const Form& window, const text_pair& caption) : french_(window.french())
    {
        auto* frame = new QGroupBox(caption.in(french_));
        frames.addWidget(frame);
        rows_ = new QGridLayout(frame);
        rows_->setHorizontalSpacing(2 * rhythm);
        rows_->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
        rows_->setVerticalSpacing(row_gap);
        rows_->setColumnStretch(0, 1);
    }

    QLineEdit* add(const text_pair& label, QLineEdit* box)
    {
        const int row = rows_->rowCount();
        rows_->addWidget(make_label(label.in(french_), box), row, 0);
        rows_->addWidget(box, row, 1);
        return box;
    }

    template <typename Rows, typename Group>
    void add_boxes(const Rows& rows, Group& group)
    {
        for (const auto& row : rows)
            group.push_back({row.count, add(row.label, named(make_number_box(box_digits), row.box_name))});
    }

    QLineEdit* add_total(const text_pair& label, QStringView name)
    {
        return add(label, named(make_figure(box_digits), name));
    }

private:
    bool french_;
    QGridLayout* rows_;
};

}  // namespace

quick_page::quick_page(const Form& window)
{
    setObjectName(u"Frame5_0"_s);
    auto* frames = new QVBoxLayout(this);
    frames->setContentsMargins(0, 0, 0, 0);
    frames->setSpacing(rhythm);
    framed_boxes strokes(*frames, window, {u"Entrée rapide", u"Quick Entry"});
    strokes.add_boxes(stroke_rows, stroke_boxes_);
    stroke_total_box_ = strokes.add_total({u"Nombre de coups :", u"Number of Shots :"}, stroke_total_name);
    framed_boxes situation(*frames, window, {u"Situation", u"Position"});
    situation.add_boxes(situation_rows, situation_boxes_);
    framed_boxes penalties(*frames, window, {u"Pénalités", u"Penalties"});
    penalties.add_boxes(penalty_rows, penalty_boxes_);
    penalty_total_box_ = penalties.add_total({u"Total pénalités :", u"Total :"}, penalty_total_name);
    frames->addStretch();
    watch_keys();
    watch_changes();
}

std::vector<QLineEdit*> quick_page::boxes_in_order() const
{
    std::vector<QLineEdit*> boxes;
    const auto append = [&boxes](const auto& group) {
        for (const auto& entry : group)
            boxes.push_back(entry.box);
    };
    append(stroke_boxes_);
    append(situation_boxes_);
    append(penalty_boxes_);
    return boxes;
}

void quick_page::watch_keys()
{
    const std::vector<QLineEdit*> boxes = boxes_in_order();
    for (std::size_t place = 0; place + 1 < boxes.size(); ++place)
        watch_digit_keys(*boxes[place], [next = boxes[place + 1]] { next->setFocus(Qt::TabFocusReason); });
    watch_digit_keys(*boxes.back(), [this] { Q_EMIT last_figure_typed(); });
}

void quick_page::watch_changes()
{
    for (const auto& stroke : stroke_boxes_) {
        on_change(*stroke.box, [this] {
            Q_EMIT figure_changed();
            sum_stroke_boxes();
            Q_EMIT strokes_changed();
        });
    }
    for (const auto& count : situation_boxes_)
        on_change(*count.box, [this] { Q_EMIT figure_changed(); });
    for (const auto& penalty : penalty_boxes_) {
        on_change(*penalty.box, [this] {
            Q_EMIT figure_changed();
            sum_penalty_boxes();
        });
    }
}

void quick_page::sum_stroke_boxes()
{
    const auto text = [this](int place) { return stroke_boxes_[place].box->text(); };
    stroke_total_box_->setText(sum_of_boxes({text(0), text(1), text(2)}));
}

void quick_page::sum_penalty_boxes()
{
    const auto text = [this](int place) { return penalty_boxes_[place].box->text(); };
    penalty_total_box_->setText(sum_of_boxes({text(0), text(1), text(2), text(3)}));
}

template <typename Counts>
void quick_page::show(const box_group<Counts>& boxes, const Counts& counts)
{
    for (const auto& entry : boxes)
        entry.box->setText(QString::number(plain(counts.*entry.count)));
}

template <typename Counts>
Counts quick_page::read(const box_group<Counts>& boxes)
{
    Counts counts;
    for (const auto& entry : boxes)
        counts.*entry.count = figure_of_box(entry.box->text());
    return counts;
}

void quick_page::show_stored(const hole_counts& counts)
{
    show<stroke_counts>(stroke_boxes_, counts);
    show<penalty_counts>(penalty_boxes_, counts);
    show<situation_counts>(situation_boxes_, counts);
}

void quick_page::show_counted(const hole_counts& counts)
{
    show<penalty_counts>(penalty_boxes_, counts);
    show<situation_counts>(situation_boxes_, counts);
    show<stroke_counts>(stroke_boxes_, counts);
}

hole_figures quick_page::figures() const
{
    return {read(stroke_boxes_), read(penalty_boxes_)};
}

Round_functions::situation_texts quick_page::situation() const
{
    const auto text = [this](int place) { return situation_boxes_[place].box->text(); };
    return {text(0), text(1), text(2), text(3)};
}

void quick_page::focus_first_box()
{
    stroke_boxes_.front().box->setFocus(Qt::TabFocusReason);
}

void quick_page::select_first_box()
{
    select_figure(*stroke_boxes_.front().box);
}

std::vector<QWidget*> quick_page::tab_order() const
{
    const std::vector<QLineEdit*> boxes = boxes_in_order();
    return {boxes.begin(), boxes.end()};
}

}  // namespace verdane
