#pragma once

#include <vector>

#include "store/Recordset.h"

namespace verdane {

/// The nineteen recordsets with their settings, in order.
const std::vector<recordset_settings>& catalogue();

/// The settings of the recordset of that name, which must be in the catalogue.
const recordset_settings& catalogue_entry(QStringView name);

}  // namespace verdane
