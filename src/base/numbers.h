#pragma once

#include <QString>
#include <QStringView>

#include "base/counts.h"

/// Conversions between text and numbers. None of them looks at the locale.
namespace verdane {

/// The number at the head of a text: leading white space is skipped, then a sign, digits, one point and
/// an exponent are read as far as they go; reading stops at the first character that is no part of a
/// number. An empty text, or one that starts otherwise, is 0.
double leading_number(QStringView text);

/// True when the whole text, white space around it aside, is one decimal number ("-3", "12.5", "1e3").
bool is_numeric(QStringView text);

/// Nearest whole number, ties to even, in 16 or 32 bits. Fails with `overflow` outside them.
int16 to_int16(double value);
int32 to_int32(double value);

/// The leading number of a text as a count: "" is 0, "3a" is 3, "2.5" is 2.
int16 to_int16(QStringView text);
int32 to_int32(QStringView text);

/// Nearest whole number, ties to even.
double round_half_even(double value);

/// Rounds the exact value of `value` to one decimal place and returns the double nearest to it. A value
/// half way between two tenths is rounded to the even one: 12.25 gives 12.2. Few decimals are exact as
/// doubles; for the others the double counts: that of 5.65 is above 5.65 and gives 5.7, that of -16.95 is
/// nearer to 0 and gives -16.9. Infinity and NaN are returned unchanged.
double round_to_tenth(double value);

/// The plain number text that report tables take: a blank before values of 0 and above, a point as
/// decimal mark, no zero before the point (" .5", "-.5"), at most 15 significant digits and no more
/// than the value needs, never an exponent.
QString plain_number_text(double value);

/// A number as text in a box: as `plain_number_text`, but without the leading blank and with the
/// zero before the point ("0.5", "-0.5").
QString number_text(double value);

}  // namespace verdane
