#pragma once

#include <QStringList>

/// The captions of all windows, in both languages.
namespace verdane::testing {

/// The captions of a window in the form of `captions_of`, for a row of `every_window`.
QStringList expected_captions(const QString& view, bool french);

}  // namespace verdane::testing
