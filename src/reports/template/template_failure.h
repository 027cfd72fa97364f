#pragma once

#include <QString>

namespace verdane {

/// A place in a template: the file's own name (without its folder) and a line, from 1.
struct template_place {
    QString file;
    int line = 1;
};

/// Stops a report whose template is wrong: `run_time_failure` of the kind `report_template`, with
/// "file.rpt:LINE: message" as its details.
[[noreturn]] void fail_template(const template_place& place, const QString& message);

}  // namespace verdane
