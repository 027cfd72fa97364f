#include "controls/main_frame.h"

namespace verdane {

namespace {

main_frame_interface* the_main_frame = nullptr;

}  // namespace

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

}  // namespace verdane
