#include "round/round_form.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

#include "controls/look.h"
#include "controls/scrolled_content.h"
#include "round/detailed_page.h"
#include "round/hole_bar.h"
#include "round/parameters_pane.h"
#include "round/quick_page.h"
#include "round/statistics_pane.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int gap_between_rows = rhythm + rhythm / 2;

class wheel_filter : public QObject {
public:
    explicit wheel_filter(QWidget& control) : QObject(&control)
    {
        control.installEventFilter(this);
        // The toolkit focuses a control with this policy before any filter runs.
        if (control.focusPolicy() == Qt::WheelFocus)
            control.setFocusPolicy(Qt::StrongFocus);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel)
            return false;
        event->ignore();
        return true;
    }
};

/// Ignores the mouse wheel over a control: turned by accident, it would select another course, hole or
/// weather unnoticed.
void ignore_wheel(QWidget& control)
{
    new wheel_filter(control);
}

}  // namespace

// The panes are made in the order in which Ctrl+F1 lists their keys.
round_form::round_form(shot_rows& shots)
    : Form(u"f_new_round"),
      panes_{
          *new hole_bar(*this),
          *new page_bar(*this),
          *new quick_page(*this),
          *new statistics_pane(*this),
          *new detailed_page(*this, shots,
                             [this] {
                                 return hole_on_screen{date_value_, panes_.holes.hole(), panes_.holes.card()};
                             }),
          *new parameters_pane(*this),
          *new totals_pane,
          shots}
{
    lay_out();
}

void round_form::lay_out()
{
    setWindowTitle(caption(u"Ronde", u"Round"));
    auto* content = new QVBoxLayout;
    content->setSpacing(gap_between_rows);
    content->addWidget(&panes_.holes);
    content->addWidget(&panes_.pages);
    content->addLayout(make_panes(), 1);
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(2 * rhythm, 2 * rhythm, 2 * rhythm, 2 * rhythm);
    page->setSpacing(gap_between_rows);
    page->addWidget(panes_.holes.tab_strip());
    page->addWidget(scrolled(content), 1);
    page->addLayout(make_bottom());
    order_for_tab_key();
    std::vector<QWidget*> wheel_controls = panes_.parameters.wheel_controls();
    wheel_controls.push_back(panes_.holes.wheel_control());
    for (QWidget* control : wheel_controls)
        ignore_wheel(*control);
}

QLayout* round_form::make_panes()
{
    pane_layout_ = new QHBoxLayout;
    pane_layout_->setSpacing(rhythm);
    pane_layout_->addWidget(&panes_.quick);
    pane_layout_->addWidget(&panes_.statistics, 1);
    pane_layout_->addWidget(&panes_.detailed, 1);
    pane_layout_->addWidget(&panes_.parameters);
    return pane_layout_;
}

QLayout* round_form::make_bottom()
{
    end_buttons_.add(ok, make_end_button(u"OK"_s));
    end_buttons_.add(cancel, make_end_button(caption(u"Annuler", u"Cancel")));
    auto* bottom = new QHBoxLayout;
    bottom->setSpacing(rhythm);
    bottom->addWidget(&panes_.totals);
    bottom->addStretch();
    for (const int index : {ok, cancel})
        bottom->addWidget(&end_buttons_(index), 0, Qt::AlignBottom);
    return bottom;
}

/// The Tab key visits the controls of either page in reading order, OK and Cancel last, then the first one
/// again.
void round_form::order_for_tab_key()
{
    std::vector<QWidget*> order;
    for (const auto& part : {panes_.holes.tab_order(), panes_.pages.tab_order(), panes_.quick.tab_order(),
                             panes_.detailed.tab_order(), panes_.parameters.tab_order()})
        order.insert(order.end(), part.begin(), part.end());
    order.insert(order.end(), {&end_buttons_(ok), &end_buttons_(cancel)});
    for (std::size_t place = 1; place < order.size(); ++place)
        QWidget::setTabOrder(order[place - 1], order[place]);
}

/// Hides one page before it shows the other: both at once would enlarge the window beyond the screen
/// permanently.
void round_form::show_page(round_page page)
{
    const std::initializer_list<QWidget*> of_quick_page{&panes_.quick, &panes_.statistics};
    const std::initializer_list<QWidget*> of_detailed_page{&panes_.detailed};
    const bool quick = page == round_page::quick;
    for (QWidget* pane : quick ? of_detailed_page : of_quick_page)
        pane->hide();
    pane_layout_->setDirection(quick ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    panes_.parameters.arrange(quick ? Qt::Vertical : Qt::Horizontal);
    for (QWidget* pane : quick ? of_quick_page : of_detailed_page)
        pane->show();
}

}  // namespace verdane
