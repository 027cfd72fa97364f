#pragma once

#include <QString>
#include <QStringView>

#include "base/counts.h"
#include "scoring/round_key.h"

/// Text functions that windows and statistics share. `round_key.h` has those of the round key,
/// `records/course_rows.h` has `tee_name`.
namespace verdane::Verdane_tools {

/// Trims the text in place, appends blanks up to `width` characters and returns it. A text that is already as
/// wide or wider is only trimmed.
QString pad_right(QString& text, int16 width);

/// Trims the text in place, prepends zeros up to `width` characters and returns it. A text that is already as
/// wide or wider is only trimmed.
QString pad_zero(QString& text, int16 width);

/// The colour of a tee in a language, for its digit "0" to "7" with or without blanks around it; the empty
/// text for anything else. In French the first four colours are in capitals.
QString tee_name_in(bool french, QStringView digit);

/// A number for the two names of a partner. Both names are trimmed and put in capitals in place; the result
/// is the sum of their character codes (Windows-1252, "?" for a character that it lacks) plus twice their
/// length. Names with the same letters in another order have the same number.
int32 name_checksum(QString& first, QString& second);

}  // namespace verdane::Verdane_tools
