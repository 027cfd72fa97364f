#pragma once

#include <QStringList>

#include <map>
#include <vector>

#include "reports/query/report_snapshot.h"
#include "reports/template/template_tags.h"

namespace verdane {

/// What a template may name and where: queries anywhere, the columns of a query inside its section.
class template_scope {
public:
    /// Runs every query for its columns, so that a query that does not run fails even if nothing prints it.
    template_scope(const template_file& source, const report_snapshot& snapshot);

    bool is_query(const QString& name) const { return columns_.contains(name); }

    /// Fails with `report_template`, at the tag's line, on a name that does not exist at its place.
    void check(const std::vector<template_node>& nodes) const;

private:
    void check_nodes(const std::vector<template_node>& nodes, const QStringList& fields) const;
    void check_section(const template_node& node, const QStringList& fields) const;
    void check_csv() const;

    const template_file& source_;
    std::map<QString, QStringList> columns_;
};

}  // namespace verdane
