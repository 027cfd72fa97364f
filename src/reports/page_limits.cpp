#include "reports/page_limits.h"

namespace verdane {

bool is_printable_size(double points)
{
    return points >= least_font_points && points <= most_font_points;
}

QString unprintable_size(const QString& written)
{
    return QStringLiteral("a font has a size of %1 pt to %2 pt, not %3")
        .arg(least_font_points)
        .arg(most_font_points)
        .arg(written);
}

}  // namespace verdane
