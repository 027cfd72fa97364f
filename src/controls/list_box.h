#pragma once

#include <QStringList>

class QListWidget;

namespace verdane {

constexpr int usual_lines = 12;

/// A list of lines of which exactly one is selected as soon as there is one: a click beside the lines
/// does not clear the selection. Its preferred size is `lines` lines of `characters`; below that it scrolls.
QListWidget* make_list_box(int characters, int lines = usual_lines);

/// Fills an empty list and selects its first line.
void fill_list_box(QListWidget& list, const QStringList& lines);

}  // namespace verdane
