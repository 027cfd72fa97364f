#include "reports/template/template_tags.h"

#include <QRegularExpression>

#include <iterator>

#include "reports/template/page_limits.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

template_tag read_tag(const QString& inside, const template_place& place)
{
    static const QRegularExpression form(u"^\\s*([#^/]?)\\s*([A-Za-z_]\\w*)\\s*$"_s);
    const QRegularExpressionMatch match = form.match(inside);
    if (!match.hasMatch())
        fail_template(place, u"not a field or section: {{%1}}"_s.arg(inside));
    const QString kind = match.captured(1);
    return {kind.isEmpty() ? QChar(u' ') : kind.front(), match.captured(2), place.line};
}

bool is_comment(const QString& inside)
{
    return inside.startsWith(u'!');
}

class tree_builder {
public:
    explicit tree_builder(QString file) : file_(std::move(file)) {}

    std::vector<template_node> build(const std::vector<template_tag>& tags)
    {
        next_ = tags.begin();
        end_ = tags.end();
        std::vector<template_node> result = nodes(nullptr);
        return result;
    }

private:
    std::vector<template_node> nodes(const template_tag* around)
    {
        std::vector<template_node> result;
        while (next_ != end_) {
            const template_tag& tag = *next_++;
            if (tag.kind == u'/') {
                check_end(tag, around);
                return result;
            }
            result.push_back({tag, {}});
            if (tag.kind != u' ')
                add_section(result.back(), tag);
        }
        if (around != nullptr)
            fail_template({file_, around->line}, u"section %1 is not closed"_s.arg(around->name));
        return result;
    }

    void add_section(template_node& node, const template_tag& tag)
    {
        if (++depth_ > most_nested_sections)
            fail_template({file_, tag.line},
                          u"sections are nested more than %1 deep"_s.arg(most_nested_sections));
        node.children = nodes(&tag);
        --depth_;
        const template_tag& end = *std::prev(next_);
        node.length = end.start + end.length - tag.start;
    }

    void check_end(const template_tag& tag, const template_tag* around) const
    {
        if (around == nullptr)
            fail_template({file_, tag.line}, u"section %1 is closed and was not opened"_s.arg(tag.name));
        if (around->name != tag.name)
            fail_template({file_, tag.line},
                          u"section %1 is closed inside section %2"_s.arg(tag.name, around->name));
    }

    QString file_;
    std::vector<template_tag>::const_iterator next_;
    std::vector<template_tag>::const_iterator end_;
    int depth_ = 0;
};

}  // namespace

std::vector<template_tag> find_tags(const QString& text, const template_place& first_line)
{
    std::vector<template_tag> result;
    template_place place = first_line;
    qsizetype counted = 0;
    for (qsizetype start = text.indexOf(u"{{"_s); start >= 0; start = text.indexOf(u"{{"_s, counted)) {
        place.line += static_cast<int>(QStringView(text).sliced(counted, start - counted).count(u'\n'));
        const qsizetype end = text.indexOf(u"}}"_s, start);
        if (end < 0)
            fail_template(place, u"a tag {{ is not closed"_s);
        const QString inside = text.sliced(start + 2, end - start - 2);
        if (!is_comment(inside)) {
            result.push_back(read_tag(inside, place));
            result.back().start = start;
            result.back().length = end + 2 - start;
        }
        place.line += static_cast<int>(inside.count(u'\n'));
        counted = end + 2;
    }
    return result;
}

std::vector<template_node> tag_tree(const std::vector<template_tag>& tags, const template_place& place)
{
    return tree_builder(place.file).build(tags);
}

}  // namespace verdane
