#pragma once

#include "base/counts.h"
#include "controls/control_array.h"
#include "controls/Form.h"
#include "reports/report_control.h"
#include "statistics/cost_statistics.h"
#include "statistics/run_controls.h"
#include "statistics/selection_filters.h"

class QLabel;
class QLayout;
class QListWidget;
class QProgressBar;
class QPushButton;

namespace verdane {

/// The statistic that the run button of the selection window starts.
enum class statistics_mode { club, putt, round, cost };

/// The window in which the user selects the rounds of a statistic (`f_date_range`, `f_date_range_en`). It
/// stays open after a run.
///
/// The constructor loads it. If no round is stored, a message box reports that and `show_modal` returns at
/// once. No recordset is open while the window waits for input.
class f_date_range final : public Form {
public:
    explicit f_date_range(statistics_mode mode = statistics_mode::round);

    statistics_mode mode() const { return mode_; }

    /// Fills the filters from the store.
    void fill_filters();
    /// Fills both lists of rounds from the store and shows the number of rounds. False if it has no round.
    bool fill_round_lists();

    /// The selection of the user.
    selection_arguments selection(clause_form form, const unfiltered_texts& texts) const;
    /// Number of rounds from the one selected in `List1` to that in `List2`, both included; below 1 when
    /// the range is reversed. It is not displayed.
    int16 rounds_between() const;

    /// What a statistic uses of the window: the progress bar, and one of its report controls.
    run_controls controls_for(report_control& report) const { return {*progress_, report}; }

    /// The reports on clubs (`cr1`), on rounds and costs (`cr2`), on putts (`cr3`).
    report_control& cr1() { return cr1_; }
    report_control& cr2() { return cr2_; }
    report_control& cr3() { return cr3_; }

    void closeForm() override;

protected:
    void unloading() override;

private:
    void build();
    void show_mode();
    QWidget* make_list_frame(QStringView name, int label, const QString& words, QListWidget& list);
    QLayout* make_filters();
    QLayout* make_counts();
    QLayout* make_foot();
    QProgressBar* make_progress_bar() const;
    void connect_events();

    const scoped_source costs_ = Statistics::whole_cost_table_afterwards();
    report_control cr1_;
    report_control cr2_;
    report_control cr3_;
    const statistics_mode mode_;
    selection_controls controls_;
    QProgressBar* progress_;
    /// The run buttons of the four statistics; one of them is visible.
    QPushButton* run_clubs_;
    QPushButton* run_rounds_;
    QPushButton* run_costs_;
    QPushButton* run_putts_;
    QPushButton* cancel_;
    control_array<QLabel> labels_{u"Label1"};
};

}  // namespace verdane
