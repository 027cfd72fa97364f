#include "reports/fill/template_scope.h"

namespace verdane {

using namespace Qt::StringLiterals;

template_scope::template_scope(const template_file& source, const report_snapshot& snapshot) : source_(source)
{
    for (const template_query& query : source.queries)
        columns_[query.name] = snapshot.rows(query).columns;
    check_csv();
}

void template_scope::check_csv() const
{
    const template_query* query = source_.find_query(source_.csv_query);
    if (query == nullptr)
        fail_template(source_.at(source_.csv_line), u"no query %1"_s.arg(source_.csv_query));
    if (!report_snapshot::parameters_of(*query).isEmpty())
        fail_template(source_.at(query->line),
                      u"query %1 takes values from around it and cannot run alone"_s.arg(query->name));
}

void template_scope::check(const std::vector<template_node>& nodes) const
{
    check_nodes(nodes, {u"title"_s});
}

void template_scope::check_nodes(const std::vector<template_node>& nodes, const QStringList& fields) const
{
    for (const template_node& node : nodes) {
        if (node.tag.kind != u' ')
            check_section(node, fields);
        else if (!fields.contains(node.tag.name))
            fail_template(source_.at(node.tag.line), u"no field %1 here"_s.arg(node.tag.name));
    }
}

void template_scope::check_section(const template_node& node, const QStringList& fields) const
{
    const template_query* query = source_.find_query(node.tag.name);
    if (query == nullptr) {
        if (!fields.contains(node.tag.name))
            fail_template(source_.at(node.tag.line), u"no query or field %1 here"_s.arg(node.tag.name));
        check_nodes(node.children, fields);
        return;
    }
    for (const QString& parameter : report_snapshot::parameters_of(*query))
        if (!fields.contains(parameter))
            fail_template(source_.at(node.tag.line),
                          u"query %1 takes :%2 from the rows around it, and there is none"_s.arg(query->name,
                                                                                                 parameter));
    const bool has_row = node.tag.kind == u'#';
    check_nodes(node.children, has_row ? fields + columns_.at(query->name) : fields);
}

}  // namespace verdane
