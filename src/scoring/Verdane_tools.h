#pragma once

#include <QString>
#include <QStringView>

#include "base/counts.h"
#include "scoring/round_key.h"

/// The small text functions that windows and statistics share; those of the round key stand in
/// `round_key.h`.
namespace verdane::Verdane_tools {

/// Trims the text in place, appends blanks up to `width` and returns it. A text already at the width
/// or longer comes back trimmed and otherwise unchanged.
QString pad_right(QString& text, int16 width);

/// Trims the text in place, puts "0" in front of it until it has `width`, and returns it. A longer
/// text comes back trimmed and otherwise unchanged.
QString pad_zero(QString& text, int16 width);

/// The name of a tee colour in the language of this moment, for its digit "0" to "7" (blanks around
/// it aside); the empty text for anything else.
QString tee_name(QStringView digit);

/// True when no entry of `round_keys` from index 0 to `round_key_count`, that index included, equals
/// the trimmed key. Fails with `subscript` when the list is full.
bool key_free(QStringView key);

/// A number for a partner's two names: both are trimmed and put in capitals in place; then the
/// character codes (Windows-1252; "?" for a character that it lacks) of both, the length of both
/// together, the length of the first and the length of the second are added up.
int32 name_checksum(QString& first, QString& second);

}  // namespace verdane::Verdane_tools
