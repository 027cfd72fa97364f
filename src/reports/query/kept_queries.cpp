#include "reports/query/kept_queries.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

#include "reports/template/query_text.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

bool has_word(const QString& sql, const QString& words)
{
    const QRegularExpression form(u"\\b(%1)\\b"_s.arg(words), QRegularExpression::CaseInsensitiveOption);
    return form.match(sql).hasMatch();
}

}  // namespace

bool may_be_kept(const template_query& query, const QStringList& columns)
{
    QSet<QString> names;
    for (const QString& column : columns)
        names.insert(column.toLower());
    return names.size() == columns.size() &&
           !has_word(without_literals(query.sql), u"union|intersect|except|values"_s);
}

bool is_named_below(const template_file& source, const template_query& query)
{
    const auto here = std::find_if(source.queries.begin(), source.queries.end(),
                                   [&query](const template_query& each) { return each.name == query.name; });
    return here != source.queries.end() &&
           std::any_of(std::next(here), source.queries.end(), [&query](const template_query& below) {
               return has_word(below.sql, QRegularExpression::escape(query.name));
           });
}

}  // namespace verdane
