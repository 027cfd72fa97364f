#pragma once

#include <QStringList>

#include <vector>

namespace verdane::testing {

/// Runs `verdane-store` and counts its system calls that change a file: write, rename, remove, cut, link.
int number_of_writes(const QStringList& arguments);

/// Runs `verdane-store` and kills it immediately before such a call, counted from 1. If there are fewer, the
/// program ends by itself.
void kill_before_write(const QStringList& arguments, int number);

/// Runs the program; files whose path has that ending cannot grow beyond that size, in bytes, and all others
/// can. Returns how many times the program changed such a file.
int run_without_space_for(const QStringList& arguments, const QString& ending, unsigned long bytes);

/// Runs the program. The files that were renamed before what was written to them had reached the disk, and
/// the folders of renamed files that did not reach the disk afterwards.
QStringList renames_before_content(const QStringList& arguments);

/// Numbers of writes from 1 to `all`: the first eight, the last eight and some between.
std::vector<int> some_writes(int all);

}  // namespace verdane::testing
