#pragma once

#include <QString>

#include <utility>
#include <vector>

#include "reports/query/report_snapshot.h"
#include "reports/template/template_file.h"

namespace verdane {

/// A filled body with the line of the layout from which each of its characters comes.
struct lined_text {
    QString text;
    /// The position where the characters of a line start, and the line, in the order of the text. A line that
    /// a section repeats is there several times.
    std::vector<std::pair<qsizetype, int>> starts;

    int line_at(qsizetype position) const;
};

/// The same as `fill_body`, except for blanks around its sections.
lined_text fill_body_with_lines(const template_file& source, const report_snapshot& snapshot);

}  // namespace verdane
