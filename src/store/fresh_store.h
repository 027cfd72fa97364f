#pragma once

namespace verdane {

class Connection1;

/// Creates every table of `schema`, its fixed rows and the indexes in one transaction. After a failure none
/// of them exists.
void create_tables(Connection1& connection);

}  // namespace verdane
