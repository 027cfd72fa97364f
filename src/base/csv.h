#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <vector>

/// Text files with values separated by commas (RFC 4180), in UTF-8.
namespace verdane {

struct csv_value {
    QString text;
    /// True if the value is between quotes. Empty: with quotes an empty text, without them no value.
    bool quoted = false;

    bool operator==(const csv_value&) const = default;
};

/// What makes a file unreadable.
enum class csv_fault {
    none,
    encoding,          ///< bytes that are not UTF-8
    quote_in_value,    ///< a quote within a value that does not begin with one
    text_after_quote,  ///< text between the closing quote and the next comma
    open_quote         ///< a quote that is not closed, or is closed on a later line with text after it
};

struct csv_record {
    /// The line of the file on which the record begins, from 1.
    int line = 0;
    std::vector<csv_value> values;
};

struct csv_content {
    /// Every record before the fault. An empty line is a record with one empty value.
    std::vector<csv_record> records;
    csv_fault fault = csv_fault::none;
    /// The line of the fault; for a fault of a quote, the line on which its value begins.
    int line = 0;
};

/// Reads a whole file. Lines end with LF, or with CR and LF; the last end may be missing. Line ends within
/// quotes are part of the value, a quote within them is doubled. A byte order mark at the start is skipped.
csv_content read_csv(const QByteArray& bytes);

/// A value between quotes.
QString csv_quoted(QStringView text);

}  // namespace verdane
