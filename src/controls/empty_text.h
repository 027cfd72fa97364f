#pragma once

class QAbstractItemView;
class QString;

namespace verdane {

/// Shows a text in the middle of a list or grid while it has no rows, and gives it to screen readers as the
/// description of the list. Called once, after the list has its model.
void say_when_empty(QAbstractItemView& list, const QString& text);

}  // namespace verdane
