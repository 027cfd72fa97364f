#include "round/quick_page.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <array>
#include <functional>
#include <utility>

#include "base/language.h"
#include "controls/box_focus.h"
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

/// A figure with the name and the label of its box, from top to bottom, which is also the order of the keys.
struct figure_row {
    int16 quick_figures::*figure;
    QStringView box_name;
    text_pair label;
};

constexpr std::array stroke_rows{
    figure_row{&quick_figures::long_shots, u"text_vrd_0", {u"Long :", u"Long :"}},
    figure_row{&quick_figures::approach, u"text_vrd_1", {u"Approche :", u"Approach :"}},
    figure_row{&quick_figures::putts, u"text_vrd_2", {u"Putt  :", u"Putt  :"}}};
constexpr QStringView stroke_total_name = u"text_vrd_3";

constexpr std::array situation_rows{
    figure_row{&quick_figures::fairway, u"text_p_3", {u"Allée :", u"Fairway Shots :"}},
    figure_row{&quick_figures::sand, u"text_p_4", {u"Fosse de sable :", u"Sand Trap Shots :"}},
    figure_row{&quick_figures::missed, u"text_p_5", {u"Coups ratés :", u"Missed Shots :"}},
    figure_row{&quick_figures::recovery, u"text_p_6", {u"C. de redressement :", u"Adjustment Shots :"}}};

constexpr std::array penalty_rows{
    figure_row{&quick_figures::pen_water, u"text_s_8", {u"Pénalité eau :", u"Water Hazard :"}},
    figure_row{&quick_figures::pen_lost, u"text_s_9", {u"Pénalité balle perdue :", u"Lost Ball :"}},
    figure_row{&quick_figures::pen_rule, u"text_s_10", {u"Pén.  (règlement) :", u"Rules :"}},
    figure_row{&quick_figures::pen_bounds, u"text_s_11", {u"Pénalité hors limites :", u"Out of Bound :"}}};
constexpr QStringView penalty_total_name = u"text_36";

/// A frame with lines of a label and a box each.
class framed_boxes {
public:
    framed_boxes(const Form& window, const QString& caption)
        : window_(window), frame_(new QGroupBox(caption)), rows_(new QGridLayout(frame_))
    {
        rows_->setHorizontalSpacing(2 * rhythm);
        rows_->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
        rows_->setVerticalSpacing(row_gap);
        rows_->setColumnStretch(0, 1);
    }

    QLineEdit* add(const text_pair& label, QLineEdit* box)
    {
        const int row = rows_->rowCount();
        rows_->addWidget(make_label(label.in(window_.french()), box), row, 0);
        rows_->addWidget(box, row, 1);
        return box;
    }

    QLineEdit* add_box(const figure_row& row)
    {
        return add(row.label, named(make_number_box(box_digits), row.box_name));
    }

    QLineEdit* add_total(const text_pair& label, QStringView name)
    {
        return add(label, named(make_figure(box_digits), name));
    }

    QGroupBox* frame() const { return frame_; }

private:
    const Form& window_;
    QGroupBox* frame_;
    QGridLayout* rows_;
};

constexpr int selection_length = 4;

/// Selects the figure of a box, so that the next digit replaces it.
void select_figure(QLineEdit& box)
{
    select_characters(box, selection_length);
}

/// A click into a box that has the focus already selects its figure, too: the next digit replaces it,
/// wherever the pointer is.
class click_selects : public QObject {
public:
    explicit click_selects(QLineEdit& box) : QObject(&box), box_(box) { box.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonRelease && !box_.hasSelectedText())
            select_figure(box_);
        return false;
    }

private:
    QLineEdit& box_;
};

key_answer take_key(QLineEdit& box, QChar key, const std::function<void()>& move_on)
{
    if (key == backspace || digits_only(key) == key_answer::refuse)
        return digits_only(key);
    box.insert(key);
    move_on();
    return key_answer::taken;
}

