#include "scoring/course_checks.h"

#include <algorithm>

#include "base/counts.h"
#include "base/numbers.h"
#include "base/text.h"
#include "scoring/limits.h"

namespace verdane {

namespace {

constexpr int stroke_index_limit = hole_count + 1;

bool is_between(QChar character, QChar first, QChar last)
{
    return character >= first && character <= last;
}

}  // namespace

bool may_be_in_course_name(QChar character)
{
    return is_between(character, u'a', u'z') || is_between(character, u'A', u'Z') || character == u' ';
}

bool may_be_in_course_figure(QChar character)
{
    return is_between(character, u'0', u'9') || character == u'.';
}

bool has_name_and_figures(QStringView name, QStringView rating, QStringView slope)
{
    return !trimmed_blanks(name).isEmpty() && !trimmed_blanks(rating).isEmpty() &&
           !trimmed_blanks(slope).isEmpty();
}

hole_refusal check_yards(const QString& text)
{
    return is_numeric(text) ? hole_refusal::none : hole_refusal::not_numeric;
}

hole_refusal check_stroke_index(const QString& text, const QStringList& others)
{
    if (!is_numeric(text))
        return hole_refusal::not_numeric;
    const double value = leading_number(text);
    const double stored_value = round_half_even(value);
    if (stored_value == 0)
        return hole_refusal::none;
    const auto has_it = [stored_value](const QString& other) {
        return plain(to_int16(other)) == stored_value;
    };
    if (std::any_of(others.begin(), others.end(), has_it))
        return hole_refusal::index_of_other_hole;
    const bool too_high = value >= stroke_index_limit || stored_value >= stroke_index_limit;
    return too_high ? hole_refusal::index_too_high : hole_refusal::none;
}

hole_refusal check_par(const QString& text)
{
    if (!is_numeric(text))
        return hole_refusal::not_numeric;
    const double value = leading_number(text);
    const bool allowed = value == 0 || (value >= lowest_par && value <= highest_par);
    return allowed ? hole_refusal::none : hole_refusal::no_par;
}

}  // namespace verdane
