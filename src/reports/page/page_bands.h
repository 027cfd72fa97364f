#pragma once

#include <vector>

class QTextDocument;

namespace verdane {

/// A strip across a document laid out on one endless page, in its units.
struct page_strip {
    double top = 0;
    double bottom = 0;

    double height() const { return bottom - top; }
};

/// A strip that stays in one piece: a line of text, or a row of a table.
struct page_band {
    page_strip place;
    /// The head of the table that the row belongs to; its height is 0 for a line of text.
    page_strip head;
    bool starts_page = false;
    /// The lower end of the bands that should be on the same page as this one, if a page is tall enough.
    /// Without it, the foot of a table could be alone below its repeated head.
    double kept_bottom = 0;
};

/// The bands of a document from top to bottom, without empty ones.
std::vector<page_band> bands_of(const QTextDocument& document);

}  // namespace verdane
