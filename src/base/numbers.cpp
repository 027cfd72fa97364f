#include "base/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int significant_digits = 15;

bool is_digit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

qsizetype digits_end(QStringView text, qsizetype from)
{
    while (from < text.size() && is_digit(text[from]))
        ++from;
    return from;
}

qsizetype skip_sign(QStringView text, qsizetype from)
{
    return from < text.size() && (text[from] == u'+' || text[from] == u'-') ? from + 1 : from;
}

/// The end of the exponent that starts at `from`; `from` when there is none.
qsizetype exponent_end(QStringView text, qsizetype from)
{
    if (from >= text.size() || text[from].toLower() != u'e')
        return from;
    const qsizetype digits = skip_sign(text, from + 1);
    const qsizetype end = digits_end(text, digits);
    return end > digits ? end : from;
}

/// The length of the number at the start of `text`; 0 when there is none.
qsizetype number_length(QStringView text)
{
    const qsizetype whole = skip_sign(text, 0);
    qsizetype end = digits_end(text, whole);
    qsizetype digits = end - whole;
    if (end < text.size() && text[end] == u'.') {
        const qsizetype fraction = digits_end(text, end + 1);
        digits += fraction - end - 1;
        end = fraction;
    }
    return digits == 0 ? 0 : exponent_end(text, end);
}

QStringView without_leading_blanks(QStringView text)
{
    while (!text.isEmpty() && text.front().isSpace())
        text = text.sliced(1);
    return text;
}

template <typename Int>
void check_fits(double value)
{
    // NaN fails, too: every comparison with it is false.
    if (!(value >= std::numeric_limits<Int>::min() && value <= std::numeric_limits<Int>::max()))
        throw run_time_failure(failure_kind::overflow,
                               u"%1 does not fit in %2 bits"_s.arg(value).arg(8 * sizeof(Int)));
}

struct decimal_digits {
    bool negative = false;
    std::string digits;  ///< without trailing zeros; "0" for zero
    int point = 0;       ///< how many of the digits are before the decimal point
};

decimal_digits decimal_digits_of(double value)
{
    if (!std::isfinite(value))
        throw run_time_failure(failure_kind::overflow, u"a figure without bounds"_s);
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                   std::chars_format::scientific, significant_digits - 1)
                         .ptr;
    const std::string text(buffer.data(), end);
    const auto mark = text.find('e');
    decimal_digits result;
    std::copy_if(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(mark),
                 std::back_inserter(result.digits), [](char c) { return c != '.'; });
    result.point = std::stoi(text.substr(mark + 1)) + 1;
    result.digits.erase(std::min(result.digits.find_last_not_of('0') + 1, result.digits.size()));
    if (result.digits.empty())
        return {false, "0", 1};
    result.negative = value < 0;
    return result;
}

/// The digits with a decimal point where one is needed, and nothing before the point for values below 1.
std::string with_point(const decimal_digits& number)
{
    const int length = static_cast<int>(number.digits.size());
    if (number.point >= length)
        return number.digits + std::string(static_cast<std::size_t>(number.point - length), '0');
    if (number.point <= 0)
        return "." + std::string(static_cast<std::size_t>(-number.point), '0') + number.digits;
    return number.digits.substr(0, static_cast<std::size_t>(number.point)) + "." +
           number.digits.substr(static_cast<std::size_t>(number.point));
}

}  // namespace

double leading_number(QStringView text)
{
    const QStringView from = without_leading_blanks(text);
    const QStringView number = from.first(number_length(from));
    return number.isEmpty() ? 0.0 : number.toDouble();
}

bool is_numeric(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    return !trimmed.isEmpty() && number_length(trimmed) == trimmed.size();
}

double round_half_even(double value)
{
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest > 0.5 || (rest == 0.5 && std::fmod(below, 2.0) != 0.0))
        return below + 1.0;
    return below;
}

double round_to_tenth(double value)
{
    // Rounding `value * 10` would be wrong: the product is rounded itself and can become a tie that `value`
    // is not. `to_chars` rounds the exact value, ties to even.
    constexpr std::size_t sign_point_and_decimal = 3;
    std::array<char, std::numeric_limits<double>::max_exponent10 + 1 + sign_point_and_decimal> digits{};
    const auto* const end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, 1).ptr;
    double rounded = value;
    std::from_chars(digits.data(), end, rounded);
    return rounded;
}

int16 to_int16(double value)
{
    const double whole = round_half_even(value);
    check_fits<std::int16_t>(whole);
    return static_cast<std::int16_t>(whole);
}

int32 to_int32(double value)
{
    const double whole = round_half_even(value);
    check_fits<std::int32_t>(whole);
    return static_cast<std::int32_t>(whole);
}

int16 to_int16(QStringView text)
{
    return to_int16(leading_number(text));
}

int32 to_int32(QStringView text)
{
    return to_int32(leading_number(text));
}

QString plain_number_text(double value)
{
    const decimal_digits number = decimal_digits_of(value);
    return QString::fromStdString((number.negative ? "-" : " ") + with_point(number));
}

QString number_text(double value)
{
    const decimal_digits number = decimal_digits_of(value);
    const std::string zero = number.point <= 0 ? "0" : "";
    return QString::fromStdString((number.negative ? "-" : "") + zero + with_point(number));
}

}  // namespace verdane
