#include "controls/main_frame.h"

#include <QWidget>

#include "controls/screen_room.h"

namespace verdane {

namespace {

main_frame_interface* frame_of_run = nullptr;

constexpr int top_twips = 40;

}  // namespace

QPointer<Form> current_form;

main_frame_interface* main_frame()
{
    return frame_of_run;
}

void set_main_frame(main_frame_interface* frame)
{
    frame_of_run = frame;
}

void Lock_menu()
{
    if (frame_of_run)
        frame_of_run->lock_menu();
}

void Unlock_menu()
{
    if (frame_of_run)
        frame_of_run->unlock_menu();
}

void Place_and_lock(Form& form)
{
    if (frame_of_run) {
        const QRect frame = frame_of_run->frame_widget()->geometry();
        const int left = (frame.width() - form.width()) / 2;
        form.move(frame.topLeft() + QPoint(left, pixels(top_twips)));
        keep_on_screen(form);
    }
    Lock_menu();
}

}  // namespace verdane
