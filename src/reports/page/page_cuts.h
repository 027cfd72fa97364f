#pragma once

#include <vector>

#include "reports/page/page_bands.h"
#include "reports/template/template_file.h"

class QTextDocument;

namespace verdane {

/// The content of one page: the repeated table head, and the strip of the document below it.
struct page_cut {
    page_strip repeated_head;
    page_strip body;
};

/// Cuts a document into pages of a height. A cut is between two lines or two rows of a table, never inside
/// one. Rows that a cell spans stay together, and so does a table's head with its first row and, if the head
/// is repeated, the table's foot with its last row. Only what is taller than a whole page is cut at the end
/// of the page. There is no page without a line or row. Fails with `report_template`, at `place`, if these
/// pages and the `pages_before` are more than `most_pages`, whatever the height.
std::vector<page_cut> cut_into_pages(const QTextDocument& document, double page_height,
                                     const template_place& place, int pages_before = 0);

}  // namespace verdane
