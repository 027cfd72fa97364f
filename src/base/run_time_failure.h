#pragma once

#include <QString>

#include <exception>
#include <string>

#include "base/language.h"

namespace verdane {

/// What went wrong, in the classes that a user can be told apart.
enum class failure_kind {
    overflow,           ///< a count or an amount left its 16 or 32 bits
    subscript,          ///< an index outside a list of fixed length
    invalid_null,       ///< a value was needed where the store has none
    bad_number,         ///< a text that had to be a number is none
    misuse,             ///< an operation that the recordset's state does not allow
    missing_table,      ///< a table or column that the store should have
    store_locked,       ///< another program holds the store
    store_read_only,    ///< the file or its folder cannot be written
    store_damaged,      ///< the file is no store or is broken
    store_full,         ///< no room on the disk
    store_unreachable,  ///< the file or the data source cannot be opened
    store_other,        ///< the engine refused for another reason
    report_template,    ///< a report template is missing or wrong
    report_output,      ///< a report could not be written or printed
};

/// Anything that goes wrong and is no refusal. It is thrown, caught in `run_event`, through which every
/// event of a window reaches its routine, told in plain words, and ends the program with exit status 1.
/// What was committed stays.
class run_time_failure : public std::exception {
public:
    /// `details` says precisely what failed and where (a statement, a recordset, a file and line);
    /// it is shown below the plain words, for whoever is asked for help.
    run_time_failure(failure_kind kind, QString details);

    failure_kind kind() const { return kind_; }
    const QString& details() const { return details_; }
    const char* what() const noexcept override { return what_.c_str(); }

private:
    failure_kind kind_;
    QString details_;
    std::string what_;
};

/// The plain words for a kind of failure: what happened and what it means for the data.
text_pair failure_words(failure_kind kind);

}  // namespace verdane
