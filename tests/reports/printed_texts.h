#pragma once

#include <QString>

#include <vector>

namespace verdane {
class report_document;
}

namespace verdane::testing {

/// A run of letters as it is painted on a page, and the size of its font on paper in points.
struct printed_text {
    QString words;
    double points = 0;
};

/// Every text on every page of a report: in its HTML, in its drawings and below its pages.
std::vector<printed_text> printed_texts(const report_document& document);

}  // namespace verdane::testing
