#pragma once

#include <QProgressBar>

#include "base/counts.h"
#include "controls/control_array.h"
#include "controls/Form.h"
#include "reports/report_control.h"

class QComboBox;
class QLabel;
class QListWidget;
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

    QListWidget* List1 = nullptr;
    QListWidget* List2 = nullptr;
    QComboBox* cmb_courses = nullptr;
    QComboBox* pList = nullptr;
    QComboBox* conditions = nullptr;
    /// The run buttons of the club, round, cost and putt statistics; one of them is visible.
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* Command3 = nullptr;
    QPushButton* OKButton = nullptr;
    QPushButton* CancelButton = nullptr;
    QProgressBar* Status = nullptr;
    /// The labels; the last one is the number of stored rounds.
    control_array<QLabel> Label1{u"Label1"};
    static constexpr int count_label = 7;

    /// The reports on clubs (`cr1`), on rounds and costs (`cr2`), on putts (`cr3`).
    report_control cr1;
    report_control cr2;
    report_control cr3;

    /// Number of rounds from the one selected in `List1` to that in `List2`, both included; below 1 when
    /// the range is reversed. It is not displayed.
    int16 rounds_between = 0;

    void closeForm() override;

protected:
    void unloading() override;

private:
    void build();
    void show_mode();
    QWidget* make_list_frame(QStringView name, int label, const QString& words, QListWidget*& list);
    QLayout* make_filters();
    QLayout* make_counts();
    QLayout* make_foot();
    void connect_events();

    const statistics_mode mode_;
};

}  // namespace verdane
