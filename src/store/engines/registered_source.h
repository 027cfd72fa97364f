#pragma once

#include <QString>

/// What is registered on this computer about an ODBC data source. The settings are read through the installer
/// library of the driver manager, which does not load the manager or a driver.
namespace verdane {

/// True if a source of that name is registered for the user or for the computer, even if it has no settings
/// or if the installer library is missing: it cannot be opened then, but the program must not use the file
/// instead. Fails with `source_driver` if a file of registered sources exists and cannot be read.
bool is_registered_source(const QString& name);

/// A setting of a registered source (`Driver`, `Database`); empty if there is none.
QString setting_of_source(const QString& name, const QString& setting);

}  // namespace verdane
