#pragma once

#include <QByteArray>
#include <QChar>

#include "reports/report_store.h"

namespace verdane {

/// Rows as the bytes of a CSV file: UTF-8 with its mark, lines that end as RFC 4180 says, fields
/// between quotes where they hold a separator, a quote or a line's end. With `;` as separator,
/// numbers take a decimal comma.
QByteArray csv_text(const report_rows& rows, QChar separator);

}  // namespace verdane
