#pragma once

#include <QString>
#include <QStringView>

#include "base/counts.h"

/// Conversions between text and numbers. None of them depends on the locale.
namespace verdane {

/// The number at the start of a text: leading white space is skipped, then a sign, digits, one point and an
/// exponent are read. Reading stops at the first character that is not part of a number. A text that does not
/// start with a number, such as the empty text, gives 0.
double leading_number(QStringView text);

/// True when the text without white space at either end is one decimal number ("-3", "12.5", "1e3").
bool is_numeric(QStringView text);

/// The nearest whole number, ties to even. Fails with `overflow` when it does not fit in 16 or 32 bits.
int16 to_int16(double value);
int32 to_int32(double value);

/// The leading number of a text, rounded in the same way: "" gives 0, "3a" gives 3, "2.5" gives 2.
int16 to_int16(QStringView text);
int32 to_int32(QStringView text);

/// The nearest whole number, ties to even.
double round_half_even(double value);

/// Rounds the exact value of `value` to one decimal place and returns the double nearest to it. A value
/// half way between two tenths is rounded to the even one: 12.25 gives 12.2. Most decimals are not exact as
/// doubles, and the double is rounded: 5.65 is stored as a little more than 5.65 and gives 5.7, -16.95 is
/// stored a little nearer to 0 and gives -16.9. Infinity and NaN are returned unchanged.
double round_to_tenth(double value);

/// The text of a number in a report table: a blank before values of 0 and above, a point as decimal mark, no
/// zero before the point (" .5", "-.5"), no exponent, and only the digits that the value needs, at most 15
/// significant ones. Fails with `overflow` for infinity and NaN.
QString plain_number_text(double value);

/// The text of a number in a box: as `plain_number_text`, but without the leading blank and with the zero
/// before the point ("0.5", "-0.5").
QString number_text(double value);

}  // namespace verdane
