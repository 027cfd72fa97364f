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

/// The store that the program opens: the source of `Connection1::connection_string()` if it is registered,
/// otherwise the file at `Connection1::default_path()`.
store_location default_store();

}  // namespace verdane
