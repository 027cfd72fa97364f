#include "scoring/course_checks.h"

#include "base/text.h"

namespace verdane {

namespace {

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

}  // namespace verdane
