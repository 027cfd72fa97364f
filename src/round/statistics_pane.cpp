#include "round/statistics_pane.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

#include "controls/Form.h"
#include "controls/look.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

using namespace hole_class;

constexpr int figure_digits = 2;
/// A gap between two groups of classes.
constexpr int gap = 0;

constexpr int left_column[] = {
    green_hit,        green_hit_one_putt,    green_hit_two_putts,    green_hit_three_putts,    gap,
    green_missed,     green_missed_one_putt, green_missed_two_putts, green_missed_three_putts, gap,
    average_of_par_3, average_of_par_4,      average_of_par_5};
constexpr int right_column[] = {made_par, made_par_3, made_par_4,   made_par_5,          up_and_down,
                                chip_in,  gap,        hole_in_one,  double_eagle,        eagle,
                                birdie,   bogey,      double_bogey, triple_bogey_or_more};

const class_box& row_of(int selector)
{
    return *std::find_if(class_boxes.begin(), class_boxes.end(),
                         [selector](const class_box& row) { return row.selector == selector; });
}

/// Most classes do not change from one figure to the next; those boxes are not painted again.
void show_class(QLineEdit& box, const QString& text)
{
    if (box.text() != text)
        box.setText(text);
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

statistics_pane::statistics_pane(const Form& window)
    : QGroupBox(window.caption(u"Statistiques", u"Statistics"))
{
    setObjectName(u"Frame1"_s);
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    columns->setSpacing(2 * rhythm);
    columns->addLayout(make_column(window, left_column), 1);
    columns->addLayout(make_column(window, right_column), 1);
}

template <typename Selectors>
QGridLayout* statistics_pane::make_column(const Form& window, const Selectors& selectors)
{
    auto* rows = new QGridLayout;
    rows->setHorizontalSpacing(rhythm / 2);
    rows->setVerticalSpacing(rhythm);
    rows->setColumnStretch(0, 1);
    for (const int selector : selectors) {
        const int row = rows->rowCount();
        if (selector == gap) {
            rows->setRowMinimumHeight(row, rhythm);
            continue;
        }
        const class_box& shown = row_of(selector);
        QLineEdit* box = class_boxes_.add(shown.box, make_figure(figure_digits));
        rows->addWidget(make_label(shown.label.in(window.french()), box), row, 0);
        rows->addWidget(box, row, 1);
    }
    rows->setRowStretch(rows->rowCount(), 1);
    return rows;
}

void statistics_pane::show_hole(const hole_figures& figures, int16 par)
{
    for (const class_box& row : class_boxes)
        show_class(class_boxes_(row.box), hole_cell(row.selector, figures, par));
}

totals_pane::totals_pane()
{
    setObjectName(u"Frame7"_s);
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(rhythm, 0, 0, 0);
    line->setSpacing(rhythm);
    gross_label_ = add_total(*line, u"Brut"_s, u"l_brut");
    handicap_label_ = add_total(*line, u"Handicap"_s, u"l_hand");
    net_label_ = add_total(*line, u"Net"_s, u"l_net");
    over_par_label_ = add_total(*line, u"+/-"_s, u"l_plus");
}

void totals_pane::show_round(const Round_functions::round_labels& totals)
{
    handicap_label_->setText(totals.l_hand);
    gross_label_->setText(totals.l_brut);
    net_label_->setText(totals.l_net);
    over_par_label_->setText(totals.l_plus);
}

}  // namespace verdane
