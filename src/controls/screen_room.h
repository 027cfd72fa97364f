#pragma once

#include <QSize>

class QWidget;

namespace verdane {

/// The largest size that a window may have: what the desktop leaves to windows on its screen, less the frame
/// and title bar of the window. Until the desktop has given a window its frame, that of the main window is
/// taken, or the measure of the style while there is none.
QSize room_on_screen(const QWidget& window);

/// Limits a window to the available size of its screen, and moves it so that no part is off the screen. A
/// window that is not shown and was never placed keeps its automatic position.
void keep_on_screen(QWidget& window);

}  // namespace verdane
