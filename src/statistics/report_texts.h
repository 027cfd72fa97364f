#pragma once

#include <QString>

#include "base/counts.h"

/// Figures as texts of the report tables. Such a text has at most five characters; the rest is cut off, never
/// rounded.
namespace verdane {

/// A count with a leading blank.
QString count_text(int32 count);

/// A mean with a leading blank: " 1.666" is cut to " 1.66".
QString mean_text(double mean);

/// A mean without the blank, with one more digit: "213.6".
QString average_text(double mean);

/// `part` in percent of `whole` (at least 1), with a leading blank. The percent sign is cut off if the text
/// is too long: " 33.3", but " 50%" and " 100%".
QString share_text(int16 part, int32 whole);

}  // namespace verdane
