#include "reports/fill/template_fill.h"

#include <kainjow/mustache.hpp>

#include "reports/fill/template_scope.h"
#include "reports/template/page_limits.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

using kainjow::mustache::data;

/// The name that decides whether the section of a field is shown. Mustache has one value for a name, but a
/// field that is printed as 0 while its section is absent needs two.
QString condition_of(const QString& name)
{
    return name + u"?"_s;
}

bool is_shown(const QVariant& value)
{
    const QString text = printed_value(value);
    return !text.isEmpty() && text != u"0"_s;
}

/// The body with conditions in the sections of fields. Replaces the tags from the last to the first, so that
/// the positions of the earlier ones stay right.
QString with_conditions(QString body, const std::vector<template_tag>& tags, const template_scope& scope)
{
    std::vector<std::pair<template_tag, QString>> changes;
    for (const template_tag& tag : tags) {
        if (tag.kind != u' ' && !scope.is_query(tag.name))
            changes.emplace_back(tag, u"{{%1%2}}"_s.arg(tag.kind).arg(condition_of(tag.name)));
    }
    for (auto change = changes.rbegin(); change != changes.rend(); ++change)
        body.replace(change->first.start, change->first.length, change->second);
    return body;
}

void put_field(data& target, const QString& name, const QVariant& value)
{
    target.set(name.toStdString(), printed_value(value).toStdString());
    target.set(condition_of(name).toStdString(), data(is_shown(value)));
}

/// Collects the rows of the queries in all sections for Mustache, from the outer sections to the inner ones.
class data_builder {
public:
    data_builder(const template_file& source, const report_snapshot& snapshot)
        : source_(source), snapshot_(snapshot)
    {
    }

    data build(const std::vector<template_node>& nodes)
    {
        data root(data::type::object);
        put_field(root, u"title"_s, source_.title);
        put_queries(root, nodes, {});
        return root;
    }

private:
    void put_queries(data& target, const std::vector<template_node>& nodes, const report_parameters& around)
    {
        for (const template_node& node : nodes) {
            const template_query* query = source_.find_query(node.tag.name);
            if (node.tag.kind == u' ')
                continue;
            if (query == nullptr)
                put_queries(target, node.children, around);
            else
                put_rows(target, node, *query, around);
        }
    }

    void put_rows(data& target, const template_node& node, const template_query& query,
                  const report_parameters& around)
    {
        const report_rows found = snapshot_.rows(query, around);
        data list(data::type::list);
        for (const std::vector<QVariant>& row : found.rows) {
            count_row(node, row);
            list.push_back(row_data(node, found.columns, row, around));
        }
        target.set(query.name.toStdString(), list);
    }

    /// Rows inside rows multiply: a template of a few lines could fill the memory.
    void count_row(const template_node& node, const std::vector<QVariant>& row)
    {
        placed_characters_ += least_row + node.length + characters_in(row);
        if (placed_characters_ > most_placed_characters)
            fail_template(source_.at(node.tag.line),
                          u"the sections place more than %1 characters"_s.arg(most_placed_characters));
    }

    data row_data(const template_node& node, const QStringList& columns, const std::vector<QVariant>& row,
                  report_parameters around)
    {
        data result(data::type::object);
        for (qsizetype column = 0; column < columns.size(); ++column) {
            const QVariant& value = row[static_cast<std::size_t>(column)];
            put_field(result, columns[column], value);
            around[columns[column]] = value;
        }
        put_queries(result, node.children, around);
        return result;
    }

    /// The number of characters that is counted for a row without text.
    static constexpr qsizetype least_row = 100;

    const template_file& source_;
    const report_snapshot& snapshot_;
    qsizetype placed_characters_ = 0;
};

std::string escaped(const std::string& text)
{
    return QString::fromStdString(text).toHtmlEscaped().toStdString();
}

}  // namespace

QString printed_value(const QVariant& value)
{
    if (value.isNull())
        return {};
    if (value.typeId() == QMetaType::Double)
        return QString::number(value.toDouble(), 'g', 15);
    return value.toString();
}

QString fill_body(const template_file& source, const report_snapshot& snapshot)
{
    const std::vector<template_tag> tags = find_tags(source.body, source.at(source.body_line));
    const std::vector<template_node> nodes = tag_tree(tags, source.at(source.body_line));
    const template_scope scope(source, snapshot);
    scope.check(nodes);

    kainjow::mustache::mustache body(with_conditions(source.body, tags, scope).toStdString());
    if (!body.is_valid())
        fail_template(source.at(source.body_line), QString::fromStdString(body.error_message()));
    body.set_custom_escape(escaped);
    QString result = QString::fromStdString(body.render(data_builder(source, snapshot).build(nodes)));
    if (result.size() > most_page_characters)
        fail_template(source.at(source.body_line),
                      u"the filled body has more than %1 characters"_s.arg(most_page_characters));
    return result;
}

QString fill_footer(const template_file& source, int page, std::optional<int> pages)
{
    for (const template_tag& tag : find_tags(source.footer, source.footer_place))
        if (tag.name != u"page"_s && tag.name != u"pages"_s)
            fail_template({source.footer_place.file, tag.line}, u"no field %1 in a footer"_s.arg(tag.name));
    kainjow::mustache::mustache footer(source.footer.toStdString());
    data numbers(data::type::object);
    numbers.set("page", std::to_string(page));
    numbers.set("pages", pages ? std::to_string(*pages) : "…");
    return QString::fromStdString(footer.render(numbers));
}

}  // namespace verdane
