#include "page_bands.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextTable>

namespace verdane {

namespace {

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
        band.starts_page = break_waits_;
        break_waits_ = false;
        bands_.push_back(band);
    }

    void break_when(QTextFormat::PageBreakFlags flags, QTextFormat::PageBreakFlag place)
    {
        break_waits_ = break_waits_ || flags.testFlag(place);
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
        const QRectF place = layout_.frameBoundingRect(&frame);
        if (auto* table = qobject_cast<QTextTable*>(&frame))
            add_table(*table, {place.top(), place.bottom()});
        else
            add({{place.top(), place.bottom()}, {}});
        break_when(breaks, QTextFormat::PageBreak_AlwaysAfter);
    }

    void add_table(const QTextTable& table, const page_strip& place)
    {
        const int head_rows = table.format().headerRowCount();
        page_strip head;
        if (head_rows > 0 && head_rows < table.rows())
            head = {place.top, row_top(table, head_rows)};
        for (int first = 0; first < table.rows();) {
            const int next = end_of_group(table, first, head_rows);
            const double top = first == 0 ? place.top : row_top(table, first);
            const double bottom = next < table.rows() ? row_top(table, next) : place.bottom;
            add({{top, bottom}, first == 0 ? page_strip() : head});
            first = next;
        }
    }

    /// The row behind those that stay together with `first`: the head keeps its first row, and a cell
    /// that reaches over several rows keeps them.
    static int end_of_group(const QTextTable& table, int first, int head_rows)
    {
        int end = first == 0 && head_rows < table.rows() ? head_rows + 1 : first + 1;
        for (int row = first; row < end; ++row)
            for (int column = 0; column < table.columns(); ++column) {
                const QTextTableCell cell = table.cellAt(row, column);
                end = qMax(end, cell.row() + cell.rowSpan());
            }
        return qMin(end, table.rows());
    }

    /// Where the uppermost cell that begins in a row begins, its padding included.
    double row_top(const QTextTable& table, int row) const
    {
        double top = layout_.frameBoundingRect(const_cast<QTextTable*>(&table)).bottom();
        for (int column = 0; column < table.columns(); ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            if (cell.row() != row)
                continue;
            const QTextTableCellFormat format = cell.format().toTableCellFormat();
            top = qMin(top, content_top(cell) - format.topPadding() - format.topBorder());
        }
        return top;
    }

    double content_top(const QTextTableCell& cell) const
    {
        const auto first = cell.begin();
        if (first.currentFrame() != nullptr)
            return layout_.frameBoundingRect(first.currentFrame()).top();
        return layout_.blockBoundingRect(first.currentBlock()).top();
    }

    const QAbstractTextDocumentLayout& layout_;
    std::vector<page_band> bands_;
    bool break_waits_ = false;
};

}  // namespace

std::vector<page_band> bands_of(const QTextDocument& document)
{
    return band_finder(document).find(*document.rootFrame());
}

}  // namespace verdane
