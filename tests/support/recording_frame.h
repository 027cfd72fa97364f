#pragma once

#include <QWidget>

#include "main_frame.h"

namespace verdane::testing {

/// A main window that remembers what the windows asked of it.
class recording_frame : public main_frame_interface {
public:
    recording_frame()
    {
        widget_.setGeometry(100, 80, 1024, 700);
        widget_.show();
        set_main_frame(this);
    }
    ~recording_frame() override { set_main_frame(nullptr); }

    QWidget* frame_widget() override { return &widget_; }
    void lock_menu() override { locked = true; }
    void unlock_menu() override { locked = false; }
    void enable_tool_button(QStringView, bool) override {}
    void activated() override { ++activations; }

    bool locked = false;
    int activations = 0;

private:
    QWidget widget_;
};

}  // namespace verdane::testing
