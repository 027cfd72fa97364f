#include "reports/check/page_check.h"

#include "reports/fill/lined_fill.h"
#include "reports/markup/open_elements.h"
#include "reports/markup/page_markup.h"
#include "reports/page/layout_units.h"
#include "reports/template/page_limits.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr double mm_per_pt = 25.4 / 72;

/// Reads a page up to its first fault.
class fault_finder {
public:
    explicit fault_finder(double font_points) : line_mm_(font_points * mm_per_pt) {}

    std::optional<page_fault> find(QStringView html)
    {
        markup_reader reader(html);
        while (!fault_) {
            const auto piece = reader.next();
            if (!piece)
                break;
            check(*piece);
            check_height(*piece);
        }
        if (open_.is_in_drawing())
            report_fault({drawing_position_, u"a drawing is not closed"_s});
        return fault_;
    }

private:
    void check(const markup_piece& piece)
    {
        switch (piece.kind) {
        case markup_kind::text:
            report_fault(piece.position, fault_of_text(piece.text));
            break;
        case markup_kind::style_sheet:
            report_fault(piece.position, fault_of_style(piece.text));
            break;
        case markup_kind::end_tag:
            open_.close(piece.name);
            break;
        case markup_kind::start_tag:
            open_.open(piece);
            check_start(piece);
            break;
        }
    }

    void check_start(const markup_piece& tag)
    {
        if (open_.depth() > most_nested_elements)
            report_fault(
                {tag.position, u"elements are nested more than %1 deep"_s.arg(most_nested_elements)});
        if (tag.is(u"table") && open_.count(u"table") > most_nested_tables)
            report_fault({tag.position, u"tables are nested more than %1 deep"_s.arg(most_nested_tables)});
        const bool in_drawing = open_.is_in_drawing();
        if (tag.is(u"svg"))
            drawing_position_ = tag.position;
        if (!in_drawing && (tag.is(u"img") || tag.is(u"link")))
            report_fault({tag.position, file_refusal(tag.name)});
        if (in_drawing && !tag.is(u"svg") && !tag.text.contains(u"font-size") && !tag.text.contains(u"style"))
            return;
        for_each_attribute(tag.text, [&](QStringView name, QStringView value, qsizetype position) {
            report_fault(tag.position + position, fault_of_attribute(tag.name, in_drawing, name, value));
            add_height(name, value);
        });
    }

    /// What an attribute adds to the height: once, or in every cell of a table.
    void add_height(QStringView name, QStringView value)
    {
        if (is_one_of(name, {u"style", u"height", u"vspace"}))
            height_mm_ += lengths_in(value).sum;
        else if (is_one_of(name, {u"cellpadding", u"cellspacing", u"border"}))
            line_mm_ += lengths_in(value).sum;
    }

    /// Limits the height of the page by an upper bound: a line for every element and every second character.
    /// The layout of the toolkit does not terminate if a height exceeds the range of its numbers.
    void check_height(const markup_piece& piece)
    {
        if (piece.kind == markup_kind::text) {
            height_mm_ += static_cast<double>(piece.text.size()) / 2 * line_mm_;
        } else if (piece.kind == markup_kind::style_sheet) {
            line_mm_ = qMax(line_mm_, lengths_in(piece.text).longest);
        } else if (piece.kind == markup_kind::start_tag) {
            height_mm_ += line_mm_;
        }
        if (height_mm_ > most_height_mm)
            report_fault({piece.position, u"the page may be taller than %1 mm"_s.arg(most_height_mm)});
    }

    /// Only the first fault is kept. `found` counts its position from `start`.
    void report_fault(qsizetype start, const std::optional<page_fault>& found)
    {
        if (found)
            report_fault({start + found->position, found->message});
    }

    void report_fault(const page_fault& found)
    {
        if (!fault_)
            fault_ = found;
    }

    open_elements open_;
    qsizetype drawing_position_ = 0;
    /// The greatest height of a line, with the space around it, that the font, the style sheets and the
    /// tables up to here can cause.
    double line_mm_;
    double height_mm_ = 0;
    std::optional<page_fault> fault_;
};

}  // namespace

std::optional<page_fault> first_fault(QStringView html, double font_points)
{
    return fault_finder(font_points).find(html);
}

void check_page(const template_file& source, const report_snapshot& snapshot, const QString& html)
{
    const auto fault = first_fault(html, source.font_points);
    if (!fault)
        return;
    const lined_text lined = fill_body_with_lines(source, snapshot);
    const auto same_fault = first_fault(lined.text, source.font_points);
    const int line = same_fault ? lined.line_at(same_fault->position) : source.body_line;
    fail_template(source.at(line), fault->message);
}

}  // namespace verdane
