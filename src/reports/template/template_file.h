#pragma once

#include <QMarginsF>
#include <QPageSize>
#include <QString>
#include <QStringList>

#include <vector>

namespace verdane {

/// A place in a template or a layout: the name of the file without its folder, and a line, from 1.
struct template_place {
    QString file;
    int line = 1;
};

/// Stops a report whose template is wrong: `run_time_failure` of the kind `report_template`, with
/// "file.rpt:LINE: message" as its details.
[[noreturn]] void fail_template(const template_place& place, const QString& message);

/// A named query of a template's head.
struct template_query {
    QString name;
    QString sql;
    int line = 1;
};

/// A report template as it was read. The tags of its words are replaced by the words.
struct template_file {
    /// Of the template, without its folder.
    QString file_name;
    /// Of the file with the page, the queries and the body: the layout, or the template itself.
    QString layout_name;

    QPageSize::PageSizeId paper = QPageSize::A4;
    bool landscape = false;
    /// Left, top, right, bottom, in millimetres.
    QMarginsF margins{15, 15, 15, 15};
    int margins_line = 1;

    /// The font of the page: the first of these families that the machine has, in points.
    QStringList font_families{QStringView(u"DejaVu Sans").toString()};
    double font_points = 9;

    QString title;
    /// Printed below every page; may contain `{{page}}` and `{{pages}}`. Empty for none.
    QString footer;
    template_place footer_place;

    /// The query whose rows a CSV file gets; the first one unless the head names another.
    QString csv_query;
    int csv_line = 1;
    QChar csv_separator{u','};

    std::vector<template_query> queries;

    QString body;
    int body_line = 1;

    /// A line of the layout.
    template_place at(int line) const { return {layout_name, line}; }
    const template_query* find_query(const QString& name) const;

    /// Width and height of a whole page as it is printed, in millimetres.
    QSizeF page_size_mm() const;
};

}  // namespace verdane
