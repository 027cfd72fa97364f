#pragma once

#include <QDate>
#include <QString>

#include <vector>

/// The names of the copies of the embedded store, one for each day, and which of them are kept. The copy of
/// `Verdbase.db` is `copies/Verdbase-YYYY-MM-DD.db` in its folder. `store` is the path of the file.
namespace verdane {

/// For how many days, today included, every copy is kept.
constexpr int days_with_every_copy = 30;
/// How many of the newest copies are kept whatever their age: the clock may be wrong.
constexpr int newest_copies_kept = 30;

QString folder_of_copies(const QString& store);
QString path_of_copy(const QString& store, QDate day);

/// The days that have a copy with content, in ascending order.
std::vector<QDate> days_of_copies(const QString& store);

/// The days of `days` whose copies are removed: those before the last `days_with_every_copy` days, except the
/// last one of each month and the `newest_copies_kept` last ones. Copies of days after today are kept. `days`
/// may be in any order; the result is in ascending order.
std::vector<QDate> days_to_remove(std::vector<QDate> days, QDate today);

}  // namespace verdane
