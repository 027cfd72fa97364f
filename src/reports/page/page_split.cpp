#include "reports/page/page_split.h"

#include <QRegularExpression>

#include "reports/markup/open_elements.h"
#include "reports/markup/page_markup.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

bool starts_page(const markup_piece& start_tag)
{
    static const QRegularExpression page_break(u"\\bpage-break-before\\s*:\\s*always\\b"_s,
                                               QRegularExpression::CaseInsensitiveOption);
    if (!is_one_of(start_tag.name, {u"p", u"table"}))
        return false;
    bool found = false;
    for_each_attribute(start_tag.text, [&found](QStringView name, QStringView value, qsizetype) {
        found = found || (is_one_of(name, {u"style"}) && page_break.match(value.toString()).hasMatch());
    });
    return found;
}

}  // namespace

split_html split_at_page_break(const QString& html)
{
    QString styles;
    open_elements open;
    markup_reader reader(html);
    while (const auto piece = reader.next()) {
        if (piece->kind == markup_kind::style_sheet)
            styles += u"<style>" + piece->text + u"</style>";
        else if (piece->kind == markup_kind::end_tag)
            open.close(piece->name);
        if (piece->kind != markup_kind::start_tag)
            continue;
        open.open(*piece);
        if (open.depth() == 1 && starts_page(*piece))
            return {html.first(piece->position), styles + QStringView(html).sliced(piece->position)};
    }
    return {html, {}};
}

}  // namespace verdane
