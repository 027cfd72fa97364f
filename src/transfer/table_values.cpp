#include "transfer/table_values.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

#include "base/language.h"
#include "base/numbers.h"
#include "scoring/limits.h"
#include "scoring/round_key.h"
#include "store/recovery/round_selection.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The text of the infinite number, which a column of real numbers can have.
const QString infinite = u"inf"_s;

bool is_column_of_numbers(const column& tested)
{
    return tested.type != column_type::text && tested.type != column_type::any;
}

/// Nothing if the text is no number.
std::optional<QVariant> number_of_text(const QString& text)
{
    bool is_whole = false;
    const qlonglong whole = text.toLongLong(&is_whole);
    if (is_whole)
        return whole;
    constexpr double beyond = std::numeric_limits<double>::infinity();
    if (text == infinite || text == u'-' + infinite)
        return text == infinite ? beyond : -beyond;
    bool is_real = false;
    const double real = text.toDouble(&is_real);
    return is_real && is_numeric(text) ? std::optional<QVariant>(real) : std::nullopt;
}

value_of_file no_number()
{
    return {{}, in_language(u"ce n'est pas un nombre", u"not a number")};
}

struct range {
    qlonglong lowest;
    qlonglong highest;
};

template <typename Number>
range range_of()
{
    return {std::numeric_limits<Number>::min(), std::numeric_limits<Number>::max()};
}

/// The whole numbers that a column of numbers can have.
range range_of(const table& of, const column& where)
{
    if (where.type == column_type::yes_no)
        return {0, 1};
    if (where.type == column_type::amount)
        return range_of<std::int32_t>();
    const range counts = range_of<std::int16_t>();
    return {is_table_of_rounds(of) ? 0 : counts.lowest, counts.highest};
}

value_of_file whole_number(const QVariant& number, const range& allowed)
{
    const bool is_whole = number.typeId() == QMetaType::LongLong;
    if (is_whole && number.toLongLong() >= allowed.lowest && number.toLongLong() <= allowed.highest)
        return {number, {}};
    return {{},
            in_language(u"ce n'est pas un nombre entier de %1 à %2", u"not a whole number from %1 to %2")
                .arg(QString::number(allowed.lowest), QString::number(allowed.highest))};
}

value_of_file edited_number(const QString& text, const table& of, const column& where)
{
    const auto number = number_of_text(text);
    if (!number)
        return no_number();
    if (where.type != column_type::real)
        return whole_number(*number, range_of(of, where));
    return std::isfinite(number->toDouble()) ? value_of_file{*number, {}} : no_number();
}

bool is_key_of_round(const table& of, const column& tested)
{
    return is_table_of_rounds(of) && &tested == &of.columns.front();
}

value_of_file key_of_round(const csv_value& value)
{
    if (Verdane_tools::is_round_key(value.text))
        return {value.text, {}};
    return {{},
            in_language(u"la clé d'une ronde a %1 chiffres", u"the key of a round has %1 digits")
                .arg(round_key_digits)};
}

bool is_null(const csv_value& value)
{
    return !value.quoted && value.text.isEmpty();
}

}  // namespace

QString text_of_number(double value)
{
    if (std::isinf(value))
        return value < 0 ? u'-' + infinite : infinite;
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

value_of_file exported_value(const csv_value& value, const column& where)
{
    if (is_null(value))
        return {};
    if (value.quoted || !is_column_of_numbers(where))
        return {value.text, {}};
    const auto number = number_of_text(value.text);
    return number ? value_of_file{*number, {}} : no_number();
}

value_of_file edited_value(const csv_value& value, const table& of, const column& where)
{
    if (is_key_of_round(of, where))
        return key_of_round(value);
    if (is_null(value))
        return {};
    return is_column_of_numbers(where) ? edited_number(value.text, of, where) : value_of_file{value.text, {}};
}

bool is_table_of_rounds(const table& tested)
{
    return std::any_of(tables_of_rounds.begin(), tables_of_rounds.end(),
                       [&](std::u16string_view name) { return tested.name == QStringView(name); });
}

}  // namespace verdane
