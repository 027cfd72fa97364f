#include "reports/page/layout_units.h"

#include <QRegularExpression>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

double unit_size(const QString& unit)
{
    if (unit == u"mm"_s)
        return units_per_mm;
    return unit == u"pt"_s ? units_per_pt : 7.5;
}

const QRegularExpression& length_form()
{
    static const QRegularExpression form(u"(?<![\\w.#])(\\d*\\.?\\d+)(mm|pt|px)\\b"_s);
    return form;
}

/// The toolkit reads plain numbers in attributes and numbers with "px" in styles; both take "px".
QString lengths_replaced(const QString& markup)
{
    QString result;
    qsizetype copied = 0;
    auto matches = length_form().globalMatch(markup);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const double units = match.captured(1).toDouble() * unit_size(match.captured(2));
        const bool in_attribute =
            match.capturedStart() > 0 && QStringView(u"\"'").contains(markup[match.capturedStart() - 1]);
        result += QStringView(markup).sliced(copied, match.capturedStart() - copied);
        result += QString::number(qRound(units));
        if (!in_attribute)
            result += u"px"_s;
        copied = match.capturedEnd();
    }
    return result + QStringView(markup).sliced(copied);
}

}  // namespace

double length_in_units(const QString& text)
{
    const QRegularExpressionMatch match = length_form().match(text);
    if (!match.hasMatch() || match.capturedLength() != text.size())
        return -1;
    return match.captured(1).toDouble() * unit_size(match.captured(2));
}

QString with_layout_units(const QString& html)
{
    static const QRegularExpression markup(u"<style.*?</style>|<[a-zA-Z][^>]*>"_s,
                                           QRegularExpression::DotMatchesEverythingOption);
    QString result;
    qsizetype copied = 0;
    auto matches = markup.globalMatch(html);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        result += QStringView(html).sliced(copied, match.capturedStart() - copied);
        result += lengths_replaced(match.captured());
        copied = match.capturedEnd();
    }
    return result + QStringView(html).sliced(copied);
}

}  // namespace verdane
