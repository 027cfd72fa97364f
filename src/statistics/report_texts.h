#pragma once

#include <QString>

#include "counts.h"

/// Figures as the report tables hold them. A table's text has room for five characters; what does not
/// fit is cut off, never rounded.
namespace verdane {

/// A count behind a leading blank.
QString count_text(int32 count);

/// A mean behind a leading blank: " 1.666" is cut to " 1.66".
QString mean_text(double mean);

/// A mean without the blank, which leaves room for one digit more: "213.6".
QString average_text(double mean);

/// The share that a part is of a whole, 1 and up, in percent behind a leading blank. A long share loses
/// its sign: " 33.3", but " 50%" and " 100%".
QString share_text(int16 part, int32 whole);

}  // namespace verdane
