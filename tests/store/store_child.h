#pragma once

#include <QCoreApplication>
#include <QDate>
#include <QProcess>

#include <optional>

#include "base/run_time_failure.h"

namespace verdane::testing {

/// Exit status of `store_child`.
constexpr int child_broken = 99;
constexpr int child_failed = 100;

/// The day of the copy that it writes in the modes `copy_as_nobody`, `copy_on_full_disk` and
/// `copy_until_killed`.
const QDate day_of_child(2026, 6, 14);

/// Starts it from the folder of the test programs, on the store whose location has that name.
inline void start_child(QProcess& child, const QString& mode, const QString& store, int argument = 0)
{
    child.start(QCoreApplication::applicationDirPath() + u"/store_child",
                {mode, store, QString::number(argument)});
}

/// Runs it until it ends. Returns the kind of its failure, or nothing.
inline std::optional<failure_kind> child_failure(QProcess& child)
{
    if (!child.waitForFinished(120000) || child.exitStatus() != QProcess::NormalExit ||
        (child.exitCode() != 0 && child.exitCode() < child_failed))
        qFatal("store_child failed unexpectedly: %s", child.readAllStandardError().constData());
    if (child.exitCode() == 0)
        return std::nullopt;
    return static_cast<failure_kind>(child.exitCode() - child_failed);
}

}  // namespace verdane::testing
