#pragma once

class QWidget;

namespace verdane {

/// Keeps the mouse wheel from changing a control: turned over the window by accident, it would choose
/// another course, hole or weather without a word.
void ignore_wheel(QWidget& control);

}  // namespace verdane
