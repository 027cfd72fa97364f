#include "statistics/run_controls.h"

#include <QProgressBar>

#include <algorithm>

#include "controls/Form.h"

namespace verdane {

namespace {

constexpr qint64 painting_interval_ms = 40;

}  // namespace

void run_progress::show(int value)
{
    if (bar_)
        bar_->setVisible(true);
    move_to(value);
}

void run_progress::move_to(int value)
{
    set(value);
    paint();
}

void run_progress::pass_through(int value)
{
    if (!since_painting_.isValid() || since_painting_.elapsed() >= painting_interval_ms) {
        move_to(value);
        return;
    }
    if (!bar_)
        return;
    // Setting the value repaints the bar at once, unless updates are disabled.
    bar_->setUpdatesEnabled(false);
    set(value);
    bar_->setUpdatesEnabled(true);
}

void run_progress::hide()
{
    if (bar_)
        bar_->setVisible(false);
    paint();
}

void run_progress::set(int value)
{
    if (bar_)
        bar_->setValue(std::min(value, bar_->maximum()));
}

void run_progress::paint()
{
    if (!bar_)
        return;
    Form::paint_now();
    since_painting_.start();
}

}  // namespace verdane
