#include "reports/template/template_head.h"

#include <QRectF>
#include <QRegularExpression>

#include <map>

#include "reports/template/page_limits.h"
#include "reports/template/query_text.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// One setting of the head: "word [name] = value", with the lines that go on with it.
struct head_setting {
    QString word;
    QString name;
    QString value;
    int line = 1;
};

using setting_reader = void (*)(template_file&, const head_setting&);

void read_page(template_file& target, const head_setting& setting)
{
    static const QRegularExpression form(u"^(A4|A5|Letter)\\s+(landscape|portrait)$"_s);
    const QRegularExpressionMatch match = form.match(setting.value);
    if (!match.hasMatch())
        fail_template(target.at(setting.line), u"page is A4, A5 or Letter, then landscape or portrait"_s);
    static const std::map<QString, QPageSize::PageSizeId> papers{
        {u"A4"_s, QPageSize::A4}, {u"A5"_s, QPageSize::A5}, {u"Letter"_s, QPageSize::Letter}};
    target.paper = papers.at(match.captured(1));
    target.landscape = match.captured(2) == u"landscape"_s;
}

void read_margins(template_file& target, const head_setting& setting)
{
    const QStringList parts = setting.value.split(u' ', Qt::SkipEmptyParts);
    std::vector<double> widths;
    for (const QString& part : parts) {
        bool is_number = false;
        const double width = part.toDouble(&is_number);
        if (is_number && width >= 0 && width < 100)
            widths.push_back(width);
    }
    if (parts.size() != 4 || widths.size() != 4)
        fail_template(target.at(setting.line),
                      u"margins are four numbers in millimetres: top right bottom left"_s);
    target.margins = QMarginsF(widths[3], widths[0], widths[1], widths[2]);
    target.margins_line = setting.line;
}

void read_font(template_file& target, const head_setting& setting)
{
    static const QRegularExpression form(u"^(\\d+(?:\\.\\d+)?)pt\\s+(\\S.*)$"_s);
    const QRegularExpressionMatch match = form.match(setting.value);
    if (!match.hasMatch())
        fail_template(target.at(setting.line),
                      u"font is a size in pt, then families with commas between them"_s);
    target.font_points = match.captured(1).toDouble();
    if (!is_printable_size(target.font_points))
        fail_template(target.at(setting.line), unprintable_size(match.captured(1) + u"pt"_s));
    target.font_families.clear();
    for (const QString& family : match.captured(2).split(u','))
        target.font_families.append(family.trimmed());
}

void read_title(template_file& target, const head_setting& setting)
{
    target.title = setting.value;
}

void read_footer(template_file& target, const head_setting& setting)
{
    target.footer = setting.value;
    target.footer_line = setting.line;
}

void read_csv(template_file& target, const head_setting& setting)
{
    if (setting.value.isEmpty())
        fail_template(target.at(setting.line), u"csv names no query"_s);
    target.csv_query = setting.value;
    target.csv_line = setting.line;
}

void read_csv_separator(template_file& target, const head_setting& setting)
{
    if (setting.value != u","_s && setting.value != u";"_s)
        fail_template(target.at(setting.line), u"csv_separator is , or ;"_s);
    target.csv_separator = setting.value.front();
}

void read_query(template_file& target, const head_setting& setting)
{
    if (setting.name.isEmpty())
        fail_template(target.at(setting.line), u"a query needs a name"_s);
    if (without_literals(setting.value).trimmed().isEmpty())
        fail_template(target.at(setting.line), u"query %1 is empty"_s.arg(setting.name));
    static const QRegularExpression long_repetition(u"%[-+ 0,#!\\d]*\\.(\\d{5,}|\\*)c"_s);
    if (setting.value.contains(long_repetition))
        fail_template(target.at(setting.line),
                      u"query %1: printf repeats a character at most 9999 times"_s.arg(setting.name));
    if (target.find_query(setting.name) != nullptr)
        fail_template(target.at(setting.line), u"there are two queries named %1"_s.arg(setting.name));
    target.queries.push_back({setting.name, setting.value, setting.line});
}

/// The value is as it stands in the file here, so that its lines can be counted.
void check_quoted_names(const template_file& target, const head_setting& setting)
{
    const auto stray = stray_quoted_name(setting.value);
    if (!stray)
        return;
    const auto lines_above = QStringView(setting.value).first(*stray).count(u'\n');
    const QString name = setting.value.sliced(*stray).section(u'"', 0, 1) + u'"';
    fail_template(target.at(setting.line + static_cast<int>(lines_above)),
                  u"query %1: %2 is quoted and no heading behind as; SQL takes it for a text"_s.arg(
                      setting.name, name));
}

setting_reader reader_of(const QString& word)
{
    static const std::map<QString, setting_reader> readers{
        {u"page"_s, read_page},     {u"margins"_s, read_margins}, {u"title"_s, read_title},
        {u"footer"_s, read_footer}, {u"csv"_s, read_csv},         {u"csv_separator"_s, read_csv_separator},
        {u"query"_s, read_query},   {u"font"_s, read_font},
    };
    const auto found = readers.find(word);
    return found == readers.end() ? nullptr : found->second;
}

head_setting start_of_setting(const template_file& target, const QString& text, int line)
{
    static const QRegularExpression form(u"^(\\w+)(?:\\s+(\\w+))?\\s*=\\s*(.*)$"_s);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        fail_template(target.at(line), u"not a setting: %1"_s.arg(text));
    return {match.captured(1), match.captured(2), match.captured(3), line};
}

bool goes_on(const QString& text)
{
    return !text.isEmpty() && text.front().isSpace();
}

std::vector<head_setting> settings_in(const template_file& target, const QStringList& lines)
{
    std::vector<head_setting> result;
    int number = 0;
    for (const QString& text : lines) {
        ++number;
        if (text.trimmed().isEmpty() || text.startsWith(u'#')) {
            if (!result.empty())
                result.back().value += u'\n';
            continue;
        }
        if (!goes_on(text))
            result.push_back(start_of_setting(target, text, number));
        else if (result.empty())
            fail_template(target.at(number), u"nothing to go on with: %1"_s.arg(text));
        else
            result.back().value += u"\n"_s + text;
    }
    return result;
}

/// The paper minus the margins. Margins that were never set fit every paper, so their line is known here.
void check_room(const template_file& target)
{
    const QSizeF room = QRectF(QPointF(), target.page_size_mm()).marginsRemoved(target.margins).size();
    if (qMin(room.width(), room.height()) < least_page_mm)
        fail_template(target.at(target.margins_line),
                      u"the margins leave %1 mm by %2 mm of the page; at least %3 mm by %3 mm "
                      u"must be left"_s.arg(qRound(room.width()))
                          .arg(qRound(room.height()))
                          .arg(least_page_mm));
}

void check_head(template_file& target)
{
    check_room(target);
    if (target.queries.empty())
        fail_template(target.at(1), u"the head names no query"_s);
    if (target.csv_query.isEmpty())
        target.csv_query = target.queries.front().name;
}

}  // namespace

void read_template_head(template_file& target, const QStringList& lines)
{
    for (head_setting& setting : settings_in(target, lines)) {
        const setting_reader read = reader_of(setting.word);
        if (read == nullptr)
            fail_template(target.at(setting.line), u"unknown setting %1"_s.arg(setting.word));
        if (read == read_query)
            check_quoted_names(target, setting);
        setting.value = setting.value.trimmed();
        read(target, setting);
    }
    check_head(target);
}

}  // namespace verdane
