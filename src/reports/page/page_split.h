#pragma once

#include <QString>

namespace verdane {

/// The HTML of a report before its first page break, and the rest.
struct split_html {
    QString first;
    QString rest;
};

/// Splits HTML at the first paragraph or table that has `page-break-before: always` in its style and is
/// inside no other element. The rest begins with the style sheets that are before it; it is empty if there is
/// no such page break. Both laid out separately have the same pages as the whole.
split_html split_at_page_break(const QString& html);

}  // namespace verdane
