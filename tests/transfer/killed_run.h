#pragma once

#include <QStringList>

#include <functional>
#include <optional>

namespace verdane::testing {

/// Runs `verdane-store` and counts its system calls that change a file or a folder: write, create, rename,
/// remove, cut, link.
int number_of_writes(const QStringList& arguments);

/// Runs `verdane-store` and kills it immediately before such a call, counted from 1. If there are fewer, the
/// program ends by itself.
void kill_before_write(const QStringList& arguments, int number);

/// Runs `verdane-store`, and calls the step immediately before each such call: the files are as after a kill
/// there. Returns the exit status; no value if the program did not end by itself.
std::optional<int> run_by_writes(const QStringList& arguments, const std::function<void()>& step);

struct limited_run {
    /// How many times the program changed a limited file.
    int writes = 0;
    /// No value if the program did not end by itself.
    std::optional<int> status;
};

/// Runs the program; files whose path has that ending cannot grow beyond that size, in bytes, and all others
/// can.
limited_run run_without_space_for(const QStringList& arguments, const QString& ending, unsigned long bytes);

/// What a system call does with the path of a file.
enum class file_use { open, remove, name };

/// Runs the program, and calls the step immediately before it opens a file whose path has that ending,
/// removes it, or renames another file to its path, for the first time. Returns the exit status. No value if
/// there was no such call, or if the program did not end by itself.
std::optional<int> run_with_step(const QStringList& arguments, file_use use, const QString& ending,
                                 const std::function<void()>& step);

/// Runs the program. The files that were renamed before what was written to them had reached the disk, and
/// the folders of renamed files and of new folders that did not reach the disk afterwards.
QStringList renames_before_content(const QStringList& arguments);

}  // namespace verdane::testing
