#pragma once

class QProgressBar;

namespace verdane {

class report_control;

/// The two controls of the selection window that a statistic drives.
struct run_controls {
    QProgressBar& Status;
    report_control& cr2;
};

/// Moves the bar of a run. It is seen while a statistic works, and each step is painted at once.
class run_progress {
public:
    explicit run_progress(QProgressBar& bar) : bar_(bar) {}

    void show(int value);
    void move_to(int value);
    void hide();

private:
    QProgressBar& bar_;
};

}  // namespace verdane
