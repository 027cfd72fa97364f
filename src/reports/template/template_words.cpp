#include "reports/template/template_words.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

#include "reports/template/page_limits.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString text_of(const QString& value)
{
    QStringList parts;
    for (const QString& line : value.split(u'\n'))
        if (!line.trimmed().isEmpty())
            parts.append(line.trimmed());
    const QString text = parts.join(u' ');
    const bool is_quoted = text.size() > 1 && text.startsWith(u'"') && text.endsWith(u'"');
    return is_quoted ? text.sliced(1, text.size() - 2) : text;
}

/// Braces are escaped, too: a word must not open a tag.
QString html_form(const QString& text)
{
    return text.toHtmlEscaped().replace(u"&lt;br&gt;"_s, u"<br>"_s).replace(u'{', u"&#123;"_s);
}

QString sql_form(const QString& text)
{
    return u'\'' + QString(text).replace(u'\'', u"''"_s) + u'\'';
}

}  // namespace

template_words::template_words(QString file, const std::vector<head_setting>& settings)
    : file_(std::move(file))
{
    for (const head_setting& setting : settings) {
        if (!setting.name.isEmpty())
            fail_template(setting.place,
                          u"the name of a word has no blank: %1 %2"_s.arg(setting.keyword, setting.name));
        if (!words_.emplace(setting.keyword, word{text_of(setting.value), setting.place}).second)
            fail_template(setting.place, u"there are two words named %1"_s.arg(setting.keyword));
    }
}

QString template_words::in_html(const QString& html, const template_place& place)
{
    return placed(html, place, html_form);
}

QString template_words::in_sql(const QString& sql, const template_place& place)
{
    return placed(sql, place, sql_form);
}

QString template_words::placed(const QString& text, template_place place, QString (*form)(const QString&))
{
    // Three braces are left to the check of the tags, which refuses them.
    static const QRegularExpression tag(u"(?<!\\{)\\{\\{\\s*words\\.(\\w+)\\s*\\}\\}(?!\\})"_s);
    QString result;
    qsizetype copied = 0;
    auto matches = tag.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const QStringView before = QStringView(text).sliced(copied, match.capturedStart() - copied);
        place.line += static_cast<int>(before.count(u'\n'));
        result += before + form(take(match.captured(1), place));
        if (result.size() > most_template_bytes)
            fail_template(
                place, u"with its words the layout is longer than %1 characters"_s.arg(most_template_bytes));
        place.line += static_cast<int>(match.capturedView().count(u'\n'));
        copied = match.capturedEnd();
    }
    return result + QStringView(text).sliced(copied);
}

const QString& template_words::take(const QString& name, const template_place& place)
{
    const auto found = words_.find(name);
    if (found == words_.end())
        fail_template(place, u"no word %1 in %2"_s.arg(name, file_));
    found->second.is_used = true;
    return found->second.text;
}

void template_words::check_all_used(const QString& layout) const
{
    const word* first = nullptr;
    QString name;
    for (const auto& [its_name, candidate] : words_)
        if (!candidate.is_used && (first == nullptr || candidate.place.line < first->place.line)) {
            first = &candidate;
            name = its_name;
        }
    if (first != nullptr)
        fail_template(first->place, u"%1 has no {{words.%2}}"_s.arg(layout, name));
}

}  // namespace verdane
