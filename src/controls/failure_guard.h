#pragma once

#include <exception>

#include "base/run_time_failure.h"

namespace verdane {

/// Tells the user what failed, in plain words and in both languages while the language is not
/// settled; then drops every pending row, closes the connection and ends the process at once with
/// exit status 1. The windows that are open are not unwound: after a failure no routine goes on and
/// commits.
[[noreturn]] void end_after_failure(const run_time_failure& failure);

/// Runs what an event of a window asks for. This is the one place where failures are caught, so that
/// none is thrown through the toolkit's own frames.
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

/// Runs a routine that must always finish and says whether it went through. Only the few routines
/// that are laid down to ignore failures use it; every other failure ends the program.
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

/// True for what only the store brings about: a statement, a recordset or a file that does not do what it
/// was asked to. False for what the program worked out wrong, such as a count beyond its range.
bool is_failure_of_store(failure_kind kind);

/// The same for a routine that is laid down to end where the store fails, and there only.
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
