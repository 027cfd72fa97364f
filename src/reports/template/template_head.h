#pragma once

#include <QStringList>

#include "reports/template/template_file.h"

namespace verdane {

/// Reads the lines of a template's head into `target`. A line that starts with a blank goes on with
/// the one before; a line that starts with `#` is a remark. Fails with `report_template`.
void read_template_head(template_file& target, const QStringList& lines);

}  // namespace verdane
