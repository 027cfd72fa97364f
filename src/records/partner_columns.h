#pragma once

/// Where a row of table `partners` holds what the lists of partners show, by ordinal.
namespace verdane::partner_columns {

constexpr int name = 0;
constexpr int surname = 1;
constexpr int code = 6;

}  // namespace verdane::partner_columns
