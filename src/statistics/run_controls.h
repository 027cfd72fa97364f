#pragma once

#include <QElapsedTimer>

class QProgressBar;

namespace verdane {

class report_control;

/// The controls of the selection window that a statistic uses: the bar and a report control.
struct run_controls {
    QProgressBar& Status;
    report_control& report;
};

/// Moves the progress bar of a run. The bar is visible while a statistic works; each step is painted at once.
class run_progress {
public:
    explicit run_progress(QProgressBar& bar) : bar_(&bar) {}
    /// For a run without a bar.
    run_progress() = default;

    void show(int value);
    /// A value above the maximum sets the maximum.
    void move_to(int value);
    /// The same for a step that occurs once per round. It is painted only if the last painting was some time
    /// ago, so that painting does not take longer than the work.
    void pass_through(int value);
    void hide();

private:
    void set(int value);
    void paint();

    QProgressBar* bar_ = nullptr;
    QElapsedTimer since_painting_;
};

}  // namespace verdane
