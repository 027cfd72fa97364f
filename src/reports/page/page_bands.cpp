#include "reports/page/page_bands.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextTable>

namespace verdane {

namespace {

/// The foot of a table with a repeated head: sum, mean and share, and the row above them.
constexpr int foot_rows = 4;

class band_finder {
public:
    explicit band_finder(const QTextDocument& document) : layout_(*document.documentLayout()) {}

    std::vector<page_band> find(const QTextFrame& root)
    {
        for (auto part = root.begin(); part != root.end(); ++part) {
            if (part.currentFrame() != nullptr)
                add_frame(*part.currentFrame());
            else
                add_block(part.currentBlock());
        }
        return std::move(bands_);
    }

private:
    void add(page_band band)
    {
        band.starts_page = break_is_pending_;
        break_is_pending_ = false;
        band.kept_bottom = qMax(band.kept_bottom, band.place.bottom);
        bands_.push_back(band);
    }

    void break_when(QTextFormat::PageBreakFlags flags, QTextFormat::PageBreakFlag place)
    {
        break_is_pending_ = break_is_pending_ || flags.testFlag(place);
    }

    void add_block(const QTextBlock& block)
    {
        const auto breaks = block.blockFormat().pageBreakPolicy();
        break_when(breaks, QTextFormat::PageBreak_AlwaysBefore);
        const double top = layout_.blockBoundingRect(block).top();
        for (int line = 0; line < block.layout()->lineCount() && block.length() > 1; ++line) {
            const QRectF place = block.layout()->lineAt(line).rect().translated(0, top);
            add({{place.top(), place.bottom()}, {}});
        }
        break_when(breaks, QTextFormat::PageBreak_AlwaysAfter);
    }

    void add_frame(QTextFrame& frame)
    {
        const auto breaks = frame.frameFormat().pageBreakPolicy();
        break_when(breaks, QTextFormat::PageBreak_AlwaysBefore);
        if (auto* table = qobject_cast<QTextTable*>(&frame))
            add_table(*table, table_place(*table));
        else
            add({strip_of(frame), {}});
        break_when(breaks, QTextFormat::PageBreak_AlwaysAfter);
    }

    void add_table(const QTextTable& table, const page_strip& place)
    {
        const int head_rows = table.format().headerRowCount();
        page_strip head;
        if (head_rows > 0 && head_rows < table.rows())
            head = {place.top, row_top(table, head_rows)};
        double top = place.top;
        for (int first = 0; first < table.rows();) {
            const int next = end_of_group(table, first, head_rows);
            const double bottom = next < table.rows() ? row_top(table, next) : place.bottom;
            const bool in_foot = head.height() > 0 && next > table.rows() - foot_rows;
            add({{top, bottom}, first == 0 ? page_strip() : head, false, in_foot ? place.bottom : bottom});
            first = next;
            top = bottom;
        }
    }

    /// The row after those that stay together with `first`: a head stays with its first row, and so do the
    /// rows of a cell that spans several.
    static int end_of_group(const QTextTable& table, int first, int head_rows)
    {
        int end = first == 0 && head_rows < table.rows() ? head_rows + 1 : first + 1;
        for (int row = first; row < end; ++row)
            for (int column = 0; column < table.columns(); ++column) {
                const QTextTableCell cell = table.cellAt(row, column);
                const int span = cell.rowSpan();
                if (span > 1)
                    end = qMax(end, cell.row() + span);
            }
        return qMin(end, table.rows());
    }

    page_strip strip_of(const QTextFrame& frame) const
    {
        const QRectF place = layout_.frameBoundingRect(const_cast<QTextFrame*>(&frame));
        return {place.top(), place.bottom()};
    }

    /// The toolkit returns the position of the text in the first cell as that of the table, which is too low
    /// if the cell is aligned at its bottom. Only the height is right.
    page_strip table_place(const QTextTable& table) const
    {
        const QTextTableFormat format = table.format();
        const double rim = format.borderCollapse() ? 0 : format.cellSpacing() + format.border();
        const double top = row_top(table, 0) - rim - format.padding() - format.topMargin();
        return {top, top + strip_of(table).height()};
    }

    /// The top of the uppermost cell that begins in a row, its padding included.
    double row_top(const QTextTable& table, int row) const
    {
        double top = strip_of(table).bottom;
        for (int column = 0; column < table.columns(); ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            if (cell.row() != row)
                continue;
            const QTextTableCellFormat format = cell.format().toTableCellFormat();
            top = qMin(top, content_top(cell) - format.topPadding() - format.topBorder());
            // The text of nearly every cell is at its top, so the first cell usually gives the result.
            if (is_at_top(cell, format))
                return top;
        }
        return top;
    }

    static bool is_at_top(const QTextTableCell& cell, const QTextTableCellFormat& format)
    {
        const bool aligned_at_top = format.verticalAlignment() == QTextCharFormat::AlignNormal ||
                                    format.verticalAlignment() == QTextCharFormat::AlignTop;
        const auto first = cell.begin();
        return aligned_at_top && first.currentFrame() == nullptr &&
               first.currentBlock().blockFormat().topMargin() == 0;
    }

    double content_top(const QTextTableCell& cell) const
    {
        const auto first = cell.begin();
        if (const auto* table = qobject_cast<const QTextTable*>(first.currentFrame()))
            return table_place(*table).top;
        if (first.currentFrame() != nullptr)
            return strip_of(*first.currentFrame()).top;
        return layout_.blockBoundingRect(first.currentBlock()).top();
    }

    const QAbstractTextDocumentLayout& layout_;
    std::vector<page_band> bands_;
    bool break_is_pending_ = false;
};

}  // namespace

std::vector<page_band> bands_of(const QTextDocument& document)
{
    return band_finder(document).find(*document.rootFrame());
}

}  // namespace verdane
