#pragma once

#include <QString>

#include <exception>
#include <string>
#include <utility>

namespace verdane {

/// What went wrong. Each kind has its own text for the user (`failure_words`).
enum class failure_kind {
    overflow,           ///< a count or an amount left its 16 or 32 bits
    subscript,          ///< an index outside a list of fixed length
    invalid_null,       ///< a value is Null where one is needed
    bad_number,         ///< a text is not a number where one is needed
    misuse,             ///< an operation that the state of the recordset does not allow
    missing_table,      ///< the store lacks a table or a column
    store_locked,       ///< another program has locked the store
    store_read_only,    ///< the file or its folder cannot be written
    store_damaged,      ///< the file is not a store or is damaged
    store_full,         ///< the disk is full
    store_unreachable,  ///< the file or the data source cannot be opened
    store_other,        ///< any other error of the engine
    source_unknown,     ///< no ODBC data source of that name is registered
    source_driver,      ///< the driver of the source is missing or cannot be loaded
    source_password,    ///< the server refuses the account or its password
    source_host,        ///< the server refuses this computer
    source_login,       ///< driver and server have no method of login or encryption in common
    source_busy,        ///< the server or the account has as many connections as are allowed
    source_database,    ///< the source names no database, or one that the account cannot use
    source_stopped,     ///< no server accepts the connection
    source_silent,      ///< the server did not respond in time while the source was opened
    source_engine,      ///< the source belongs to an engine that the program does not support
    source_case,        ///< the server distinguishes the case of table names
    source_table,       ///< the source lacks some of the tables
    source_column,      ///< a table of the source lacks a column, or has it in another place
    source_type,        ///< a column of the source has a type that does not fit its values
    source_storage,     ///< tables of the source have a storage engine without transactions
    source_read_only,   ///< the account may not write
    source_full,        ///< the disk of the server is full
    source_value,       ///< a value does not fit into its column on the server
    source_part,        ///< the server lacks a table or a column that a statement names
    source_lost,        ///< the connection to the server was lost
    report_template,    ///< a report template is missing or contains an error
    report_output,      ///< a report could not be written or printed
};

/// Everything that goes wrong, except a refusal of what the user entered. `run_event`, which calls the
/// routine of every event of a window, catches it, shows its text and ends the program with exit status 1.
/// Committed rows stay.
class run_time_failure : public std::exception {
public:
    /// `details` names what failed and where (a statement, a recordset, a file and line). It is shown below
    /// the text for the user, for the person who helps them.
    run_time_failure(failure_kind kind, QString details)
        : kind_(kind), details_(std::move(details)), what_(details_.toStdString())
    {
    }

    failure_kind kind() const { return kind_; }
    const QString& details() const { return details_; }
    const char* what() const noexcept override { return what_.c_str(); }

private:
    failure_kind kind_;
    QString details_;
    std::string what_;
};

}  // namespace verdane
