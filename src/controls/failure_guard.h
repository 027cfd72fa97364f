#pragma once

#include <exception>

#include "base/run_time_failure.h"

namespace verdane {

/// Shows the user what failed, in both languages until a language is set. Then discards every pending row,
/// closes the connection and ends the process with exit status 1. It does not return and does not unwind the
/// stack, so that no routine of an open window continues and commits after a failure.
[[noreturn]] void end_after_failure(const run_time_failure& failure);

/// Stores the failure if it is a loss of the connection to the store, which a routine has ignored; other
/// failures have no effect. For this header.
void note_ignored(const run_time_failure& failure);

/// Ends the program like `end_after_failure` if a loss was stored. For this header.
void end_if_store_is_lost();

/// Calls the routine of an event and handles its failure. Every event of a window is handled through this
/// function, because an exception must not pass through the toolkit.
template <typename Routine>
void run_event(Routine&& routine)
{
    try {
        routine();
        end_if_store_is_lost();
    } catch (const run_time_failure& failure) {
        end_after_failure(failure);
    } catch (const std::exception& failure) {
        end_after_failure({failure_kind::misuse, QString::fromUtf8(failure.what())});
    }
}

/// Calls a routine and ignores a failure. True if there was none. Only for the few routines that must always
/// finish; every other failure ends the program.
///
/// A lost connection is ignored until the event has been handled: its routine finishes (unlocks the menu, for
/// example), and then the program ends with that failure, because nothing can be stored any more.
template <typename Routine>
bool finishes_without_failure(Routine&& routine)
{
    try {
        routine();
        return true;
    } catch (const run_time_failure& failure) {
        note_ignored(failure);
        return false;
    }
}

/// True for a failure of a statement, a recordset or a file of the store; false for other failures, such as a
/// count beyond its range.
bool is_failure_of_store(failure_kind kind);

/// The same for failures of the store only. Other failures are thrown on.
template <typename Routine>
bool finishes_without_store_failure(Routine&& routine)
{
    try {
        routine();
        return true;
    } catch (const run_time_failure& failure) {
        if (!is_failure_of_store(failure.kind()))
            throw;
        note_ignored(failure);
        return false;
    }
}

}  // namespace verdane
