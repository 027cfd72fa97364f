#pragma once

#include <QString>

#include <functional>
#include <vector>

#include "reports/template/template_file.h"

namespace verdane {

/// One Mustache tag of a template's text.
struct template_tag {
    /// `#` opens a section, `^` one for the absence, `/` closes; a blank is a field.
    QChar kind{u' '};
    QString name;
    int line = 1;
    /// The position of the tag in the text, braces included.
    qsizetype start = 0;
    qsizetype length = 0;
};

/// The tags of a text whose first line is line `first_line` of its file, without comments. Fails
/// with `report_template` on a tag that is not closed and on tags that would print a value unescaped or
/// include another file.
std::vector<template_tag> find_tags(const QString& text, const template_place& first_line);

/// A section with the sections and fields inside it.
struct template_node {
    template_tag tag;
    std::vector<template_node> children;
    /// Of the section in the text, from its first tag to its last one; 0 for a field.
    qsizetype length = 0;
};

/// The tags as a tree. Fails with `report_template` on sections that do not close one another and on more
/// than `most_nested_sections` inside one another.
std::vector<template_node> tag_tree(const std::vector<template_tag>& tags, const template_place& place);

}  // namespace verdane
