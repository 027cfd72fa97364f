#pragma once

#include <QStringList>

namespace verdane {

/// Statements that fail unless the account may select, insert, update and delete rows of every table of the
/// store. The server prepares statements for them and never runs these, so nothing changes.
QStringList statements_that_need_rights();

}  // namespace verdane
