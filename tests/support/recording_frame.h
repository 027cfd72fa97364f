#pragma once

#include <QHash>
#include <QWidget>

#include "controls/main_frame.h"

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
    void enable_tool_button(QStringView key, bool enabled) override { buttons_[key.toString()] = enabled; }
    void activated() override { ++activations; }

    /// Whether a tool button was left enabled; one that nobody touched is.
    bool enabled(const QString& key) const { return buttons_.value(key, true); }

    bool locked = false;
    int activations = 0;

private:
    QHash<QString, bool> buttons_;
    QWidget widget_;
};

}  // namespace verdane::testing
