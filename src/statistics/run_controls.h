#pragma once

#include <QElapsedTimer>

class QProgressBar;

namespace verdane {

class report_control;

/// The controls of the selection window that a statistic drives: the bar, and its report control.
struct run_controls {
    QProgressBar& Status;
    report_control& report;
};

/// Moves the bar of a run. It is seen while a statistic works, and each step is painted at once.
class run_progress {
public:
    explicit run_progress(QProgressBar& bar) : bar_(&bar) {}
    /// For a run that shows nothing.
    run_progress() = default;

    void show(int value);
    /// A value beyond the end of the bar leaves it at its end.
    void move_to(int value);
    /// The same for a step that comes once a round: it is painted only when the last painting is some
    /// time ago, so that the bar costs no more than the work it shows.
    void pass_through(int value);
    void hide();

private:
    void set(int value);
    void paint();

    QProgressBar* bar_ = nullptr;
    QElapsedTimer since_painting_;
};

}  // namespace verdane
