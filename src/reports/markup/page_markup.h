#pragma once

#include <QString>
#include <QStringView>

#include <functional>
#include <initializer_list>
#include <optional>

namespace verdane {

enum class markup_kind { text, start_tag, end_tag, style_sheet };

/// A piece of HTML or SVG: the text between two tags, a tag with its brackets, or the content of a `<style>`
/// element. Comments are left out.
struct markup_piece {
    markup_kind kind = markup_kind::text;
    QStringView text;
    /// The position of its first character in the markup, from 0.
    qsizetype position = 0;
    /// The name of the element of a tag; empty for other pieces.
    QStringView name;

    bool is(QStringView element) const { return name.compare(element, Qt::CaseInsensitive) == 0; }
    /// Whether the start tag is also the end of its element (`<g/>`).
    bool is_empty_element() const { return text.endsWith(u"/>"); }
};

/// Whether a name is one of a list, in capital or small letters.
bool is_one_of(QStringView name, std::initializer_list<QStringView> names);

/// Splits markup as the reader of the toolkit does: a tag ends at the first `>` outside quotes, and a piece
/// that is not closed extends to the end.
class markup_reader {
public:
    /// `markup` must outlive the reader and its pieces.
    explicit markup_reader(QStringView markup) : markup_(markup) {}

    /// The next piece, or nothing at the end.
    std::optional<markup_piece> next();

private:
    std::optional<markup_piece> text_up_to(qsizetype end);
    markup_piece tag();
    bool skip_comment();

    QStringView markup_;
    qsizetype at_ = 0;
    bool in_style_sheet_ = false;
};

/// Calls `take` with the name, the value without its quotes, and the value's position in the tag, for each
/// attribute of a start tag that has a value.
void for_each_attribute(
    QStringView tag,
    const std::function<void(QStringView name, QStringView value, qsizetype position)>& take);

}  // namespace verdane
