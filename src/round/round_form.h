#pragma once

#include <QString>

#include "controls/control_array.h"
#include "controls/Form.h"
#include "reports/report_control.h"
#include "round/page_bar.h"

class QBoxLayout;
class QLayout;
class QPushButton;

namespace verdane {

class detailed_page;
class hole_bar;
class parameters_pane;
class quick_page;
class shot_rows;
class statistics_pane;
class totals_pane;

/// The panes of the round window and the shots of its hole. The window owns the panes. Each class that
/// handles events of the window gets this struct when it is constructed and keeps the panes that it uses.
struct round_panes {
    hole_bar& holes;
    page_bar& pages;
    quick_page& quick;
    statistics_pane& statistics;
    detailed_page& detailed;
    parameters_pane& parameters;
    totals_pane& totals;
    shot_rows& shots;
};

/// The panes of the round window and their arrangement. `f_new_round` is the window: it connects the events
/// of the panes with the classes that handle them. Those classes use `round_form`, not `f_new_round`.
class round_form : public Form {
public:
    /// Indexes of the buttons OK and Cancel.
    static constexpr int ok = 4;
    static constexpr int cancel = 2;

    /// The key of the round; empty before the tee-off.
    const QString& date_value() const { return date_value_; }
    void set_date_value(const QString& key) { date_value_ = key; }

    /// The report on the putts of the round.
    report_control& cr2() { return cr2_; }

    /// Shows the panes of a page and hides those of the other one.
    void show_page(round_page page);

protected:
    /// `shots` must outlive the window.
    explicit round_form(shot_rows& shots);

    const round_panes& panes() const { return panes_; }
    /// OK or Cancel.
    QPushButton& end_button(int index) const { return end_buttons_(index); }

private:
    void lay_out();
    QLayout* make_panes();
    QLayout* make_bottom();
    void order_for_tab_key();

    QString date_value_;
    report_control cr2_{this};

    round_panes panes_;
    /// OK and Cancel.
    control_array<QPushButton> end_buttons_{u"Command1"};
    /// The panes of both pages: side by side on the quick page, below each other on the detailed page.
    QBoxLayout* pane_layout_ = nullptr;
};

}  // namespace verdane
