#pragma once

#include <QString>

#include <optional>

namespace verdane {

/// A statement with blanks for its texts, quoted names and remarks: what is left of them holds no
/// parameter.
QString without_literals(QString sql);

/// Where a name in double quotes stands that is no heading (behind `as`). The engine takes such a name for
/// a text when there is no such column, so that a column that is missing would print its own name.
std::optional<qsizetype> stray_quoted_name(const QString& sql);

}  // namespace verdane
