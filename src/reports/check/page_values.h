#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace verdane {

/// A fault in a filled page: something that the layout cannot handle, or a file that it must not load.
struct page_fault {
    /// The position of the faulty character, from 0.
    qsizetype position = 0;
    QString message;
};

// Each of these functions returns the first fault, if there is one. Positions count from the start of the
// argument.

/// A text without a blank that is too long to be broken into lines.
std::optional<page_fault> fault_of_text(QStringView text);

/// A font size, length or file in a style sheet or a `style` attribute.
std::optional<page_fault> fault_of_style(QStringView style);

/// A wrong value of an attribute of `element`; the units in a drawing are different.
std::optional<page_fault> fault_of_attribute(QStringView element, bool in_drawing, QStringView name,
                                             QStringView value);

/// The lengths that a style sheet or the value of an attribute gives, in millimetres.
struct length_range {
    double sum = 0;
    double longest = 0;
};
length_range lengths_in(QStringView text);

}  // namespace verdane
