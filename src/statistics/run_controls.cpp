#include "run_controls.h"

#include <QProgressBar>

#include "Form.h"

namespace verdane {

void run_progress::show(int value)
{
    bar_.setVisible(true);
    move_to(value);
}

void run_progress::move_to(int value)
{
    bar_.setValue(value);
    Form::paint_now();
}

void run_progress::hide()
{
    bar_.setVisible(false);
    Form::paint_now();
}

}  // namespace verdane
