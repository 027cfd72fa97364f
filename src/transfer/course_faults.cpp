#include "transfer/course_faults.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "base/language.h"
#include "base/numbers.h"
#include "scoring/course_checks.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

using hole_texts = entered_course::hole_texts;
/// The check of a figure of a hole, with its index.
using hole_check = hole_refusal (*)(const hole_texts& texts, int index);

constexpr double largest_count = std::numeric_limits<std::int16_t>::max();

bool consists_of(const QString& text, bool (*accepted)(QChar))
{
    return std::all_of(text.begin(), text.end(), accepted);
}

QString fault_of_name(const QString& name)
{
    if (!consists_of(name, may_be_in_course_name))
        return in_language(u"name : seulement des lettres sans accent et des blancs",
                           u"name: only letters without accents, and blanks");
    if (name.size() > course_name_characters)
        return in_language(u"name : %1 caractères au plus", u"name: %1 characters at most")
            .arg(course_name_characters);
    return {};
}

QString fault_of_figure(const QString& column, const QString& text)
{
    if (consists_of(text, may_be_in_course_figure) && text.size() <= course_figure_characters)
        return {};
    return in_language(u"%1 : seulement des chiffres et un point, %2 caractères au plus",
                       u"%1: only digits and a point, %2 characters at most")
        .arg(column, QString::number(course_figure_characters));
}

const QString& text_at(const hole_texts& texts, int index)
{
    return texts.at(static_cast<std::size_t>(index));
}

hole_refusal yards_refusal(const hole_texts& texts, int index)
{
    return check_yards(text_at(texts, index));
}

hole_refusal index_refusal(const hole_texts& texts, int index)
{
    QStringList others(texts.begin(), texts.end());
    others.removeAt(index);
    return check_stroke_index(text_at(texts, index), others);
}

hole_refusal par_refusal(const hole_texts& texts, int index)
{
    return check_par(text_at(texts, index));
}

QString words_of(hole_refusal refusal)
{
    switch (refusal) {
    case hole_refusal::not_numeric:
        return in_language(u"ce n'est pas un nombre", u"not a number");
    case hole_refusal::index_of_other_hole:
        return in_language(u"un autre trou a ce handicap", u"another hole has this handicap");
    case hole_refusal::index_too_high:
        return in_language(u"le handicap doit être inférieur à %1", u"the handicap must be under %1")
            .arg(hole_count + 1);
    case hole_refusal::no_par:
        return in_language(u"la normale doit être de %1 à %2, ou 0 si elle est inconnue",
                           u"the par must be %1 to %2, or 0 if it is not known")
            .arg(lowest_par)
            .arg(highest_par);
    case hole_refusal::none:
        break;
    }
    return {};
}

/// A number that is too long for the box, or for its column.
bool is_too_large(const QString& text)
{
    return text.size() > hole_figure_characters || std::abs(leading_number(text)) > largest_count;
}

/// The checks compare a text with the others, so the size of all of them is checked first.
QString fault_of_holes(const QString& prefix, const hole_texts& texts, hole_check check)
{
    const auto named = [&](int index, const QString& words) -> QString {
        return prefix + QString::number(index + 1) + in_language(u" : ", u": ") + words;
    };
    for (int index = 0; index < hole_count; ++index) {
        if (is_too_large(text_at(texts, index)))
            return named(index, in_language(u"le nombre est trop long", u"the number is too long"));
    }
    for (int index = 0; index < hole_count; ++index) {
        const hole_refusal refusal = check(texts, index);
        if (refusal != hole_refusal::none)
            return named(index, words_of(refusal));
    }
    return {};
}

/// The editor adds the lengths up.
QString fault_of_total(const hole_texts& yards)
{
    double total = 0;
    for (const QString& text : yards)
        total += std::abs(round_half_even(leading_number(text)));
    return total <= largest_count
               ? QString()
               : in_language(u"la somme des distances est trop grande", u"the lengths add up to too much");
}

}  // namespace

QString fault_of(const entered_course& course)
{
    if (!has_name_and_figures(course.name, course.rating, course.slope))
        return in_language(u"il faut le nom (name), la moyenne (rating) et la difficulté (slope)",
                           u"name, rating and slope are needed");
    for (const QString& fault :
         {fault_of_name(course.name), fault_of_figure(u"rating"_s, course.rating),
          fault_of_figure(u"slope"_s, course.slope), fault_of_holes(u"yards_"_s, course.yards, yards_refusal),
          fault_of_holes(u"par_"_s, course.pars, par_refusal),
          fault_of_holes(u"hcp_"_s, course.stroke_indexes, index_refusal), fault_of_total(course.yards)}) {
        if (!fault.isEmpty())
            return fault;
    }
    return {};
}

}  // namespace verdane
