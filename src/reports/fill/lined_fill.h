#pragma once

#include <QString>

#include <utility>
#include <vector>

#include "reports/query/report_snapshot.h"
#include "reports/template/template_file.h"

namespace verdane {

/// A filled body that knows the line of the template that each of its characters comes from.
struct lined_text {
    QString text;
    /// Where the characters of a line start, in the order of the text; a line may come several times.
    std::vector<std::pair<qsizetype, int>> starts;

    int line_at(qsizetype position) const;
};

/// The same as `fill_body`, but for blanks around its sections.
lined_text fill_body_with_lines(const template_file& source, const report_snapshot& snapshot);

}  // namespace verdane
