#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

/// The captions of all windows, in both languages.
namespace verdane::testing {

/// A caption and the objectName of its control ("title" for the window, empty for a label without a name).
/// The captions of tabs, and of columns, are joined by '|'.
struct caption_row {
    QString control;
    QString french;
    QString english;
};

/// By the family of the window.
using captions_by_window = QHash<QString, QList<caption_row>>;

const captions_by_window& captions_of_reference();
const captions_by_window& captions_of_round();
const captions_by_window& captions_of_shell();

/// The captions of a window in the form of `captions_of`, for a row of `every_window`.
QStringList expected_captions(const QString& view, bool french);

}  // namespace verdane::testing
