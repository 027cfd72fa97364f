#pragma once

#include <QString>

#include <functional>

#include "base/language.h"
#include "store/store_location.h"
#include "transfer/exit_status.h"

/// What the commands print.
namespace verdane {

/// A line on standard output.
void print(const QString& line);

/// A line on the standard error output that refuses nothing.
void print_warning(const QString& line);

/// A number with its noun, which is in the plural from 2 on, and in English for 0, too.
QString counted(int number, const text_pair& one, const text_pair& several);

/// A line on the standard error output. Returns the status.
exit_status refuse(exit_status status, const QString& line);

/// Refuses a command line that a command does not understand.
exit_status refuse_usage();

/// Refuses to work on a store without a diary.
exit_status refuse_without_diary(const store_location& store);

/// True for a file that does not exist or is empty. Opening it would write to it.
bool is_empty_file(const store_location& store);

/// Runs a step; its failure is reported.
exit_status reported(const std::function<exit_status()>& step);

}  // namespace verdane
