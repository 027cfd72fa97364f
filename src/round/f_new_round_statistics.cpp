#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>
#include <array>

#include "controls/look.h"
#include "round/f_new_round.h"
#include "round/f_new_round_layout.h"
#include "scoring/hole_classes.h"

/// The statistics of the hole on screen: its twenty-four classes, in groups that belong together.
namespace verdane {

namespace {

constexpr int figure_digits = 2;
/// A gap between two groups of classes.
constexpr int gap = 0;

constexpr std::array left_column = {25, 26, 27, 28, gap, 6, 7, 8, 9, gap, 15, 16, 17};
constexpr std::array right_column = {1, 12, 13, 14, 10, 11, gap, 18, 19, 20, 21, 22, 23, 24};

const selector_row& row_of(int selector)
{
    return *std::find_if(panel_selectors.begin(), panel_selectors.end(),
                         [selector](const selector_row& row) { return row.selector == selector; });
}

void add_class(f_new_round& window, QGridLayout& rows, const selector_row& shown)
{
    const int row = rows.rowCount();
    QLineEdit* box = window.text.add(shown.box, make_figure(figure_digits));
    rows.addWidget(make_label(shown.label.in(window.french()), box), row, 0);
    rows.addWidget(box, row, 1);
}

template <typename Selectors>
QGridLayout* make_column(f_new_round& window, const Selectors& selectors)
{
    auto* rows = new QGridLayout;
    rows->setHorizontalSpacing(rhythm / 2);
    rows->setVerticalSpacing(rhythm);
    rows->setColumnStretch(0, 1);
    for (const int selector : selectors) {
        if (selector == gap)
            rows->setRowMinimumHeight(rows->rowCount(), rhythm);
        else
            add_class(window, *rows, row_of(selector));
    }
    rows->setRowStretch(rows->rowCount(), 1);
    return rows;
}

}  // namespace

QWidget* make_statistics(f_new_round& window)
{
    auto* frame = named(new QGroupBox(window.caption(u"Statistiques", u"Statistics")), u"Frame1");
    window.Frame1 = frame;
    auto* columns = new QHBoxLayout(frame);
    columns->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    columns->setSpacing(2 * rhythm);
    columns->addLayout(make_column(window, left_column), 1);
    columns->addLayout(make_column(window, right_column), 1);
    return frame;
}

}  // namespace verdane
