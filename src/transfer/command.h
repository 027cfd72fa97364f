#pragma once

#include <QStringList>

#include <array>
#include <span>

#include "base/language.h"
#include "transfer/exit_status.h"

/// The commands of the program `verdane-store`.
namespace verdane {

struct command {
    QStringView name;
    /// The arguments as the help shows them.
    text_pair arguments;
    /// One sentence that describes the command.
    text_pair words;
    /// An option and what it does; both empty if the command has none.
    struct option {
        QStringView name;
        text_pair words;
    };
    std::array<option, 2> options;
    /// Runs the command with its arguments and the options that were given, in any order. Reports on standard
    /// output, and failures on the standard error output, in the current language.
    exit_status (*run)(const QStringList& arguments);
};

/// All commands, in the order of the help.
std::span<const command> all_commands();

/// The text of `--help` after the usage, in the current language.
QString help_text();

/// Runs the command that the first argument names.
exit_status run_command(QStringList arguments);

}  // namespace verdane