/// Restricts a box to digits, also for pasted text. A typed digit replaces the figure of the box, which is
/// selected by a click and whenever the box gets the focus, and runs `move_on`.
void watch_digit_keys(QLineEdit& box, std::function<void()> move_on)
{
    filter_keys(box, [&box, move_on = std::move(move_on)](QChar key) { return take_key(box, key, move_on); });
    when_entered(box, [&box] { select_figure(box); });
    new click_selects(box);
    filter_pasted_text(box, digits_only);
}

}  // namespace

quick_page::quick_page(const Form& window)
{
    setObjectName(u"Frame5_0"_s);
    framed_boxes strokes(window, window.caption(u"Entrée rapide", u"Quick Entry"));
    for (const figure_row& row : stroke_rows)
        stroke_boxes_.push_back({row.figure, strokes.add_box(row)});
    stroke_total_box_ = strokes.add_total({u"Nombre de coups :", u"Number of Shots :"}, stroke_total_name);
    framed_boxes situation(window, window.caption(u"Situation", u"Position"));
    for (const figure_row& row : situation_rows)
        situation_boxes_.push_back({row.figure, situation.add_box(row)});
    framed_boxes penalties(window, window.caption(u"Pénalités", u"Penalties"));
    for (const figure_row& row : penalty_rows)
        penalty_boxes_.push_back({row.figure, penalties.add_box(row)});
    penalty_total_box_ = penalties.add_total({u"Total pénalités :", u"Total :"}, penalty_total_name);

    auto* groups = new QVBoxLayout(this);
    groups->setContentsMargins(0, 0, 0, 0);
    groups->setSpacing(rhythm);
    for (const framed_boxes* group : {&strokes, &situation, &penalties})
        groups->addWidget(group->frame());
    groups->addStretch();
    watch_keys();
    watch_changes();
}

std::vector<quick_page::figure_box> quick_page::boxes_in_order() const
{
    std::vector<figure_box> boxes;
    for (const box_group* group : {&stroke_boxes_, &situation_boxes_, &penalty_boxes_})
        boxes.insert(boxes.end(), group->begin(), group->end());
    return boxes;
}

void quick_page::watch_keys()
{
    const box_group boxes = boxes_in_order();
    for (std::size_t place = 0; place + 1 < boxes.size(); ++place)
        watch_digit_keys(*boxes[place].box,
                         [next = boxes[place + 1].box] { next->setFocus(Qt::TabFocusReason); });
    watch_digit_keys(*boxes.back().box, [this] { Q_EMIT last_figure_typed(); });
}

void quick_page::watch_changes()
{
    for (const figure_box& stroke : stroke_boxes_) {
        on_change(*stroke.box, [this] {
            Q_EMIT figure_changed();
            sum_stroke_boxes();
            Q_EMIT strokes_changed();
        });
    }
    for (const figure_box& count : situation_boxes_)
        on_change(*count.box, [this] { Q_EMIT figure_changed(); });
    for (const figure_box& penalty : penalty_boxes_) {
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

void quick_page::show(const box_group& boxes, const quick_figures& figures)
{
    for (const figure_box& entry : boxes)
        entry.box->setText(QString::number(plain(figures.*entry.figure)));
}

void quick_page::read(const box_group& boxes, quick_figures& figures)
{
    for (const figure_box& entry : boxes)
        figures.*entry.figure = figure_of_box(entry.box->text());
}

void quick_page::show_stored(const quick_figures& figures)
{
    show(stroke_boxes_, figures);
    show(penalty_boxes_, figures);
    show(situation_boxes_, figures);
}

void quick_page::show_counted(const quick_figures& figures)
{
    show(penalty_boxes_, figures);
    show(situation_boxes_, figures);
    show(stroke_boxes_, figures);
}

hole_figures quick_page::figures() const
{
    quick_figures in_boxes;
    read(stroke_boxes_, in_boxes);
    read(penalty_boxes_, in_boxes);
    return {in_boxes.long_shots, in_boxes.approach,   in_boxes.putts,   in_boxes.pen_rule,
            in_boxes.pen_water,  in_boxes.pen_bounds, in_boxes.pen_lost};
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
    std::vector<QWidget*> boxes;
    for (const figure_box& entry : boxes_in_order())
        boxes.push_back(entry.box);
    return boxes;
}

}  // namespace verdane
