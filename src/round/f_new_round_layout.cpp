#include "round/f_new_round_layout.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <vector>

#include "controls/accessible_controls.h"
#include "controls/data_grid.h"
#include "controls/look.h"
#include "controls/scrolled_content.h"
#include "records/round_columns.h"
#include "round/course_box.h"
#include "round/f_new_round.h"
#include "round/round_boxes.h"
#include "round/steady_wheel.h"
#include "round/temperature_box.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int gap_between_rows = rhythm + rhythm / 2;

QWidget* make_hole_tabs(f_new_round& window)
{
    window.TabStrip1 = named(new TabStrip, u"TabStrip1");
    for (int hole = 1; hole <= round_columns::hole_count; ++hole)
        window.TabStrip1->addTab(QString::number(hole));
    name_control(*window.TabStrip1, window.caption(u"Trous", u"Holes"));
    window.TabStrip1->setExpanding(true);
    window.TabStrip1->setUsesScrollButtons(true);
    return window.TabStrip1;
}

QLayout* make_pages(f_new_round& window)
{
    window.pages = new QHBoxLayout;
    window.pages->setSpacing(rhythm);
    window.pages->addWidget(make_quick_page(window));
    window.pages->addWidget(make_statistics(window), 1);
    window.pages->addWidget(make_detailed_page(window), 1);
    window.pages->addWidget(make_parameters(window));
    return window.pages;
}

QLayout* make_content(f_new_round& window)
{
    auto* content = new QVBoxLayout;
    content->setSpacing(gap_between_rows);
    content->addWidget(make_hole_bar(window));
    content->addWidget(make_page_bar(window));
    content->addLayout(make_pages(window), 1);
    return content;
}

QLayout* make_bottom(f_new_round& window)
{
    window.Command1.add(round_box::ok, make_button(u"OK"_s));
    window.Command1.add(round_box::cancel, make_button(window.caption(u"Annuler", u"Cancel")));
    auto* bottom = new QHBoxLayout;
    bottom->setSpacing(rhythm);
    bottom->addWidget(make_totals(window));
    bottom->addStretch();
    for (const int index : {round_box::ok, round_box::cancel}) {
        window.Command1(index).setMinimumWidth(12 * rhythm);
        bottom->addWidget(&window.Command1(index), 0, Qt::AlignBottom);
    }
    return bottom;
}

/// The boxes of the quick page that take a figure, from top to bottom.
std::vector<QWidget*> boxes_from_top(const f_new_round& window)
{
    std::vector<QWidget*> boxes;
    for (const auto* group : {&window.text_vrd, &window.text_p, &window.text_s}) {
        for (const auto& [index, box] : group->members()) {
            if (box->focusPolicy() != Qt::NoFocus)
                boxes.push_back(box);
        }
    }
    return boxes;
}

/// Tab visits the controls of either page in reading order, OK and Cancel last; then the first one again.
void order_for_tab_key(f_new_round& window)
{
    std::vector<QWidget*> order{window.TabStrip1, window.cmb_holes, window.b_getdat,
                                window.TabStrip2, window.b_putts,   window.Command4};
    for (QWidget* box : boxes_from_top(window))
        order.push_back(box);
    order.insert(order.end(),
                 {window.details, window.CommandSuiv, window.CommandSup, window.b_carte, window.cmb_courses,
                  window.conditions, window.UpDown1, window.pList, window.Command2,
                  &window.Command1(round_box::ok), &window.Command1(round_box::cancel)});
    for (std::size_t place = 1; place < order.size(); ++place)
        QWidget::setTabOrder(order[place - 1], order[place]);
}

}  // namespace

void lay_out(f_new_round& window)
{
    window.setWindowTitle(window.caption(u"Ronde", u"Round"));
    auto* page = new QVBoxLayout(&window);
    page->setContentsMargins(2 * rhythm, 2 * rhythm, 2 * rhythm, 2 * rhythm);
    page->setSpacing(gap_between_rows);
    page->addWidget(make_hole_tabs(window));
    page->addWidget(window.scrolled(make_content(window)), 1);
    page->addLayout(make_bottom(window));
    order_for_tab_key(window);
    const std::initializer_list<QWidget*> choices = {window.cmb_holes, window.cmb_courses, window.conditions,
                                                     window.UpDown1};
    for (QWidget* choice : choices)
        ignore_wheel(*choice);
}

}  // namespace verdane
