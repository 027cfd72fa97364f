#include "reports/template/query_text.h"

#include <QRegularExpression>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// String literals, quoted names and comments. One that is not closed extends to the end.
const QRegularExpression& literal()
{
    static const QRegularExpression form(u"'[^']*('|$)|\"[^\"]*(\"|$)|--[^\\n]*|/\\*.*?(\\*/|$)"_s,
                                         QRegularExpression::DotMatchesEverythingOption);
    return form;
}

}  // namespace

QString without_literals(QString sql)
{
    return sql.replace(literal(), u" "_s);
}

std::optional<qsizetype> stray_quoted_name(const QString& sql)
{
    static const QRegularExpression after_as(u"\\bas\\s*$"_s, QRegularExpression::CaseInsensitiveOption);
    auto matches = literal().globalMatch(sql);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const qsizetype at = match.capturedStart();
        if (sql[at] == u'"' && !after_as.match(without_literals(sql.first(at))).hasMatch())
            return at;
    }
    return {};
}

}  // namespace verdane
