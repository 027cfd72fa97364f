#pragma once

#include <vector>

#include "page_cuts.h"

class QTextDocument;

namespace verdane {

/// A strip that stays in one piece: a line of text, or a row of a table.
struct page_band {
    page_strip place;
    /// The head of the table that the row belongs to; of no height for anything else.
    page_strip head;
    bool starts_page = false;
};

/// The bands of a document from top to bottom, without those that hold nothing.
std::vector<page_band> bands_of(const QTextDocument& document);

}  // namespace verdane
