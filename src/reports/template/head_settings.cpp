#include "reports/template/head_settings.h"

#include <QRegularExpression>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

head_setting start_of_setting(const QString& text, const template_place& place)
{
    static const QRegularExpression form(u"^(\\w+)(?:\\s+(\\w+))?\\s*=\\s*(.*)$"_s);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        fail_template(place, u"not a setting: %1"_s.arg(text));
    return {match.captured(1), match.captured(2), match.captured(3), place};
}

bool continues_setting(const QString& text)
{
    return text.front().isSpace();
}

void add_line(std::vector<head_setting>& settings, const QString& text, const template_place& place)
{
    if (text.trimmed().isEmpty() || text.startsWith(u'#')) {
        if (!settings.empty())
            settings.back().value += u'\n';
    } else if (!continues_setting(text)) {
        settings.push_back(start_of_setting(text, place));
    } else if (settings.empty()) {
        fail_template(place, u"no setting to continue: %1"_s.arg(text));
    } else {
        settings.back().value += u'\n' + text;
    }
}

}  // namespace

head_settings split_head(const QString& file, const QStringList& lines)
{
    head_settings result;
    int line = 0;
    for (const QString& text : lines) {
        ++line;
        if (text.startsWith(u'[') && text.trimmed() == u"[words]" && result.words_line == 0)
            result.words_line = line;
        else
            add_line(result.words_line == 0 ? result.settings : result.words, text, {file, line});
    }
    return result;
}

}  // namespace verdane
