#pragma once

#include <QStringList>

class QAbstractItemView;
class QListWidget;
class QString;

namespace verdane {

constexpr int default_lines = 12;

/// A list in which exactly one line is selected, unless it is empty: a click next to the lines does not clear
/// the selection. Its preferred size is `lines` lines of `characters` characters; if it is smaller, it
/// scrolls.
QListWidget* make_list_box(int characters, int lines = default_lines);

/// Fills an empty list and selects its first line.
void fill_list_box(QListWidget& list, const QStringList& lines);

/// Removes the selected line and selects the first one of the others.
void remove_selected_line(QListWidget& list);

/// Shows a text in the middle of a list or grid while it has no rows, and gives it to screen readers as the
/// description of the list. Called once, after the list has its model.
void show_text_when_empty(QAbstractItemView& list, const QString& text);

}  // namespace verdane
