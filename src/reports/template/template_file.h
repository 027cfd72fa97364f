#pragma once

#include <QMarginsF>
#include <QPageSize>
#include <QString>
#include <QStringList>

#include <vector>

#include "reports/template/template_failure.h"

namespace verdane {

/// A named question to the store, as it stands in a template's head.
struct template_query {
    QString name;
    QString sql;
    int line = 1;
};

/// A report template as it was read: the head taken apart, the body as it stands.
struct template_file {
    QString file_name;

    QPageSize::PageSizeId paper = QPageSize::A4;
    bool landscape = false;
    /// Left, top, right, bottom, in millimetres.
    QMarginsF margins{15, 15, 15, 15};
    int margins_line = 1;

    /// The letters of the page: the first of these families that the machine has, in points.
    QStringList font_families{QStringLiteral("DejaVu Sans")};
    double font_points = 9;

    QString title;
    /// Printed below every page; may hold `{{page}}` and `{{pages}}`. Empty for none.
    QString footer;
    int footer_line = 1;

    /// The query whose rows a CSV file gets; the first one unless the head names another.
    QString csv_query;
    int csv_line = 1;
    QChar csv_separator{u','};

    std::vector<template_query> queries;

    QString body;
    int body_line = 1;

    template_place at(int line) const { return {file_name, line}; }
    const template_query* find_query(const QString& name) const;

    /// Width and height of a whole page as it is printed, in millimetres.
    QSizeF page_size_mm() const;
};

/// Reads a template. Fails with `report_template`, naming file and line, when the file cannot be
/// opened or is longer than `most_template_bytes`, a line of the head is not understood, the margins leave no
/// page, or the line `---` before the body is missing.
template_file read_template(const QString& path);

}  // namespace verdane
