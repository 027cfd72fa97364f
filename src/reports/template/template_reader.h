#pragma once

#include <QString>

#include "reports/template/template_file.h"

namespace verdane {

/// Reads a template and the layout that it names, which is in its folder. Fails with `report_template`,
/// naming file and line, when one of them cannot be opened or is longer than `most_template_bytes`, a line of
/// a head is not understood, the margins leave no page, the line `---` before the body is missing, or the
/// words are not those that the layout takes.
template_file read_template(const QString& path);

}  // namespace verdane
