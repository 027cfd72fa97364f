#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace verdane {

/// Something in a filled page that the layout cannot handle or may not do.
struct page_fault {
    /// Of a character in the page, from 0.
    qsizetype position = 0;
    QString message;
};

// What the texts, styles and attributes of a page may hold. Positions count from the start of the argument.

/// A text without a blank that is too long to be broken into lines.
std::optional<page_fault> fault_of_text(QStringView text);

/// A font size, length or file in a style sheet or a `style` attribute.
std::optional<page_fault> fault_of_style(QStringView style);

/// An attribute of `element`; drawings have other units.
std::optional<page_fault> fault_of_attribute(QStringView element, bool in_drawing, QStringView name,
                                             QStringView value);

/// The lengths that a style sheet or the value of an attribute gives, in millimetres.
struct length_range {
    double sum = 0;
    double longest = 0;
};
length_range lengths_in(QStringView text);

}  // namespace verdane
