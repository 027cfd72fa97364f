#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

#include "base/csv.h"
#include "base/language.h"
#include "transfer/exit_status.h"

/// CSV files that a command reads, and the report of their faults.
namespace verdane {

/// A fault of a file, in the current language.
struct bad_line {
    QString file;
    /// From 1; 0 if the fault is not one of a line.
    int line = 0;
    QString reason;
};

using bad_lines = std::vector<bad_line>;

/// Whether empty lines are records.
enum class empty_lines { skip, read };

/// The bytes of a file. Without a value reading has failed; the reason is then the last of `faults`.
std::optional<QByteArray> read_file(const QString& path, bad_lines& faults);

/// The records in the bytes of a file. Without a value they cannot be read; the reason is then the last of
/// `faults`. Reading stops at the first fault of the form: quotes, and bytes that are not UTF-8.
std::optional<std::vector<csv_record>> records_of(const QByteArray& bytes, const QString& path,
                                                  bad_lines& faults, empty_lines empty = empty_lines::skip);

/// The records of a file. No value if the file cannot be read; the reason is then the last of `faults`.
std::optional<std::vector<csv_record>> read_csv_file(const QString& path, bad_lines& faults);

/// Reports every fault with file and line, and that nothing was changed. Returns `bad_file`.
exit_status refuse_lines(const bad_lines& faults);

}  // namespace verdane
