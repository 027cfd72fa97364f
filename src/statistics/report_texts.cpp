#include "statistics/report_texts.h"

#include "base/numbers.h"

namespace verdane {

namespace {

/// More characters do not fit into a column.
constexpr int most_characters = 5;

}  // namespace

QString count_text(int32 count)
{
    return plain_number_text(plain(count));
}

QString mean_text(double mean)
{
    return plain_number_text(mean).left(most_characters);
}

QString average_text(double mean)
{
    return number_text(mean).left(most_characters);
}

QString share_text(int16 part, int32 whole)
{
    const double percent = plain(part) * 100.0 / plain(whole);
    return QString(plain_number_text(percent) + u'%').left(most_characters);
}

}  // namespace verdane
