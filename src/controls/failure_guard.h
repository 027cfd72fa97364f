#pragma once

#include <exception>

#include "base/run_time_failure.h"

namespace verdane {

/// Shows the user what failed, in both languages until a language is set. Then discards every pending row,
/// closes the connection and ends the process with exit status 1. It does not return and does not unwind the
/// stack, so that no routine of an open window continues and commits after a failure.
[[noreturn]] void end_after_failure(const run_time_failure& failure);

/// Calls the routine of an event and handles its failure. Every event of a window is handled through this
/// function, because an exception must not pass through the toolkit.
template <typename Routine>
void run_event(Routine&& routine)
{
    try {
        routine();
    } catch (const run_time_failure& failure) {
        end_after_failure(failure);
    } catch (const std::exception& failure) {
        end_after_failure({failure_kind::misuse, QString::fromUtf8(failure.what())});
    }
}

/// Calls a routine and ignores a failure. True if there was none. Only for the few routines that must always
/// finish; every other failure ends the program.
template <typename Routine>
bool finishes_without_failure(Routine&& routine)
{
    try {
        routine();
        return true;
    } catch (const run_time_failure&) {
        return false;
    }
}

/// True for a failure of a statement, a recordset or a file of the store; false for other failures, such as a
/// count beyond its range.
bool is_failure_of_store(failure_kind kind);

/// Calls a routine and ignores a failure of the store. True if there was none. Other failures are thrown on.
template <typename Routine>
bool finishes_without_store_failure(Routine&& routine)
{
    try {
        routine();
        return true;
    } catch (const run_time_failure& failure) {
        if (!is_failure_of_store(failure.kind()))
            throw;
        return false;
    }
}

}  // namespace verdane
