#pragma once

#include <QStringList>

class QWidget;

/// What the test of the twins reads from a window. To be called in the window thread.
namespace verdane::testing {

/// Name and class of every named control, sorted, with a mark for those that are visible.
QStringList controls_of(const QWidget& window);

/// The classes of the controls that take the focus, or are labels that belong to one, and have no name.
QStringList unnamed_controls_of(const QWidget& window);

/// "NAME=CAPTION" of the window itself and of every label, button, frame, tab, column and menu entry, sorted.
/// Texts without a letter are figures, not captions.
QStringList captions_of(const QWidget& window);

}  // namespace verdane::testing
