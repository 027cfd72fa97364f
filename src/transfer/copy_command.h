#pragma once

#include <QStringList>

/// The commands of the program `verdane-store`.
namespace verdane {

/// The exit status of the program.
enum class exit_status {
    done = 0,
    failed = 1,     ///< a store could not be read or written; the target is as it was
    usage = 2,      ///< a wrong command line
    not_empty = 3,  ///< the target has rows; nothing was changed
    in_use = 4,     ///< another program uses one of the stores; nothing was changed
    no_diary = 5    ///< there is no diary to copy; nothing was changed
};

/// `copy FROM TO`: copies a diary into an empty store and reports each table on standard output. Failures are
/// reported on the standard error output, in the current language.
exit_status run_copy(const QStringList& arguments);

}  // namespace verdane
