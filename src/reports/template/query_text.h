#pragma once

#include <QString>

#include <optional>

namespace verdane {

/// A statement with its string literals, quoted names and comments replaced by blanks. They contain no
/// parameters.
QString without_literals(QString sql);

/// The position of a name in double quotes that is no heading (after `as`). The engine takes such a name for
/// a text if there is no such column, so that a missing column would print its name.
std::optional<qsizetype> stray_quoted_name(const QString& sql);

}  // namespace verdane
