#pragma once

#include <QString>

namespace verdane {

/// Where a diary is: a file of the embedded engine, or a registered ODBC data source.
struct store_location {
    enum class place { file, source };

    place where = place::file;
    /// The path of the file, or the name of the source.
    QString name;

    static store_location file(const QString& path) { return {place::file, path}; }
    static store_location source(const QString& name) { return {place::source, name}; }

    bool operator==(const store_location&) const = default;
};

/// When the whole file is checked for damage: while it is opened, or later, when the caller calls
/// `check_soundness`, but before the first statement that writes. If the file has no table, or if opening
/// changes its journal mode, it is always checked while it is opened.
enum class soundness_check { while_opening, later };

}  // namespace verdane
