#pragma once

#include <QStringList>

class QWidget;

/// What the test of the twins reads from a window. To be called in the window thread.
namespace verdane::testing {

/// Name and class of every named control, sorted, with a mark for those that are visible.
QStringList controls_of(const QWidget& window);

/// The classes of the controls that take the focus and have no objectName.
QStringList unnamed_controls_of(const QWidget& window);

/// "NAME=CAPTION" of the window and of every label, button, frame, row of tabs, grid and menu entry; the
/// tabs, or the columns, are joined by '|'. Figures, texts with digits and without letters, are left out.
QStringList captions_of(const QWidget& window);

}  // namespace verdane::testing
