#include "reports/template/template_head.h"

#include <QRectF>
#include <QRegularExpression>

#include <map>

#include "reports/template/page_limits.h"
#include "reports/template/query_text.h"
#include "reports/template/template_words.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

using setting_reader = void (*)(template_file&, const head_setting&);

void read_page(template_file& target, const head_setting& setting)
{
    static const QRegularExpression form(u"^(A4|A5|Letter)\\s+(landscape|portrait)$"_s);
    const QRegularExpressionMatch match = form.match(setting.value);
    if (!match.hasMatch())
        fail_template(setting.place, u"page is A4, A5 or Letter, then landscape or portrait"_s);
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
        fail_template(setting.place, u"margins are four numbers in millimetres: top right bottom left"_s);
    target.margins = QMarginsF(widths[3], widths[0], widths[1], widths[2]);
    target.margins_line = setting.place.line;
}

void read_font(template_file& target, const head_setting& setting)
{
    static const QRegularExpression form(u"^(\\d+(?:\\.\\d+)?)pt\\s+(\\S.*)$"_s);
    const QRegularExpressionMatch match = form.match(setting.value);
    if (!match.hasMatch())
        fail_template(setting.place, u"font is a size in pt, then families with commas between them"_s);
    target.font_points = match.captured(1).toDouble();
    if (!is_printable_size(target.font_points))
        fail_template(setting.place, size_refusal(match.captured(1) + u"pt"_s));
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
    target.footer_place = setting.place;
}

void read_layout(template_file& target, const head_setting& setting)
{
    // A name without a folder: a template loads nothing from elsewhere.
    static const QRegularExpression form(u"^\\w[\\w.-]*\\.layout$"_s);
    if (!form.match(setting.value).hasMatch())
        fail_template(setting.place,
                      u"layout is the name of a file in the folder of the template, which ends in .layout"_s);
    if (target.layout_name != target.file_name)
        fail_template(setting.place, u"a template has one layout"_s);
    target.layout_name = setting.value;
}

void read_csv(template_file& target, const head_setting& setting)
{
    if (setting.value.isEmpty())
        fail_template(setting.place, u"csv names no query"_s);
    target.csv_query = setting.value;
    target.csv_line = setting.place.line;
}

void read_csv_separator(template_file& target, const head_setting& setting)
{
    if (setting.value != u","_s && setting.value != u";"_s)
        fail_template(setting.place, u"csv_separator is , or ;"_s);
    target.csv_separator = setting.value.front();
}

void read_query(template_file& target, const head_setting& setting)
{
    if (setting.name.isEmpty())
        fail_template(setting.place, u"a query needs a name"_s);
    if (without_literals(setting.value).trimmed().isEmpty())
        fail_template(setting.place, u"query %1 is empty"_s.arg(setting.name));
    static const QRegularExpression long_repetition(u"%[-+ 0,#!\\d]*\\.(\\d{5,}|\\*)c"_s);
    if (setting.value.contains(long_repetition))
        fail_template(setting.place,
                      u"query %1: printf repeats a character at most 9999 times"_s.arg(setting.name));
    if (target.find_query(setting.name) != nullptr)
        fail_template(setting.place, u"there are two queries named %1"_s.arg(setting.name));
    target.queries.push_back({setting.name, setting.value, setting.place.line});
}

/// The value is as it is in the file, so that its lines can be counted.
void check_quoted_names(const head_setting& setting)
{
    const auto stray = stray_quoted_name(setting.value);
    if (!stray)
        return;
    template_place place = setting.place;
    place.line += static_cast<int>(QStringView(setting.value).first(*stray).count(u'\n'));
    const QString name = setting.value.sliced(*stray).section(u'"', 0, 1) + u'"';
    fail_template(place, u"query %1: %2 is quoted and is no heading after as; SQL reads it as a text"_s.arg(
                             setting.name, name));
}

/// What a setting does, and whether a template with a layout has it itself.
struct known_setting {
    setting_reader read;
    bool depends_on_language;
};

const known_setting& known(const head_setting& setting)
{
    static const std::map<QString, known_setting> all{
        {u"page"_s, {read_page, false}},    {u"margins"_s, {read_margins, false}},
        {u"font"_s, {read_font, false}},    {u"query"_s, {read_query, false}},
        {u"csv"_s, {read_csv, false}},      {u"title"_s, {read_title, true}},
        {u"footer"_s, {read_footer, true}}, {u"csv_separator"_s, {read_csv_separator, true}},
        {u"layout"_s, {read_layout, true}},
    };
    const auto found = all.find(setting.keyword);
    if (found == all.end())
        fail_template(setting.place, u"unknown setting %1"_s.arg(setting.keyword));
    return found->second;
}

void check_role(const head_setting& setting, const known_setting& what, head_role role)
{
    if (role == head_role::layout && what.read == read_layout)
        fail_template(setting.place, u"a layout names no other layout"_s);
    if (role == head_role::layout && what.depends_on_language)
        fail_template(setting.place,
                      u"%1 is a setting of the template, not of its layout"_s.arg(setting.keyword));
    if (role == head_role::template_with_layout && !what.depends_on_language)
        fail_template(setting.place,
                      u"%1 is a setting of the layout, not of the template"_s.arg(setting.keyword));
}

/// The paper minus the margins. The default margins fit every paper, so margins that do not fit have a line
/// in the file.
void check_printable_area(const template_file& target)
{
    const QSizeF area = QRectF(QPointF(), target.page_size_mm()).marginsRemoved(target.margins).size();
    if (qMin(area.width(), area.height()) < least_page_mm)
        fail_template(target.at(target.margins_line),
                      u"the margins leave %1 mm by %2 mm of the page; at least %3 mm by %3 mm "
                      u"must be left"_s.arg(qRound(area.width()))
                          .arg(qRound(area.height()))
                          .arg(least_page_mm));
}

}  // namespace

void read_settings(template_file& target, head_role role, const std::vector<head_setting>& settings,
                   template_words& words)
{
    for (head_setting setting : settings) {
        const known_setting& what = known(setting);
        check_role(setting, what, role);
        if (what.read == read_query) {
            setting.value = words.in_sql(setting.value, setting.place);
            check_quoted_names(setting);
        }
        setting.value = setting.value.trimmed();
        what.read(target, setting);
    }
}

void complete_settings(template_file& target)
{
    check_printable_area(target);
    if (target.queries.empty())
        fail_template(target.at(1), u"the head names no query"_s);
    if (target.csv_query.isEmpty())
        target.csv_query = target.queries.front().name;
}

}  // namespace verdane
