#pragma once

#include <QStringList>

class QListWidget;

namespace verdane {

/// A list of lines of which exactly one is selected as soon as there is one: a click beside the lines
/// does not take the selection away. Wide enough for `characters`.
QListWidget* make_list_box(int characters);

/// Fills an empty list and selects its first line.
void fill_list_box(QListWidget& list, const QStringList& lines);

}  // namespace verdane
