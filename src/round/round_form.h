#pragma once

#include <QString>

#include "base/counts.h"
#include "controls/control_array.h"
#include "controls/Form.h"
#include "reports/report_control.h"
#include "round/page_bar.h"

class QBoxLayout;
class QLayout;
class QPushButton;

namespace verdane {

class detailed_page;
class f_get_date;
class hole_bar;
class parameters_pane;
class quick_page;
class shot_rows;
class statistics_pane;
class totals_pane;

/// The panes of the round window and the shots of its hole. The window owns the panes and passes them to the
/// routines of its events; nothing else has access to them.
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

/// The panes of the round window, their arrangement, and the state of the window. `f_new_round` is the
/// window: it connects the events of the panes with the routines of `f_new_round_func`, which work on this
/// class.
class round_form : public Form {
public:
    /// Indexes of the buttons OK and Cancel.
    static constexpr int ok = 4;
    static constexpr int cancel = 2;

    /// The key of the round; empty before the tee-off.
    const QString& date_value() const { return date_value_; }
    void set_date_value(const QString& key) { date_value_ = key; }

    /// Shows the tee-off dialog and returns when it is closed. Closing it activates the window, which does
    /// not open it again.
    void choose_date(f_get_date& dialog);
    /// The tee-off dialog was cancelled.
    bool get_date_canceled() const { return get_date_canceled_; }

    /// No hole was shown yet: showing the first one must not save.
    bool first_entry() const { return first_entry_; }
    /// List index (0 to 17) of the hole that was shown last, which is saved when another one is selected.
    int16 last_hole() const { return last_hole_; }
    /// A hole (1 to 18) is shown: `last_hole` is its index, and `first_entry` is false.
    void hole_is_shown(int16 hole);

    /// There is something to save. True at first, so that closing an unchanged round shows the question, too.
    bool needSave() const { return needSave_; }
    void mark_changed() { needSave_ = true; }
    void mark_saved() { needSave_ = false; }

    /// The window was to be closed from the detailed page: only the quick page can be shown from then on.
    bool closingoK() const { return closingoK_; }
    void allow_quick_page_only() { closingoK_ = true; }

    /// The report on the putts of the round.
    report_control& cr2() { return cr2_; }

    /// Shows the panes of a page and hides those of the other one.
    void show_page(round_page page);
    /// The tab of the detailed page is selected.
    bool on_detailed_page() const;

protected:
    /// `shots` must outlive the window.
    explicit round_form(shot_rows& shots);

    const round_panes& panes() const { return panes_; }
    /// OK or Cancel.
    QPushButton& end_button(int index) const { return end_buttons_(index); }
    bool choosing_date() const { return choosing_date_; }

private:
    void lay_out();
    QLayout* make_panes();
    QLayout* make_bottom();
    void order_for_tab_key();

    QString date_value_;
    bool get_date_canceled_ = false;
    bool choosing_date_ = false;
    bool first_entry_ = true;
    int16 last_hole_ = 0;
    bool needSave_ = true;
    bool closingoK_ = false;
    report_control cr2_{this};

    round_panes panes_;
    /// OK and Cancel.
    control_array<QPushButton> end_buttons_{u"Command1"};
    /// The panes of both pages: side by side on the quick page, below each other on the detailed page.
    QBoxLayout* pane_layout_ = nullptr;
};

}  // namespace verdane
