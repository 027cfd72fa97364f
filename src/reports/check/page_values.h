#pragma once

#include "reports/check/page_check.h"

namespace verdane {

// What the texts, styles and attributes of a page may hold. Positions count from the start of the argument.

/// A word that is too long to be broken into lines.
std::optional<page_fault> fault_of_text(QStringView text);

/// A font size, length or file in a style sheet or a `style` attribute.
std::optional<page_fault> fault_of_style(QStringView style);

/// An attribute of `element`; drawings have units of their own.
std::optional<page_fault> fault_of_attribute(QStringView element, bool in_drawing, QStringView name,
                                             QStringView value);

/// The lengths that a style sheet or the value of an attribute gives, in millimetres.
struct length_range {
    double sum = 0;
    double longest = 0;
};
length_range lengths_in(QStringView text);

/// The words for an element or property that would load a file.
QString file_words(QStringView what);

}  // namespace verdane
