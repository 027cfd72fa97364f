#pragma once

#include <QLabel>
#include <QWidget>

#include "base/language.h"

namespace verdane {

/// The texts in the picture pane of the main window: what to do first while there is no course, and a line
/// below the picture that reports a problem. Each label exists only while it is needed.
class pane_notes {
public:
    /// `pane` owns the labels.
    pane_notes(QWidget& pane, bool french) : pane_(pane), french_(french) {}

    /// Shows the texts in that language from now on.
    void set_language(bool french);
    void show_first_steps(bool wanted);
    bool has_first_steps() const { return first_steps_ != nullptr; }
    /// Shows a line; its details are in the tool tip.
    void show_problem(const text_pair& line, const QString& details);

    /// Places the labels in the pane, and returns the rectangle that is left for the picture.
    QRect lay_out();

private:
    void set_texts();

    QWidget& pane_;
    bool french_;
    text_pair problem_text_;
    QLabel* first_steps_ = nullptr;
    QLabel* problem_ = nullptr;
};

}  // namespace verdane
