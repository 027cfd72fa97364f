#include "reports/template/page_limits.h"

namespace verdane {

using namespace Qt::StringLiterals;

bool is_printable_size(double points)
{
    return points >= least_font_points && points <= most_font_points;
}

QString size_refusal(const QString& written)
{
    return u"a font has a size of %1 pt to %2 pt, not %3"_s.arg(least_font_points)
        .arg(most_font_points)
        .arg(written);
}

QString file_refusal(QStringView what)
{
    return u"%1 would load a file, and a template loads none; a drawing is an svg in its body"_s.arg(what);
}

}  // namespace verdane
