#pragma once

#include <QSize>

class QWidget;

namespace verdane {

/// The largest size of a window without its frame: the area of its screen that the desktop leaves to windows,
/// less frame and title bar. A window that is not shown yet has no frame; it is assumed to be that of the
/// main window or, without a main window, a title bar as high as the style makes one.
QSize largest_size_on_screen(const QWidget& window);

/// Limits a window to the available size of its screen, and moves it so that no part is off the screen. A
/// window that is not shown and was never moved keeps the position that the desktop chooses.
void keep_on_screen(QWidget& window);

}  // namespace verdane
