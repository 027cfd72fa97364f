#pragma once

#include <QHash>
#include <QWidget>

#include "controls/main_frame.h"

namespace verdane::testing {

/// A main window that records the calls of the windows.
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
    void enable_tool_button(QStringView key, bool enabled) override { buttons_[key.toString()] = enabled; }
    void reload() override {}
    void activated() override { ++activations; }

    /// The last state of a tool button; enabled if it was never set.
    bool enabled(const QString& key) const { return buttons_.value(key, true); }

    bool locked = false;
    int activations = 0;

private:
    QHash<QString, bool> buttons_;
    QWidget widget_;
};

}  // namespace verdane::testing
