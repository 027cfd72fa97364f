#pragma once

#include <QDate>
#include <QString>

namespace verdane {

/// Writes the copy of a day of the embedded store (`copy_days.h`), unless the day has a sound one already,
/// and removes the copies that are not kept. Returns true if it has written one. Other connections can read
/// and write the store meanwhile, so this can run in a thread of its own. The copy has all commits up to one
/// moment during the call. It gets its name after it was checked. Fails with `store_read_only`, `store_full`,
/// `store_damaged` or another failure of the engine, and then leaves the copies as they were.
bool write_dated_copy(const QString& store, QDate day);

}  // namespace verdane
