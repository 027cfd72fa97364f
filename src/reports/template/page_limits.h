#pragma once

#include <QString>
#include <QStringView>

namespace verdane {

// Limits of a report. Each is far above what a page that a person reads needs, and low enough for the layout
// to finish within a few seconds.

constexpr int most_template_bytes = 1'000'000;

/// Width and height that the margins must leave of a page, in millimetres.
constexpr int least_page_mm = 20;
constexpr int most_pages = 1000;
/// Any length in a tag or a style, in millimetres.
constexpr int most_length_mm = 500;
/// The greatest height that a page could have, in millimetres, computed from its elements and characters.
constexpr int most_height_mm = 1'000'000;

constexpr double least_font_points = 1;
constexpr double most_font_points = 500;

/// Levels of nested sections in a template, and of nested elements and tables in a filled page. Each level of
/// tables doubles the time of the layout.
constexpr int most_nested_sections = 50;
constexpr int most_nested_elements = 50;
constexpr int most_nested_tables = 4;
/// The most columns or rows that one cell spans.
constexpr int most_spanned = 1000;

constexpr int most_rows_of_query = 10'000;
/// Characters in the rows of a query, and in the rows and sections that a body places, before empty sections
/// are left out.
constexpr int most_placed_characters = 10'000'000;
/// Characters of a filled body, its tags included, and of a text in it without a blank.
constexpr int most_page_characters = 1'000'000;
constexpr int most_unbroken_characters = 10'000;

/// A text of a report table is cut to this length, with "…" as its last character.
constexpr int most_text_characters = 1000;

/// False for sizes outside the limits, for NaN and for infinity.
bool is_printable_size(double points);

/// The message for a font size that is not printable, given as it is written.
QString size_refusal(const QString& written);

/// The message for an element or property that would load a file.
QString file_refusal(QStringView what);

}  // namespace verdane
