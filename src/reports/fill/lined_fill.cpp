#include "reports/fill/lined_fill.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

#include "reports/fill/template_fill.h"
#include "reports/template/template_tags.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

// Two characters that no text uses enclose the number of a line.
constexpr QChar before_number{0xFDD0};
constexpr QChar after_number{0xFDD1};

bool is_inside_tag(const std::vector<template_tag>& tags, qsizetype position)
{
    return std::any_of(tags.begin(), tags.end(), [position](const template_tag& tag) {
        return position > tag.start && position < tag.start + tag.length;
    });
}

QString with_line_numbers(const template_file& source)
{
    const std::vector<template_tag> tags = find_tags(source.body, source.at(source.body_line));
    QString result;
    qsizetype position = 0;
    int line = source.body_line;
    for (const QString& text : source.body.split(u'\n')) {
        if (position > 0)
            result += u'\n';
        if (!is_inside_tag(tags, position))
            result += before_number + QString::number(line) + after_number;
        result += text;
        position += text.size() + 1;
        ++line;
    }
    return result;
}

lined_text without_line_numbers(const QString& marked)
{
    static const QRegularExpression mark(u"\uFDD0(\\d+)\uFDD1"_s);
    lined_text result;
    qsizetype copied = 0;
    auto matches = mark.globalMatch(marked);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        result.text += QStringView(marked).sliced(copied, match.capturedStart() - copied);
        result.starts.emplace_back(result.text.size(), match.captured(1).toInt());
        copied = match.capturedEnd();
    }
    result.text += QStringView(marked).sliced(copied);
    return result;
}

}  // namespace

int lined_text::line_at(qsizetype position) const
{
    const auto next = std::upper_bound(
        starts.begin(), starts.end(), position,
        [](qsizetype wanted, const std::pair<qsizetype, int>& start) { return wanted < start.first; });
    return next == starts.begin() ? 1 : std::prev(next)->second;
}

lined_text fill_body_with_lines(const template_file& source, const report_snapshot& snapshot)
{
    template_file marked = source;
    marked.body = with_line_numbers(source);
    return without_line_numbers(fill_body(marked, snapshot));
}

}  // namespace verdane
