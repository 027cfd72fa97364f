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
    /// The arguments after the options, as the help shows them.
    text_pair arguments;
    /// One sentence that describes the command.
    text_pair words;
    /// An option and what it does; both empty if the command has fewer.
    struct option {
        QStringView name;
        text_pair words;
    };
    /// Each option requires those before it.
    std::array<option, 2> options;
    /// Runs the command with its arguments and the first of its options: none, one or two. Reports on
    /// standard output, and failures on the standard error output, in the current language.
    exit_status (*run)(const QStringList& arguments, int options);
};

/// `check STORE`: reports the problems of a diary. With the first option those that need no choice are
/// repaired, after a copy was made; with the second one, rounds are also made of shots without a round. The
/// status is `problems` while problems are left.
extern const command check_command;

/// `copy FROM TO`: copies a diary into an empty store and reports each table on standard output.
extern const command copy_command;

/// `restore COPY STORE`: puts a copy of a diary, the file `file:PATH`, in the place of the file of a diary
/// (`restore_copy`).
extern const command restore_command;

/// `courses FILE.csv STORE`: adds the courses of a file (`read_courses`) to a diary, in one commit. A course
/// that the diary has already is not changed.
extern const command courses_command;

/// `sample STORE`: writes an invented season (`write_sample_season`) into an empty store, in one commit.
extern const command sample_command;

/// `export STORE FOLDER`: writes every table to a CSV file (`table_csv.h`), and the list of them
/// (`table_list.h`), in a folder that is empty or does not exist. After a failure, or if the process ends
/// before, there are none of the files.
extern const command export_command;

/// `import FOLDER STORE`: reads these files (`table_reader.h`) into an empty store, in one commit. The status
/// is `problems` if the diary that was exported had any.
extern const command import_command;

/// `archive STORE DATE NEWSTORE`: moves the rounds before a day into a new file (`archived_rounds.h`). The
/// rounds are removed from the diary only after the file was written, read back and compared. A run that was
/// killed is completed by the next one.
extern const command archive_command;

/// All commands, in the order of the help.
std::span<const command> all_commands();

/// A command with its options and arguments, in the current language: "check [--repair] STORE".
QString synopsis(const command& shown);

/// The text of `--help` after the usage, in the current language.
QString help_text();

/// Runs the command that the first argument names.
exit_status run_command(QStringList arguments);

}  // namespace verdane
