#include "reports/markup/page_markup.h"

#include <QRegularExpression>

#include <algorithm>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The position after the `>` that ends the tag at `start`.
qsizetype end_of_tag(QStringView markup, qsizetype start)
{
    QChar quote;
    bool value_follows = false;
    for (qsizetype at = start; at < markup.size(); ++at) {
        const QChar character = markup[at];
        if (!quote.isNull())
            quote = character == quote ? QChar() : quote;
        else if (character == u'>')
            return at + 1;
        else if (value_follows && (character == u'"' || character == u'\''))
            quote = character;
        if (!character.isSpace())
            value_follows = character == u'=';
    }
    return markup.size();
}

qsizetype end_of_name(QStringView tag, qsizetype start)
{
    while (start < tag.size() && (tag[start].isLetterOrNumber() || tag[start] == u'-' || tag[start] == u':'))
        ++start;
    return start;
}

bool starts_tag(QStringView markup, qsizetype at)
{
    if (at + 1 >= markup.size())
        return false;
    const QChar next = markup[at + 1];
    return next.isLetter() || next == u'/' || next == u'!' || next == u'?';
}

}  // namespace

bool is_one_of(QStringView name, std::initializer_list<QStringView> names)
{
    return std::any_of(names.begin(), names.end(),
                       [name](QStringView other) { return name.compare(other, Qt::CaseInsensitive) == 0; });
}

std::optional<markup_piece> markup_reader::next()
{
    while (at_ < markup_.size()) {
        if (in_style_sheet_) {
            in_style_sheet_ = false;
            const qsizetype end = markup_.indexOf(u"</style", at_, Qt::CaseInsensitive);
            auto sheet = text_up_to(end < 0 ? markup_.size() : end);
            if (sheet) {
                sheet->kind = markup_kind::style_sheet;
                return sheet;
            }
        }
        if (skip_comment())
            continue;
        if (starts_tag(markup_, at_) && markup_[at_] == u'<')
            return tag();
        qsizetype end = markup_.indexOf(u'<', at_);
        while (end >= 0 && !starts_tag(markup_, end))
            end = markup_.indexOf(u'<', end + 1);
        return text_up_to(end < 0 ? markup_.size() : end);
    }
    return {};
}

std::optional<markup_piece> markup_reader::text_up_to(qsizetype end)
{
    if (end <= at_)
        return {};
    const markup_piece piece{markup_kind::text, markup_.sliced(at_, end - at_), at_, {}};
    at_ = end;
    return piece;
}

markup_piece markup_reader::tag()
{
    const qsizetype end = end_of_tag(markup_, at_);
    markup_piece piece{markup_kind::start_tag, markup_.sliced(at_, end - at_), at_, {}};
    qsizetype name = 1;
    if (piece.text.size() > 1 && piece.text[1] == u'/') {
        piece.kind = markup_kind::end_tag;
        name = 2;
    }
    piece.name = piece.text.sliced(name, end_of_name(piece.text, name) - name);
    in_style_sheet_ = piece.kind == markup_kind::start_tag && piece.is(u"style") && !piece.is_empty_element();
    at_ = end;
    return piece;
}

bool markup_reader::skip_comment()
{
    if (!markup_.sliced(at_).startsWith(u"<!--"))
        return false;
    const qsizetype end = markup_.indexOf(u"-->", at_ + 4);
    at_ = end < 0 ? markup_.size() : end + 3;
    return true;
}

void for_each_attribute(
    QStringView tag, const std::function<void(QStringView name, QStringView value, qsizetype position)>& take)
{
    static const QRegularExpression form(
        u"([\\w:-]+)\\s*=\\s*(?:\"([^\"]*)(?:\"|$)|'([^']*)(?:'|$)|([^\\s\"'>]+))"_s);
    if (!tag.contains(u'='))
        return;
    auto matches = form.globalMatch(tag.toString());
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const int group = match.lastCapturedIndex();
        take(match.capturedView(1), match.capturedView(group), match.capturedStart(group));
    }
}

}  // namespace verdane
