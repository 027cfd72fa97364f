#include "controls/main_frame.h"

#include <QWidget>

#include "controls/Form.h"
#include "controls/screen_limits.h"

namespace verdane {

namespace {

main_frame_interface* the_main_frame = nullptr;

constexpr int top_twips = 40;

}  // namespace

QPointer<Form> current_form;

main_frame_interface* main_frame()
{
    return the_main_frame;
}

void set_main_frame(main_frame_interface* frame)
{
    the_main_frame = frame;
}

void Lock_menu()
{
    if (the_main_frame)
        the_main_frame->lock_menu();
}

void Unlock_menu()
{
    if (the_main_frame)
        the_main_frame->unlock_menu();
}

void Place_and_lock(Form& form)
{
    if (the_main_frame) {
        const QRect frame = the_main_frame->frame_widget()->geometry();
        const int left = (frame.width() - form.width()) / 2;
        form.move(frame.topLeft() + QPoint(left, pixels(top_twips)));
        keep_on_screen(form);
    }
    Lock_menu();
}

}  // namespace verdane
