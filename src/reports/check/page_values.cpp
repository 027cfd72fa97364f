#include "reports/check/page_values.h"

#include <QRegularExpression>

#include <cmath>

#include "reports/markup/page_markup.h"
#include "reports/page/layout_units.h"
#include "reports/template/page_limits.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

using fault = std::optional<page_fault>;

/// The first match for which `is_wrong` returns true, with its `message`.
template <typename Test, typename Message>
fault first_wrong(const QRegularExpression& form, QStringView text, Test is_wrong, Message message)
{
    auto matches = form.globalMatch(text.toString());
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        if (is_wrong(match))
            return page_fault{match.capturedStart(), message(match)};
    }
    return {};
}

bool is_font_size(const QString& size)
{
    if (is_one_of(size, {u"small", u"medium", u"large", u"x-small", u"x-large", u"xx-small", u"xx-large",
                         u"inherit"}))
        return true;
    return is_printable_size(length_in_units(size) / units_per_pt);
}

fault fault_of_font_size(QStringView style)
{
    // `font` has several parts, of which the one with a unit, or a bare 0, is the size.
    static const QRegularExpression form(
        u"\\bfont-size\\s*:\\s*([^;}!]*)"
        u"|\\bfont\\s*:[^;}]*?(?<![\\w.])([-+]?[\\d.]+(?:mm|pt|px)|0(?=[\\s/;}]|$))"_s,
        QRegularExpression::CaseInsensitiveOption);
    const auto size = [](const QRegularExpressionMatch& match) {
        return match.captured(match.lastCapturedIndex()).trimmed();
    };
    return first_wrong(
        form, style, [size](const auto& match) { return !is_font_size(size(match)); },
        [size](const auto& match) { return size_refusal(size(match)); });
}

fault fault_of_file(QStringView style)
{
    static const QRegularExpression form(u"(@import|url)\\b"_s, QRegularExpression::CaseInsensitiveOption);
    return first_wrong(
        form, style, [](const auto&) { return true; },
        [](const auto& match) { return file_refusal(match.capturedView()); });
}

/// A rough size of one unit, in millimetres; of a bare number and of a percentage, a share of a line.
double mm_of(QStringView unit)
{
    if (is_one_of(unit, {u"mm"}))
        return 1;
    if (is_one_of(unit, {u"pt", u"px"}))
        return 25.4 / 72;
    if (is_one_of(unit, {u"em", u"ex"}))
        return 5;
    return 0.05;
}

const QRegularExpression& length_form()
{
    static const QRegularExpression form(u"(?<![\\w.#])(\\d*\\.?\\d+)(mm|pt|px|em|ex)\\b"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    return form;
}

const QRegularExpression& number_form()
{
    static const QRegularExpression form(u"(?<![\\w.#-])(\\d*\\.?\\d+)(mm|pt|px|em|ex|%|)(?![\\w.])"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    return form;
}

double mm_in(const QRegularExpressionMatch& match)
{
    return match.captured(1).toDouble() * mm_of(match.capturedView(2));
}

fault fault_of_length(const QRegularExpression& form, QStringView text)
{
    return first_wrong(
        form, text, [](const auto& match) { return !(mm_in(match) <= most_length_mm); },
        [](const auto& match) {
            return u"a length is at most %1 mm, not %2"_s.arg(most_length_mm).arg(match.captured());
        });
}

fault fault_of_number(QStringView style)
{
    return fault_of_length(number_form(), style);
}

/// A size in an attribute without a unit is in layout units.
fault fault_of_count(QStringView name, QStringView value)
{
    const bool is_span = is_one_of(name, {u"colspan", u"rowspan"});
    if (!is_span && !is_one_of(name, {u"width", u"height", u"border", u"cellpadding", u"cellspacing",
                                      u"hspace", u"vspace"}))
        return {};
    static const QRegularExpression whole(u"^\\s*(\\d+)\\s*$"_s);
    const QString digits = whole.match(value.toString()).captured(1);
    const double most = is_span ? most_spanned : most_length_mm * units_per_mm;
    if (digits.toDouble() <= most)
        return {};
    return page_fault{0, u"%1 is at most %2, not %3"_s.arg(name).arg(int(most)).arg(digits)};
}

fault fault_of_drawing_size(const QString& value)
{
    bool is_number = false;
    const double size = value.toDouble(&is_number);
    if (is_number && size > 0 && std::isfinite(size))
        return {};
    return page_fault{
        0, u"the font-size of a drawing is a number above 0 in the drawing's units, not %1"_s.arg(value)};
}

fault fault_of_html_size(const QString& value)
{
    static const QRegularExpression form(u"^\\s*[-+]?[1-7]\\s*$"_s);
    if (form.match(value).hasMatch())
        return {};
    return page_fault{0, u"the size of a font element is 1 to 7, not %1"_s.arg(value)};
}

}  // namespace

fault fault_of_text(QStringView text)
{
    qsizetype start = 0;
    for (qsizetype at = 0; at < text.size() && text.size() > most_unbroken_characters; ++at) {
        if (text[at].isSpace())
            start = at + 1;
        else if (at - start == most_unbroken_characters)
            return page_fault{
                start, u"a word has at most %1 characters without a blank"_s.arg(most_unbroken_characters)};
    }
    return {};
}

fault fault_of_style(QStringView style)
{
    for (const auto rule : {fault_of_font_size, fault_of_file, fault_of_number})
        if (const fault found = rule(style))
            return found;
    return {};
}

fault fault_of_attribute(QStringView element, bool in_drawing, QStringView name, QStringView value)
{
    if (is_one_of(name, {u"style"}))
        return fault_of_style(value);
    if (in_drawing && is_one_of(name, {u"font-size"}))
        return fault_of_drawing_size(value.toString());
    if (in_drawing)
        return is_one_of(element, {u"svg"}) ? fault_of_length(length_form(), value) : fault();
    if (is_one_of(name, {u"background"}))
        return page_fault{0, file_refusal(name)};
    if (is_one_of(element, {u"font"}) && is_one_of(name, {u"size"}))
        return fault_of_html_size(value.toString());
    if (const fault found = fault_of_count(name, value))
        return found;
    return fault_of_length(length_form(), value);
}

length_range lengths_in(QStringView text)
{
    bool is_number = false;
    if (const double units = text.toDouble(&is_number); is_number)
        return {units / units_per_mm, units / units_per_mm};
    length_range result;
    auto matches = length_form().globalMatch(text.toString());
    while (matches.hasNext()) {
        const double mm = mm_in(matches.next());
        result.sum += mm;
        result.longest = qMax(result.longest, mm);
    }
    return result;
}

}  // namespace verdane
