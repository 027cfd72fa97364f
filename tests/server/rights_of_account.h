#pragma once

/// The rights of the program's account on the server of the test.
namespace verdane::testing {

/// Grants the rights of the program's account on each table instead of the whole database, because open
/// connections keep their rights on a whole database. To be called before the program starts.
void grant_rights_by_table();

/// Revokes the right to write from the account, also for the connections that are open.
void revoke_right_to_write();

/// Grants the rights on the whole database again.
void restore_rights();

}  // namespace verdane::testing
